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
    using Condition = std::function<bool()>;

    CommandRegistry() = default;
    /** `fixedAnswers`, by command, go before the commands. They outlive the registry. */
    explicit CommandRegistry(const QHash<QString, QJsonValue> &fixedAnswers)
        : m_fixedAnswers(&fixedAnswers)
    {
    }

    /** A name that exists already gets the new handler. While the condition is false the command is
     *  unknown: not every controller version has it. */
    void add(const QString &name, const Handler &handler, const Condition &exists = {})
    {
        m_commands.insert(name, {handler, exists});
    }

    bool knows(const QString &name) const
    {
        if (m_fixedAnswers != nullptr && m_fixedAnswers->contains(name))
            return true;
        const auto found = m_commands.constFind(name);
        return found != m_commands.cend() && (!found->exists || found->exists());
    }

    Reply run(const QString &name, const QJsonValue &arguments, Session &session) const
    {
        if (!knows(name))
            return Reply::unknown(QStringLiteral("unknown command '%1'").arg(name));
        if (m_fixedAnswers != nullptr && m_fixedAnswers->contains(name))
            return Reply::done(m_fixedAnswers->value(name));
        return m_commands.value(name).handler(arguments, session);
    }

private:
    struct Command {
        Handler handler;
        Condition exists;
    };
    QHash<QString, Command> m_commands;
    const QHash<QString, QJsonValue> *m_fixedAnswers = nullptr;
};

} // namespace simulator
