#include "daemoncommand.h"

#include "daemonresponse.h"
#include "runsimulation.h"
#include "wireprotocol.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

void moveTask(CommandContext &context, const QString &taskId, const QString &groupId)
{
    if (context.store.task(taskId)->groupId == groupId)
        return;
    Task &task = *context.store.editTask(taskId);
    task.groupId = groupId;
    task.updatedAt = context.now;

    const Group *group = context.store.group(groupId);
    AuditEntry entry = entryFor(context, u"task.moved"_s, task);
    entry.message = u"Task moved"_s;
    entry.detailsJson = {{u"groupId"_s, groupId}, {u"groupName"_s, group == nullptr ? QString() : group->name}};
    context.store.record(entry);
}

/// Either all of the tasks move or none.
QJsonObject moveTasks(CommandContext &context, const QStringList &taskIds, const QString &askedGroupId)
{
    const std::optional<QString> groupId = context.store.storedGroupId(askedGroupId);
    if (!groupId)
        return groupNotFound(askedGroupId);
    for (const QString &taskId : taskIds) {
        if (context.store.task(taskId) == nullptr)
            return taskNotFound(taskId);
    }
    for (const QString &taskId : taskIds)
        moveTask(context, taskId, *groupId);
    return success();
}

QJsonObject moveToGroup(CommandContext &context, const QJsonObject &payload)
{
    return moveTasks(context, {payload.value("taskId"_L1).toString()}, payload.value("groupId"_L1).toString());
}

QJsonObject batchMoveToGroup(CommandContext &context, const QJsonObject &payload)
{
    QStringList taskIds;
    const QJsonArray ids = payload.value("taskIds"_L1).toArray();
    for (const QJsonValue &id : ids)
        taskIds.append(id.toString());
    return moveTasks(context, taskIds, payload.value("groupId"_L1).toString());
}

QJsonObject triggerTask(CommandContext &context, const QJsonObject &payload)
{
    const QString taskId = payload.value("taskId"_L1).toString();
    const Task *task = context.store.task(taskId);
    if (task == nullptr)
        return taskNotFound(taskId);
    if (!task->run.id.isEmpty())
        return errorResponse(u"TASK_ALREADY_RUNNING"_s, u"The task '%1' is running already"_s.arg(task->name));
    startRun(context, taskId);
    return success();
}

} // namespace

QList<Command> taskActionCommands()
{
    const KeyRule taskId{"taskId"_L1};
    const KeyRule groupId{"groupId"_L1};
    return {
        {u"task.trigger"_s, {taskId}, &triggerTask},
        {u"task.moveToGroup"_s, {taskId, groupId}, &moveToGroup},
        {u"task.batchMoveToGroup"_s, {{"taskIds"_L1, JsonKind::TextList}, groupId}, &batchMoveToGroup},
    };
}

} // namespace Scheduler::DevDaemon
