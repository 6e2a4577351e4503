#include "daemoncommand.h"

#include "daemonresponse.h"
#include "runsimulation.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

/// Runs the action on the group's own tasks, not on those of its child groups, as far as the client serves them.
template <typename Action>
QJsonObject forTasksOfGroup(CommandContext &context, const QJsonObject &payload, Action action)
{
    const QString asked = payload.value("groupId"_L1).toString();
    const std::optional<QString> groupId = context.store.storedGroupId(asked);
    // An empty id is a mistake here: nobody means every task without a group by it.
    if (!groupId || asked.isEmpty())
        return groupNotFound(asked);
    action(context.store.taskIds(*groupId, typeScope(context)));
    return success();
}

template <bool Enabled> QJsonObject switchAllTasks(CommandContext &context, const QJsonObject &payload)
{
    return forTasksOfGroup(context, payload, [&context](const QStringList &taskIds) {
        for (const QString &taskId : taskIds) {
            // A draft without a name stays off.
            if (!Enabled || !context.store.task(taskId)->name.isEmpty())
                setTaskEnabled(context, taskId, Enabled);
        }
    });
}

QJsonObject triggerAllTasks(CommandContext &context, const QJsonObject &payload)
{
    return forTasksOfGroup(context, payload, [&context](const QStringList &taskIds) {
        for (const QString &taskId : taskIds) {
            if (context.store.task(taskId)->run.id.isEmpty())
                startRun(context, taskId);
        }
    });
}

QJsonObject deleteAllTasks(CommandContext &context, const QJsonObject &payload)
{
    return forTasksOfGroup(context, payload, [&context](const QStringList &taskIds) { deleteTasks(context, taskIds); });
}

} // namespace

QList<Command> groupTaskCommands()
{
    const KeyRule groupId{"groupId"_L1};
    return {
        {u"group.enableAllTasks"_s, {groupId}, &switchAllTasks<true>},
        {u"group.disableAllTasks"_s, {groupId}, &switchAllTasks<false>},
        {u"group.triggerAllTasks"_s, {groupId}, &triggerAllTasks},
        {u"group.deleteAllTasks"_s, {groupId}, &deleteAllTasks},
    };
}

} // namespace Scheduler::DevDaemon
