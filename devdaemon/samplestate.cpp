#include "samplestate.h"

#include <algorithm>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

AuditEntry entry(const QString &action, const QString &operatorName, const QDateTime &time,
                 const QJsonObject &details = {})
{
    AuditEntry entry;
    entry.action = action;
    entry.operatorName = operatorName;
    entry.result = !details.contains("error"_L1);
    entry.detailsJson = details;
    entry.createdAt = time;
    return entry;
}

AuditEntry about(const Group &group, AuditEntry entry)
{
    entry.taskType = group.taskType;
    entry.entityId = group.id;
    entry.entityName = group.name;
    return entry;
}

AuditEntry about(const Task &task, AuditEntry entry)
{
    entry.taskType = task.type;
    entry.entityId = task.id;
    entry.entityName = task.name;
    return entry;
}

/// The start of the task's last run and, when it is over, its end.
QList<AuditEntry> runEntries(const Task &task)
{
    const QString scheduler = u"scheduler"_s;
    const QString runId = task.run.id.isEmpty() ? u"run-of-"_s + task.id : task.run.id;
    const QDateTime end = task.lastRunAt.addSecs(90);
    const QStringList status = task.lastRunStatus.split(u" - "_s);

    QList<AuditEntry> entries{
        about(task, entry(u"task_run.started"_s, scheduler, task.lastRunAt, {{u"runId"_s, runId}}))};
    if (status.first() == "success"_L1)
        entries.append(about(task, entry(u"task_run"_s, scheduler, end, {{u"runId"_s, runId}, {u"exitCode"_s, 0}})));
    else if (status.first() == "failed"_L1 || status.first() == "timeout"_L1)
        entries.append(about(task, entry(u"task_run."_s + status.first(), scheduler, end,
                                         {{u"runId"_s, runId}, {u"exitCode"_s, 1}, {u"error"_s, status.last()}})));
    return entries;
}

QList<AuditEntry> auditTrail(const State &state)
{
    const QString user = u"user"_s;
    QList<AuditEntry> entries;
    for (const Group &group : state.groups)
        entries.append(about(group, entry(u"group.created"_s, user, group.createdAt)));
    for (const Task &task : state.tasks) {
        entries.append(about(
            task, entry(u"task.created"_s, user, task.createdAt, {{u"scheduleMode"_s, startMode(task.paramsJson)}})));
        if (!task.enabled)
            entries.append(about(task, entry(u"task.disabled"_s, user, task.createdAt.addSecs(30))));
        if (task.lastRunAt.isValid())
            entries.append(runEntries(task));
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const AuditEntry &left, const AuditEntry &right) { return left.createdAt < right.createdAt; });
    for (qsizetype position = 0; position < entries.size(); ++position)
        entries[position].id = position + 1;
    return entries;
}

} // namespace

State sampleState(const QDateTime &now, const QTimeZone &zone)
{
    State state;
    state.groups = sampleGroups(now);
    state.tasks = sampleTasks(now, zone);
    state.audit = auditTrail(state);
    state.lastAuditId = state.audit.size();
    return state;
}

} // namespace Scheduler::DevDaemon
