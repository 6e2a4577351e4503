#include "daemonresponse.h"

#include "daemontime.h"
#include "wireprotocol.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

QJsonObject success(const QJsonObject &data)
{
    return {{u"ok"_s, true}, {u"data"_s, data}};
}

QJsonObject invalidPayload(const QString &message)
{
    return errorResponse(u"INVALID_PAYLOAD"_s, message);
}

QJsonObject taskNotFound(const QString &taskId)
{
    return errorResponse(u"TASK_NOT_FOUND"_s, u"There is no task '%1'"_s.arg(taskId));
}

QJsonObject groupNotFound(const QString &groupId)
{
    return errorResponse(u"GROUP_NOT_FOUND"_s, u"There is no group '%1'"_s.arg(groupId));
}

QJsonObject taskToWire(const Task &task)
{
    constexpr int dayInSeconds = 24 * 60 * 60;
    const QString mode = startMode(task.paramsJson);
    const QJsonValue specifiedTime =
        task.paramsJson.value("startRecordingOn"_L1).toObject().value("specifiedDateTime"_L1);
    return {{u"id"_s, task.id},
            {u"name"_s, task.name},
            {u"type"_s, task.type},
            {u"enabled"_s, task.enabled},
            {u"groupId"_s, task.groupId},
            {u"programName"_s, task.programName},
            {u"targetProgram"_s, task.targetProgram},
            {u"scheduleMode"_s, mode},
            {u"scheduleCron"_s, QString()},
            {u"scheduleIntervalSec"_s, mode == "EveryDay"_L1 ? dayInSeconds : 0},
            {u"scheduleStartAt"_s, mode == "SpecifiedTime"_L1 ? specifiedTime.toString() : QString()},
            {u"nextRunAt"_s, utcText(task.nextRunAt)},
            {u"lastRunStatus"_s, task.lastRunStatus},
            {u"createdAt"_s, utcText(task.createdAt)},
            {u"updatedAt"_s, utcText(task.updatedAt)},
            {u"paramsJson"_s, task.paramsJson}};
}

QJsonObject groupToWire(const Group &group, int taskCount, int enabledTaskCount)
{
    return {{u"id"_s, group.id},
            {u"name"_s, group.name},
            {u"description"_s, group.description},
            {u"color"_s, group.color},
            {u"parentId"_s, group.parentId},
            {u"taskType"_s, group.taskType},
            {u"displayOrder"_s, group.displayOrder},
            {u"taskCount"_s, taskCount},
            {u"enabledTaskCount"_s, enabledTaskCount},
            {u"createdAt"_s, utcText(group.createdAt)},
            {u"updatedAt"_s, utcText(group.updatedAt)}};
}

QJsonObject auditEntryToWire(const AuditEntry &entry, const QTimeZone &zone)
{
    return {{u"id"_s, entry.id},
            {u"action"_s, entry.action},
            {u"taskType"_s, entry.taskType},
            {u"entityId"_s, entry.entityId},
            {u"entityName"_s, entry.entityName},
            {u"operator"_s, entry.operatorName},
            {u"result"_s, entry.result},
            {u"message"_s, entry.message},
            {u"detailsJson"_s, entry.detailsJson},
            {u"createdAt"_s, wallTimeText(entry.createdAt, zone)}};
}

} // namespace Scheduler::DevDaemon
