// Answers of the daemon, as records and as what the window makes of them: countdowns, status words, lines of the
// activity log, groups that are merged by name.
//
// An input is one JSON object, read as every kind of record, or an array of them.

#include "fuzzing.h"

#include "auditline.h"
#include "groupmerge.h"
#include "records.h"
#include "tasktexts.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using Fuzzing::require;

namespace {

QString text(const QJsonObject &object, QLatin1StringView key)
{
    return object.value(key).toString();
}

QDateTime date(const QJsonObject &object, QLatin1StringView key)
{
    return QDateTime::fromString(text(object, key), Qt::ISODate);
}

/// Invalid dates count as equal, whatever made them so.
bool same(const QDateTime &one, const QDateTime &other)
{
    return one.isValid() == other.isValid() && (!one.isValid() || (one == other && one.timeSpec() == other.timeSpec()));
}

// The records are read with tables and a walk of their own; a look-up of each key must say the same.

void checkTask(const QJsonObject &object)
{
    const TaskInfo task = TaskInfo::fromJson(object);
    require(task.id == text(object, "id"_L1) && task.name == text(object, "name"_L1) &&
                task.type == text(object, "type"_L1) && task.groupId == text(object, "groupId"_L1) &&
                task.scheduleMode == text(object, "scheduleMode"_L1) &&
                task.scheduleCron == text(object, "scheduleCron"_L1) &&
                task.lastRunStatus == text(object, "lastRunStatus"_L1),
            "a task's texts are its strings");
    require(task.enabled == object.value("enabled"_L1).toBool() &&
                task.scheduleIntervalSec == object.value("scheduleIntervalSec"_L1).toInt() &&
                task.paramsJson == object.value("paramsJson"_L1).toObject(),
            "a task's values are those of its keys");
    require(same(task.scheduleStartAt, date(object, "scheduleStartAt"_L1)) &&
                same(task.nextRunAt, date(object, "nextRunAt"_L1)) &&
                same(task.createdAt, date(object, "createdAt"_L1)) &&
                same(task.updatedAt, date(object, "updatedAt"_L1)),
            "the quick way to a date comes to the same date");

    static const QDateTime now = QDateTime::fromString(u"2026-03-01T14:07:55Z"_s, Qt::ISODate);
    const Countdown countdown = countdownFrom(now, task.nextRunAt);
    require(countdown.larger >= 0 && countdown.smaller >= 0 && countdown.smaller < 60,
            "a countdown counts whole units");
    require(!formatNextRun(countdown).isEmpty(), "a countdown has a text");
    require(runStatusColor(task.lastRunStatus).isValid(), "every status has a colour");
    require(formatRunStatus(task.lastRunStatus).isEmpty() == task.lastRunStatus.isEmpty(), "a status has a text");
}

GroupInfo checkGroup(const QJsonObject &object)
{
    GroupInfo group = GroupInfo::fromJson(object);
    require(group.id == text(object, "id"_L1) && group.name == text(object, "name"_L1) &&
                group.description == text(object, "description"_L1) && group.color == text(object, "color"_L1) &&
                group.parentId == text(object, "parentId"_L1) && group.taskType == text(object, "taskType"_L1),
            "a group's texts are its strings");
    require(group.displayOrder == object.value("displayOrder"_L1).toInt() &&
                group.taskCount == object.value("taskCount"_L1).toInt() &&
                group.enabledTaskCount == object.value("enabledTaskCount"_L1).toInt() &&
                same(group.createdAt, date(object, "createdAt"_L1)) &&
                same(group.updatedAt, date(object, "updatedAt"_L1)),
            "a group's values are those of its keys");
    return group;
}

void checkAuditEntry(const QJsonObject &object)
{
    const AuditLogEntry entry = AuditLogEntry::fromJson(object);
    require(entry.action == text(object, "action"_L1) && entry.taskType == text(object, "taskType"_L1) &&
                entry.entityId == text(object, "entityId"_L1) && entry.entityName == text(object, "entityName"_L1) &&
                entry.operatorName == text(object, "operator"_L1) && entry.message == text(object, "message"_L1) &&
                entry.result == object.value("result"_L1).toBool() &&
                entry.detailsJson == object.value("detailsJson"_L1).toObject() &&
                same(entry.createdAt, date(object, "createdAt"_L1)),
            "an entry's values are those of its keys");
    const QString line = auditLine(entry);
    require(line.count(u'<') == 4 && line.count(u'>') == 4, "an entry brings no markup into its line");
}

void checkField(const TaskFieldInfo &field, const QJsonObject &object)
{
    require(field.key == text(object, "key"_L1) && field.type == text(object, "type"_L1) &&
                field.label == text(object, "label"_L1) && field.defaultValue == text(object, "defaultValue"_L1) &&
                field.placeholder == text(object, "placeholder"_L1) &&
                field.required == object.value("required"_L1).toBool() && field.min == object.value("min"_L1).toInt() &&
                field.max == object.value("max"_L1).toInt() &&
                field.visibleIf == object.value("visibleIf"_L1).toObject() &&
                field.options.size() == object.value("options"_L1).toArray().size(),
            "a field's values are those of its keys");
}

void checkTaskType(const QJsonObject &object)
{
    const TaskTypeInfo type = TaskTypeInfo::fromJson(object);
    require(type.type == text(object, "type"_L1) && type.name == text(object, "name"_L1) &&
                type.description == text(object, "description"_L1) && type.category == text(object, "category"_L1) &&
                type.requiresGui == object.value("requiresGui"_L1).toBool(),
            "a type's values are those of its keys");
    qsizetype position = 0;
    const QJsonArray fields = object.value("fields"_L1).toArray();
    for (const QJsonValue field : fields) {
        if (field.isObject())
            checkField(type.fields.value(position++), field.toObject());
    }
    require(type.fields.size() == position, "a type has the fields that are objects");
}

void checkMerge(const QList<GroupInfo> &groups)
{
    QSet<QString> names;
    for (const GroupInfo &group : groups)
        names.insert(group.name);
    const QList<GroupInfo> merged = mergedByName(groups);
    require(merged.size() == names.size(), "one group is left for each name");
    require(std::ranges::is_sorted(merged, {}, &GroupInfo::name), "merged groups are in the order of their names");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Fuzzing::QuietProcess process;
    const QJsonDocument document = QJsonDocument::fromJson(Fuzzing::bytesOf(data, size));
    const QJsonArray records = document.isArray() ? document.array() : QJsonArray{document.object()};
    QList<GroupInfo> groups;
    for (const QJsonValue record : records) {
        const QJsonObject object = record.toObject();
        checkTask(object);
        groups.append(checkGroup(object));
        checkAuditEntry(object);
        checkTaskType(object);
        checkField(TaskFieldInfo::fromJson(object), object);
    }
    checkMerge(groups);
    return 0;
}
