#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QtGlobal>

namespace Scheduler::DevDaemon {

// What the daemon keeps. All times are in UTC, and an invalid time means that there is none.

/// The group id under which tasks without a group are listed. No group can be stored under it.
inline constexpr QLatin1StringView ungroupedId{"ungrouped"};

/// The type id that stands for every task type in a query.
inline constexpr QLatin1StringView allTypesId{"task_type.all"};

/// A simulated run in progress. An empty id means that the task is not running.
struct Run {
    QString id;
    QDateTime startedAt;
    QDateTime endsAt;

    bool operator==(const Run &) const = default;
};

struct Task {
    QString id;
    QString name;
    QString type;
    bool enabled = false;
    QString groupId; ///< empty for a task without a group, never "ungrouped"
    QString programName;
    QString targetProgram;
    QJsonObject paramsJson;
    QDateTime nextRunAt;
    QDateTime lastRunAt; ///< when the last run started
    QString lastRunStatus;
    int runCount = 0; ///< runs started so far; decides the simulated outcome
    Run run;
    QDateTime createdAt;
    QDateTime updatedAt;

    bool operator==(const Task &) const = default;
};

struct Group {
    QString id;
    QString name;
    QString description;
    QString color;
    QString parentId; ///< empty for a top-level group
    QString taskType;
    int displayOrder = 0;
    QDateTime createdAt;
    QDateTime updatedAt;

    bool operator==(const Group &) const = default;
};

struct AuditEntry {
    qint64 id = 0; ///< grows by one with each entry
    QString action;
    QString taskType;
    QString entityId;
    QString entityName;
    QString operatorName;
    bool result = true;
    QString message;
    QJsonObject detailsJson;
    QDateTime createdAt;

    bool operator==(const AuditEntry &) const = default;
};

struct State {
    QList<Task> tasks;       ///< in order of creation
    QList<Group> groups;     ///< in order of creation
    QList<AuditEntry> audit; ///< oldest first
    qint64 lastAuditId = 0;

    bool operator==(const State &) const = default;
};

/// The start mode of a task document, such as "EveryDay"; empty when it has none.
[[nodiscard]] QString startMode(const QJsonObject &paramsJson);

/// A fresh id for a task, a group or a run.
[[nodiscard]] QString newId();

/// True when a query for askedType covers type; an empty type or "task_type.all" asks for all.
[[nodiscard]] bool typeCovers(const QString &askedType, const QString &type);

} // namespace Scheduler::DevDaemon
