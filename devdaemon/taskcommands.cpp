#include "daemoncommand.h"

#include "daemonresponse.h"
#include "daemonschedule.h"
#include "daemontasktypes.h"
#include "runsimulation.h"
#include "wireprotocol.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

/// The members of a task document. A key that is left out keeps its stored value.
const QList<KeyRule> &documentRules()
{
    static const QList<KeyRule> rules{
        {"name"_L1, JsonKind::Text, false},         {"type"_L1, JsonKind::Text, false},
        {"enabled"_L1, JsonKind::Flag, false},      {"groupId"_L1, JsonKind::Text, false},
        {"programName"_L1, JsonKind::Text, false},  {"targetProgram"_L1, JsonKind::Text, false},
        {"paramsJson"_L1, JsonKind::Object, false},
    };
    return rules;
}

void applyDocument(Task &task, const QJsonObject &document)
{
    task.name = document.value("name"_L1).toString(task.name).trimmed();
    task.type = document.value("type"_L1).toString(task.type);
    task.enabled = document.value("enabled"_L1).toBool(task.enabled);
    task.groupId = document.value("groupId"_L1).toString(task.groupId);
    task.programName = document.value("programName"_L1).toString(task.programName);
    task.targetProgram = document.value("targetProgram"_L1).toString(task.targetProgram);
    if (document.contains("paramsJson"_L1))
        task.paramsJson = document.value("paramsJson"_L1).toObject();
}

/// Lays the document over the task. Returns the refusal, or an empty object when the task may be stored.
QJsonObject takeDocument(const CommandContext &context, Task &task, const QJsonObject &document)
{
    const QString problem = problemOf(document, documentRules());
    if (!problem.isEmpty())
        return invalidPayload(u"Task: "_s + problem);
    applyDocument(task, document);

    if (!isTaskType(task.type))
        return errorResponse(u"TASK_TYPE_NOT_FOUND"_s, u"There is no task type '%1'"_s.arg(task.type));
    // A task that is switched off may be a draft without a name.
    if (task.enabled && task.name.isEmpty())
        return invalidPayload(u"An enabled task must have a name"_s);
    const std::optional<QString> groupId = context.store.storedGroupId(task.groupId);
    if (!groupId)
        return groupNotFound(task.groupId);
    task.groupId = *groupId;
    return {};
}

/// A task that has never run says so in its last run status, and why.
void updateStatusWithoutRun(Task &task)
{
    if (task.lastRunStatus == "pending"_L1 || task.lastRunStatus == "disabled"_L1)
        task.lastRunStatus = task.enabled ? u"pending"_s : u"disabled"_s;
}

void recordChange(CommandContext &context, const QString &action, const QString &message, const Task &task)
{
    AuditEntry entry = entryFor(context, action, task);
    entry.message = message;
    if (action == "task.created"_L1)
        entry.detailsJson = {{u"scheduleMode"_s, startMode(task.paramsJson)}};
    context.store.record(entry);
}

QJsonObject createTask(CommandContext &context, const QJsonObject &payload)
{
    Task task;
    QJsonObject refusal = takeDocument(context, task, payload.value("task"_L1).toObject());
    if (!refusal.isEmpty())
        return refusal;
    task.id = newId();
    task.lastRunStatus = task.enabled ? u"pending"_s : u"disabled"_s;
    task.createdAt = context.now;
    task.updatedAt = context.now;
    task.nextRunAt = nextRun(task, context.now, context.settings.zone);
    context.store.addTask(task);
    recordChange(context, u"task.created"_s, u"Task created"_s, task);
    return success({{u"taskId"_s, task.id}});
}

QJsonObject updateTask(CommandContext &context, const QJsonObject &payload)
{
    const QString taskId = payload.value("taskId"_L1).toString();
    const Task *stored = context.store.task(taskId);
    if (stored == nullptr)
        return taskNotFound(taskId);
    Task task = *stored;
    QJsonObject refusal = takeDocument(context, task, payload.value("task"_L1).toObject());
    if (!refusal.isEmpty())
        return refusal;
    updateStatusWithoutRun(task);
    task.updatedAt = context.now;
    task.nextRunAt = nextRun(task, context.now, context.settings.zone);
    *context.store.editTask(taskId) = task;
    recordChange(context, u"task.updated"_s, u"Task updated"_s, task);
    return success();
}

QJsonObject deleteTask(CommandContext &context, const QJsonObject &payload)
{
    const QString taskId = payload.value("taskId"_L1).toString();
    if (context.store.task(taskId) == nullptr)
        return taskNotFound(taskId);
    deleteTasks(context, {taskId});
    return success();
}

template <bool Enabled> QJsonObject switchTask(CommandContext &context, const QJsonObject &payload)
{
    const QString taskId = payload.value("taskId"_L1).toString();
    if (context.store.task(taskId) == nullptr)
        return taskNotFound(taskId);
    if (Enabled && context.store.task(taskId)->name.isEmpty())
        return invalidPayload(u"An enabled task must have a name"_s);
    setTaskEnabled(context, taskId, Enabled);
    return success();
}

} // namespace

void setTaskEnabled(CommandContext &context, const QString &taskId, bool enabled)
{
    if (context.store.task(taskId)->enabled == enabled)
        return;
    Task &task = *context.store.editTask(taskId);
    task.enabled = enabled;
    task.updatedAt = context.now;
    task.nextRunAt = nextRun(task, context.now, context.settings.zone);
    updateStatusWithoutRun(task);
    if (enabled)
        recordChange(context, u"task.enabled"_s, u"Task enabled"_s, task);
    else
        recordChange(context, u"task.disabled"_s, u"Task disabled"_s, task);
}

void deleteTasks(CommandContext &context, const QStringList &taskIds)
{
    for (const QString &taskId : taskIds) {
        cancelRun(context, taskId);
        recordChange(context, u"task.deleted"_s, u"Task deleted"_s, *context.store.task(taskId));
    }
    context.store.removeTasks(QSet<QString>(taskIds.begin(), taskIds.end()));
}

QList<Command> taskCommands()
{
    const KeyRule taskId{"taskId"_L1};
    const KeyRule document{"task"_L1, JsonKind::Object};
    return {
        {u"task.create"_s, {document}, &createTask},       {u"task.update"_s, {taskId, document}, &updateTask},
        {u"task.delete"_s, {taskId}, &deleteTask},         {u"task.enable"_s, {taskId}, &switchTask<true>},
        {u"task.disable"_s, {taskId}, &switchTask<false>},
    };
}

} // namespace Scheduler::DevDaemon
