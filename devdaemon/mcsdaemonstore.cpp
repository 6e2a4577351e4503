#include "mcsdaemonstore.h"

#include "daemoncounter.h"
#include "daemonresponse.h"

#include <algorithm>

namespace Scheduler::DevDaemon {

namespace {

template <typename Record> QHash<QString, qsizetype> indexById(const QList<Record> &records)
{
    QHash<QString, qsizetype> index;
    index.reserve(records.size());
    for (qsizetype position = 0; position < records.size(); ++position)
        index.insert(records.at(position).id, position);
    return index;
}

} // namespace

MCsDaemonStore::MCsDaemonStore(const State &state, int maxAuditEntries)
    : m_state(state)
    , m_maxAuditEntries(maxAuditEntries)
{
    m_groupIndex = indexById(m_state.groups);
    repairReferences();
    rebuildTaskIndex();
    m_wireTasks.resize(m_state.tasks.size());
}

const State &MCsDaemonStore::state() const
{
    return m_state;
}

quint64 MCsDaemonStore::revision() const
{
    return m_revision;
}

const Task *MCsDaemonStore::task(const QString &id) const
{
    const auto found = m_taskIndex.constFind(id);
    return found == m_taskIndex.cend() ? nullptr : &m_state.tasks.at(*found);
}

Task *MCsDaemonStore::editTask(const QString &id)
{
    const auto found = m_taskIndex.constFind(id);
    if (found == m_taskIndex.cend())
        return nullptr;
    m_wireTasks[*found] = QJsonObject();
    changed();
    return &m_state.tasks[*found];
}

void MCsDaemonStore::addTask(const Task &task)
{
    m_taskIndex.insert(task.id, m_state.tasks.size());
    m_state.tasks.append(task);
    m_wireTasks.append(QJsonObject());
    changed();
}

void MCsDaemonStore::removeTasks(const QSet<QString> &ids)
{
    if (ids.isEmpty())
        return;
    QList<QJsonObject> keptWireTasks;
    for (qsizetype position = 0; position < m_state.tasks.size(); ++position) {
        if (!ids.contains(m_state.tasks.at(position).id))
            keptWireTasks.append(m_wireTasks.at(position));
    }
    m_wireTasks = keptWireTasks;
    m_state.tasks.removeIf([&ids](const Task &task) { return ids.contains(task.id); });
    rebuildTaskIndex();
    changed();
}

QStringList MCsDaemonStore::taskIds(const QString &groupId, const QString &type) const
{
    QStringList ids;
    for (const Task &task : m_state.tasks) {
        if (task.groupId == groupId && typeCovers(type, task.type))
            ids.append(task.id);
    }
    return ids;
}

QJsonArray MCsDaemonStore::tasksToWire(const std::function<bool(const Task &)> &wanted) const
{
    QJsonArray tasks;
    for (const Task &task : m_state.tasks) {
        if (wanted(task))
            tasks.append(taskToWire(task));
    }
    return tasks;
}

const QJsonObject &MCsDaemonStore::taskToWire(const Task &task) const
{
    QJsonObject &wire = m_wireTasks[m_taskIndex.value(task.id)];
    if (wire.isEmpty())
        wire = DevDaemon::taskToWire(task);
    return wire;
}

MCsDaemonStore::Counts MCsDaemonStore::counts(const QString &groupId, const QString &type) const
{
    if (!m_countsValid) {
        m_counts.clear();
        for (const Task &task : m_state.tasks) {
            Counts &counts = m_counts[task.groupId][task.type];
            ++counts.all;
            counts.enabled += task.enabled ? 1 : 0;
        }
        m_countsValid = true;
    }
    Counts sum;
    const QHash<QString, Counts> byType = m_counts.value(groupId);
    for (auto counts = byType.cbegin(); counts != byType.cend(); ++counts) {
        if (typeCovers(type, counts.key())) {
            sum.all += counts->all;
            sum.enabled += counts->enabled;
        }
    }
    return sum;
}

const Group *MCsDaemonStore::group(const QString &id) const
{
    const auto found = m_groupIndex.constFind(id);
    return found == m_groupIndex.cend() ? nullptr : &m_state.groups.at(*found);
}

Group *MCsDaemonStore::editGroup(const QString &id)
{
    const auto found = m_groupIndex.constFind(id);
    if (found == m_groupIndex.cend())
        return nullptr;
    changed();
    return &m_state.groups[*found];
}

void MCsDaemonStore::addGroup(const Group &group)
{
    m_groupIndex.insert(group.id, m_state.groups.size());
    m_state.groups.append(group);
    changed();
}

void MCsDaemonStore::removeGroup(const QString &id)
{
    m_state.groups.removeIf([&id](const Group &group) { return group.id == id; });
    m_groupIndex = indexById(m_state.groups);
    for (const QString &childId : childGroupIds(id))
        editGroup(childId)->parentId.clear();
    for (const QString &taskId : taskIds(id, {}))
        editTask(taskId)->groupId.clear();
    changed();
}

QStringList MCsDaemonStore::childGroupIds(const QString &id) const
{
    QStringList ids;
    for (const Group &group : m_state.groups) {
        if (group.parentId == id)
            ids.append(group.id);
    }
    return ids;
}

std::optional<QString> MCsDaemonStore::storedGroupId(const QString &groupId) const
{
    if (groupId.isEmpty() || groupId == ungroupedId)
        return QString();
    if (m_groupIndex.contains(groupId))
        return groupId;
    return std::nullopt;
}

void MCsDaemonStore::record(AuditEntry entry)
{
    m_state.lastAuditId = counted(m_state.lastAuditId);
    entry.id = m_state.lastAuditId;
    m_state.audit.append(entry);
    while (m_state.audit.size() > m_maxAuditEntries)
        m_state.audit.removeFirst();
    changed();
}

void MCsDaemonStore::repairReferences()
{
    for (Task &task : m_state.tasks)
        task.groupId = storedGroupId(task.groupId).value_or(QString());
    for (Group &group : m_state.groups) {
        const Group *parent = this->group(group.parentId);
        if (parent == nullptr || !parent->parentId.isEmpty())
            group.parentId.clear();
    }
}

void MCsDaemonStore::rebuildTaskIndex()
{
    m_taskIndex = indexById(m_state.tasks);
}

void MCsDaemonStore::changed()
{
    ++m_revision;
    m_countsValid = false;
}

} // namespace Scheduler::DevDaemon
