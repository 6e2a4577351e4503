#include "daemoncommand.h"

#include "daemonresponse.h"
#include "daemontasktypes.h"

#include <algorithm>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

QJsonObject getTask(CommandContext &context, const QJsonObject &payload)
{
    const QString taskId = payload.value("taskId"_L1).toString();
    const Task *task = context.store.task(taskId);
    return task == nullptr ? taskNotFound(taskId) : success({{u"task"_s, context.store.taskToWire(*task)}});
}

/// The types that a query for one is about. A manager asks for all types whenever no filter is set; one that serves a
/// single type means its own tasks by that.
QString askedType(const CommandContext &context, const QJsonObject &payload)
{
    const QString type = payload.value("type"_L1).toString();
    const QString scope = typeScope(context);
    return type == allTypesId && !scope.isEmpty() ? scope : type;
}

QJsonObject listByType(CommandContext &context, const QJsonObject &payload)
{
    const QString type = askedType(context, payload);
    const auto wanted = [&type](const Task &task) { return typeCovers(type, task.type); };
    return success({{u"tasks"_s, context.store.tasksToWire(wanted)}});
}

QJsonObject listByGroupAndType(CommandContext &context, const QJsonObject &payload)
{
    const QString asked = payload.value("groupId"_L1).toString();
    const QString type = payload.value("taskType"_L1).toString();
    const std::optional<QString> groupId = context.store.storedGroupId(asked);
    if (!groupId)
        return groupNotFound(asked);
    const auto wanted = [&](const Task &task) { return task.groupId == *groupId && typeCovers(type, task.type); };
    return success({{u"tasks"_s, context.store.tasksToWire(wanted)}});
}

QJsonObject countByType(CommandContext &context, const QJsonObject &payload)
{
    const QString type = askedType(context, payload);
    const QList<Task> &tasks = context.store.state().tasks;
    const auto count =
        std::count_if(tasks.begin(), tasks.end(), [&type](const Task &task) { return typeCovers(type, task.type); });
    return success({{u"count"_s, static_cast<qint64>(count)}});
}

QJsonObject countByGroupAndType(CommandContext &context, const QJsonObject &payload)
{
    const QString asked = payload.value("groupId"_L1).toString();
    const std::optional<QString> groupId = context.store.storedGroupId(asked);
    if (!groupId)
        return groupNotFound(asked);
    return success({{u"count"_s, context.store.counts(*groupId, payload.value("taskType"_L1).toString()).all}});
}

QJsonObject listTaskTypes(CommandContext &, const QJsonObject &)
{
    return success({{u"taskTypes"_s, taskTypes()}});
}

} // namespace

QList<Command> taskQueryCommands()
{
    const KeyRule groupId{"groupId"_L1};
    const KeyRule type{"type"_L1};
    const KeyRule taskType{"taskType"_L1};
    return {
        {u"task.get"_s, {{"taskId"_L1}}, &getTask},
        {u"task.listByType"_s, {type}, &listByType},
        {u"task.listByGroupAndType"_s, {groupId, taskType}, &listByGroupAndType},
        {u"task.countByType"_s, {type}, &countByType},
        {u"task.countByGroupAndType"_s, {groupId, taskType}, &countByGroupAndType},
        {u"tasktype.list"_s, {}, &listTaskTypes},
    };
}

} // namespace Scheduler::DevDaemon
