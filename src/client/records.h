#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace Scheduler {

// The daemon's JSON as plain values. No fromJson ever fails: a missing key or a value of another JSON type leaves the
// field's default, and a date that is not ISO 8601 gives an invalid QDateTime. Ids are opaque.

/// One scheduled task. An empty id marks a record that was not found.
struct TaskInfo {
    QString id;
    QString name;
    QString type;
    bool enabled = false;
    QString groupId;
    QString scheduleMode;
    QString scheduleCron;
    int scheduleIntervalSec = 0;
    QDateTime scheduleStartAt;
    QDateTime nextRunAt; ///< invalid when no run is scheduled
    QString lastRunStatus;
    QDateTime createdAt;
    QDateTime updatedAt;
    QJsonObject paramsJson; ///< the task document, an object despite its name

    static TaskInfo fromJson(const QJsonObject &object);
};

/// Id of the group under which the daemon lists the tasks that have none. It is no real group.
inline constexpr QLatin1StringView ungroupedGroupId{"ungrouped"};

/// One group of tasks. An empty id marks a record that was not found; an empty parentId, a top-level group.
struct GroupInfo {
    QString id;
    QString name;
    QString description;
    QString color;
    QString parentId;
    QString taskType;
    int displayOrder = 0;
    int taskCount = 0;
    int enabledTaskCount = 0;
    QDateTime createdAt;
    QDateTime updatedAt;

    static GroupInfo fromJson(const QJsonObject &object);
};

/// One line of the activity log.
struct AuditLogEntry {
    qint64 id = 0; ///< a number or a string of digits on the wire
    QString action;
    QString taskType;
    QString entityId;
    QString entityName;
    QString operatorName; ///< "operator" on the wire
    bool result = false;
    QString message;
    QJsonObject detailsJson;
    QDateTime createdAt;

    static AuditLogEntry fromJson(const QJsonObject &object);
};

/// One parameter of a task type. min and max are 0 when the daemon sets no bound.
struct TaskFieldInfo {
    QString key;
    QString type;
    QString label;
    QString defaultValue; ///< only a JSON string is taken
    bool required = false;
    QStringList options;
    QJsonObject visibleIf;
    QString placeholder;
    int min = 0;
    int max = 0;

    static TaskFieldInfo fromJson(const QJsonObject &object);
};

/// One task type as the daemon defines it.
struct TaskTypeInfo {
    QString type;
    QString name;
    QString description;
    QString category;
    bool requiresGui = false;
    QList<TaskFieldInfo> fields;

    static TaskTypeInfo fromJson(const QJsonObject &object);
};

} // namespace Scheduler
