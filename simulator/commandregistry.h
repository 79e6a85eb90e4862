#pragma once

#include "reply.h"

#include <QHash>
#include <QSet>
#include <functional>

namespace simulator
{

/** What an endpoint remembers of one connection. */
struct Session {
    QSet<QString> watches;
};

/** The commands of one endpoint by their full names. Each group of commands is a class that adds
 *  its own when it is made; it has to live as long as the registry is used. */
class CommandRegistry
{
public:
    using Handler = std::function<Reply(const QJsonValue &arguments, Session &session)>;

    CommandRegistry() = default;
    /** `fixedAnswers`, by command, go before the commands. They outlive the registry. */
    explicit CommandRegistry(const QHash<QString, QJsonValue> &fixedAnswers)
        : m_fixedAnswers(&fixedAnswers)
    {
    }

    /** A name that exists already gets the new handler. */
    void add(const QString &name, const Handler &handler) { m_handlers.insert(name, handler); }

    Reply run(const QString &name, const QJsonValue &arguments, Session &session) const
    {
        if (m_fixedAnswers != nullptr && m_fixedAnswers->contains(name))
            return Reply::done(m_fixedAnswers->value(name));
        const auto found = m_handlers.constFind(name);
        if (found == m_handlers.cend())
            return Reply::unknown(QStringLiteral("unknown command '%1'").arg(name));
        return (*found)(arguments, session);
    }

private:
    QHash<QString, Handler> m_handlers;
    const QHash<QString, QJsonValue> *m_fixedAnswers = nullptr;
};

} // namespace simulator
