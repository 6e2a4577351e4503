#include "daemonstatejson.h"

#include <QJsonArray>
#include <QSet>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

constexpr int formatVersion = 1;

QString timeText(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODateWithMs);
}

QDateTime timeFrom(const QJsonValue &text)
{
    const QDateTime time = QDateTime::fromString(text.toString(), Qt::ISODateWithMs);
    return time.isValid() ? time.toUTC() : QDateTime();
}

QJsonObject toJson(const Run &run)
{
    if (run.id.isEmpty())
        return {};
    return {{u"id"_s, run.id}, {u"startedAt"_s, timeText(run.startedAt)}, {u"endsAt"_s, timeText(run.endsAt)}};
}

QJsonObject toJson(const Task &task)
{
    return {{u"id"_s, task.id},
            {u"name"_s, task.name},
            {u"type"_s, task.type},
            {u"enabled"_s, task.enabled},
            {u"groupId"_s, task.groupId},
            {u"programName"_s, task.programName},
            {u"targetProgram"_s, task.targetProgram},
            {u"paramsJson"_s, task.paramsJson},
            {u"nextRunAt"_s, timeText(task.nextRunAt)},
            {u"lastRunAt"_s, timeText(task.lastRunAt)},
            {u"lastRunStatus"_s, task.lastRunStatus},
            {u"runCount"_s, task.runCount},
            {u"run"_s, toJson(task.run)},
            {u"createdAt"_s, timeText(task.createdAt)},
            {u"updatedAt"_s, timeText(task.updatedAt)}};
}

QJsonObject toJson(const Group &group)
{
    return {{u"id"_s, group.id},
            {u"name"_s, group.name},
            {u"description"_s, group.description},
            {u"color"_s, group.color},
            {u"parentId"_s, group.parentId},
            {u"taskType"_s, group.taskType},
            {u"displayOrder"_s, group.displayOrder},
            {u"createdAt"_s, timeText(group.createdAt)},
            {u"updatedAt"_s, timeText(group.updatedAt)}};
}

QJsonObject toJson(const AuditEntry &entry)
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
            {u"createdAt"_s, timeText(entry.createdAt)}};
}

/// Times without a run are none: they would not be written again.
Run runFrom(const QJsonObject &object)
{
    const QString id = object.value("id"_L1).toString();
    if (id.isEmpty())
        return {};
    return {id, timeFrom(object.value("startedAt"_L1)), timeFrom(object.value("endsAt"_L1))};
}

Task taskFrom(const QJsonObject &object)
{
    Task task;
    task.id = object.value("id"_L1).toString();
    task.name = object.value("name"_L1).toString();
    task.type = object.value("type"_L1).toString();
    task.enabled = object.value("enabled"_L1).toBool();
    task.groupId = object.value("groupId"_L1).toString();
    task.programName = object.value("programName"_L1).toString();
    task.targetProgram = object.value("targetProgram"_L1).toString();
    task.paramsJson = object.value("paramsJson"_L1).toObject();
    task.nextRunAt = timeFrom(object.value("nextRunAt"_L1));
    task.lastRunAt = timeFrom(object.value("lastRunAt"_L1));
    task.lastRunStatus = object.value("lastRunStatus"_L1).toString();
    task.runCount = object.value("runCount"_L1).toInt();
    task.run = runFrom(object.value("run"_L1).toObject());
    task.createdAt = timeFrom(object.value("createdAt"_L1));
    task.updatedAt = timeFrom(object.value("updatedAt"_L1));
    return task;
}

Group groupFrom(const QJsonObject &object)
{
    Group group;
    group.id = object.value("id"_L1).toString();
    group.name = object.value("name"_L1).toString();
    group.description = object.value("description"_L1).toString();
    group.color = object.value("color"_L1).toString();
    group.parentId = object.value("parentId"_L1).toString();
    group.taskType = object.value("taskType"_L1).toString();
    group.displayOrder = object.value("displayOrder"_L1).toInt();
    group.createdAt = timeFrom(object.value("createdAt"_L1));
    group.updatedAt = timeFrom(object.value("updatedAt"_L1));
    return group;
}

AuditEntry auditEntryFrom(const QJsonObject &object)
{
    AuditEntry entry;
    entry.id = object.value("id"_L1).toInteger();
    entry.action = object.value("action"_L1).toString();
    entry.taskType = object.value("taskType"_L1).toString();
    entry.entityId = object.value("entityId"_L1).toString();
    entry.entityName = object.value("entityName"_L1).toString();
    entry.operatorName = object.value("operator"_L1).toString();
    entry.result = object.value("result"_L1).toBool();
    entry.message = object.value("message"_L1).toString();
    entry.detailsJson = object.value("detailsJson"_L1).toObject();
    entry.createdAt = timeFrom(object.value("createdAt"_L1));
    return entry;
}

template <typename Record> QJsonArray listToJson(const QList<Record> &records)
{
    QJsonArray array;
    for (const Record &record : records)
        array.append(toJson(record));
    return array;
}

/// Reads the array under key; sets error unless it is an array of objects.
template <typename Record>
QList<Record> listFrom(const QJsonObject &object, const QString &key, Record (*parse)(const QJsonObject &),
                       QString *error)
{
    QList<Record> records;
    if (!object.value(key).isArray())
        *error = u"'%1' is missing or not an array"_s.arg(key);
    const QJsonArray array = object.value(key).toArray();
    records.reserve(array.size());
    for (const QJsonValue &element : array) {
        if (!element.isObject())
            *error = u"'%1' holds something that is not an object"_s.arg(key);
        records.append(parse(element.toObject()));
    }
    return records;
}

template <typename Record> void checkIds(const QList<Record> &records, const QString &key, QString *error)
{
    QSet<QString> ids;
    for (const Record &record : records) {
        if (record.id.isEmpty() || ids.contains(record.id))
            *error = u"'%1' holds a missing or repeated id"_s.arg(key);
        ids.insert(record.id);
    }
}

} // namespace

QJsonObject stateToJson(const State &state)
{
    return {{u"version"_s, formatVersion},
            {u"tasks"_s, listToJson(state.tasks)},
            {u"groups"_s, listToJson(state.groups)},
            {u"audit"_s, listToJson(state.audit)},
            {u"lastAuditId"_s, state.lastAuditId}};
}

std::optional<State> stateFromJson(const QJsonObject &object, QString *error)
{
    error->clear();
    if (object.value("version"_L1).toInt() != formatVersion) {
        *error = u"it is not a state of version %1"_s.arg(formatVersion);
        return std::nullopt;
    }
    State state;
    state.tasks = listFrom(object, u"tasks"_s, &taskFrom, error);
    state.groups = listFrom(object, u"groups"_s, &groupFrom, error);
    state.audit = listFrom(object, u"audit"_s, &auditEntryFrom, error);
    state.lastAuditId = object.value("lastAuditId"_L1).toInteger();
    checkIds(state.tasks, u"tasks"_s, error);
    checkIds(state.groups, u"groups"_s, error);
    if (!error->isEmpty())
        return std::nullopt;
    return state;
}

} // namespace Scheduler::DevDaemon
