#include "mcsdaemonengine.h"

#include "daemonresponse.h"
#include "runsimulation.h"
#include "wireprotocol.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

MCsDaemonEngine::MCsDaemonEngine(const State &state, const EngineSettings &settings, const Clock &clock)
    : m_settings(settings)
    , m_clock(clock)
    , m_store(state, settings.maxAuditEntries)
{
    const QList<Command> commands = taskCommands() + taskActionCommands() + taskQueryCommands() + groupCommands() +
                                    groupQueryCommands() + groupTaskCommands() + auditCommands();
    for (const Command &command : commands)
        m_commands.insert(command.name, command);
}

QJsonObject MCsDaemonEngine::execute(const QString &name, const QJsonValue &payload, const QString &actor)
{
    const auto command = m_commands.constFind(name);
    if (command == m_commands.cend())
        return errorResponse(u"UNKNOWN_COMMAND"_s, u"There is no command '%1'"_s.arg(name));
    if (!payload.isObject() && !payload.isUndefined())
        return invalidPayload(u"'payload' must be an object"_s);
    const QString problem = problemOf(payload.toObject(), command->rules);
    if (!problem.isEmpty())
        return invalidPayload(problem);

    CommandContext context{m_store, m_settings, m_clock(), actor};
    return command->handler(context, payload.toObject());
}

void MCsDaemonEngine::advance()
{
    CommandContext context{m_store, m_settings, m_clock(), u"scheduler"_s};
    advanceRuns(context);
}

const State &MCsDaemonEngine::state() const
{
    return m_store.state();
}

quint64 MCsDaemonEngine::revision() const
{
    return m_store.revision();
}

} // namespace Scheduler::DevDaemon
