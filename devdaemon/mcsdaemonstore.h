#pragma once

#include "daemonrecords.h"

#include <QHash>
#include <QJsonArray>
#include <QSet>
#include <QStringList>

#include <functional>
#include <optional>

namespace Scheduler::DevDaemon {

/// The daemon's state in memory, with what makes it quick to ask: an index by id, counts by group and type, and the
/// tasks in their wire form, since a manager reads the whole list once a second.
///
/// It keeps the records consistent with each other, and knows no commands. Pointers to records hold until the next
/// record of that kind is added or removed.
class MCsDaemonStore {
public:
    struct Counts {
        int all = 0;
        int enabled = 0;
    };

    /// References that lead nowhere are dropped: such a task has no group, such a group no parent.
    MCsDaemonStore(const State &state, int maxAuditEntries);

    [[nodiscard]] const State &state() const;
    /// Another number after each change.
    [[nodiscard]] quint64 revision() const;

    [[nodiscard]] const Task *task(const QString &id) const;
    /// For changing the task in place; the change counts as made.
    [[nodiscard]] Task *editTask(const QString &id);
    void addTask(const Task &task);
    void removeTasks(const QSet<QString> &ids);

    /// Ids in order of creation of the tasks of a group, or without a group, that the type covers.
    [[nodiscard]] QStringList taskIds(const QString &groupId, const QString &type) const;
    [[nodiscard]] QJsonArray tasksToWire(const std::function<bool(const Task &)> &wanted) const;
    [[nodiscard]] const QJsonObject &taskToWire(const Task &task) const;
    [[nodiscard]] Counts counts(const QString &groupId, const QString &type) const;

    [[nodiscard]] const Group *group(const QString &id) const;
    [[nodiscard]] Group *editGroup(const QString &id);
    void addGroup(const Group &group);
    /// The group's tasks lose their group, and its child groups become top-level groups.
    void removeGroup(const QString &id);
    [[nodiscard]] QStringList childGroupIds(const QString &id) const;

    /// The id under which tasks of a group are stored: empty for "ungrouped" and for an empty id, and nothing for
    /// the id of a group that does not exist.
    [[nodiscard]] std::optional<QString> storedGroupId(const QString &groupId) const;

    /// Gives the entry its number; the oldest entries go when there are too many.
    void record(AuditEntry entry);

private:
    void repairReferences();
    void rebuildTaskIndex();
    void changed();

    State m_state;
    int m_maxAuditEntries;
    quint64 m_revision = 0;
    QHash<QString, qsizetype> m_taskIndex;
    QHash<QString, qsizetype> m_groupIndex;
    mutable QHash<QString, QHash<QString, Counts>> m_counts; ///< by group id, then by type
    mutable bool m_countsValid = false;
    mutable QList<QJsonObject> m_wireTasks; ///< beside m_state.tasks; empty where it has to be made anew
};

} // namespace Scheduler::DevDaemon
