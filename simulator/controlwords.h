#pragma once

#include "control.h"
#include "jsontext.h"
#include "simulator.h"

#include <QVector>

namespace simulator
{

/** Takes a line apart from the left. */
class Words
{
public:
    explicit Words(const QString &line)
        : m_rest(line.trimmed())
    {
    }

    /** The next word, "" at the end. */
    QString next()
    {
        int end = 0;
        while (end < m_rest.size() && !m_rest.at(end).isSpace())
            ++end;
        QString word = m_rest.left(end);
        m_rest = m_rest.mid(end).trimmed();
        return word;
    }
    /** All words that are left, as numbers; nothing where one is no finite number. */
    std::optional<QVector<double>> numbers();
    QString rest() const { return m_rest; }
    bool atEnd() const { return m_rest.isEmpty(); }

private:
    QString m_rest;
};

inline ControlLine usage(const QString &text)
{
    return {{}, QStringLiteral("usage: ") + text};
}

/** A step that can't be refused. */
template <typename Function>
ControlLine step(Function function)
{
    return {[function](Simulator &simulator) {
                function(simulator);
                return Reply {};
            },
            QString()};
}

/** A step whose function returns a Refusal. */
template <typename Function>
ControlLine attempt(Function function)
{
    return {[function](Simulator &simulator) { return Reply::of(function(simulator)); }, QString()};
}

template <typename Function>
ControlLine query(Function function)
{
    return {[function](Simulator &simulator) { return Reply::done(function(simulator)); },
            QString()};
}

/** The rest of the line as JSON, handed to the function that makes the step of it. */
template <typename Function>
ControlLine withJson(const Words &words, Function function)
{
    QString error;
    const auto value = jsonFromText(words.rest(), &error);
    if (!value)
        return {{}, error};
    return function(*value);
}

} // namespace simulator
