#include "daemoncommand.h"

#include "daemonresponse.h"

#include <algorithm>
#include <tuple>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

QJsonObject withCounts(const MCsDaemonStore &store, const Group &group, const QString &type)
{
    const MCsDaemonStore::Counts counts = store.counts(group.id == ungroupedId ? QString() : group.id, type);
    return groupToWire(group, counts.all, counts.enabled);
}

/// The pseudo group of the tasks without a group; it sorts behind every real one.
Group ungroupedGroup(const QString &type)
{
    Group group;
    group.id = ungroupedId;
    group.name = u"Ungrouped"_s;
    group.taskType = type;
    group.displayOrder = 10000;
    return group;
}

bool standsBefore(const Group &left, const Group &right)
{
    if (left.displayOrder != right.displayOrder)
        return left.displayOrder < right.displayOrder;
    const int byName = left.name.compare(right.name, Qt::CaseInsensitive);
    return byName != 0 ? byName < 0 : std::tie(left.name, left.id) < std::tie(right.name, right.id);
}

QJsonObject getGroup(CommandContext &context, const QJsonObject &payload)
{
    const QString groupId = payload.value("groupId"_L1).toString();
    if (groupId == ungroupedId)
        return success({{u"group"_s, withCounts(context.store, ungroupedGroup({}), {})}});
    const Group *group = context.store.group(groupId);
    if (group == nullptr)
        return groupNotFound(groupId);
    return success({{u"group"_s, withCounts(context.store, *group, {})}});
}

/// The groups of the type, and those of other types that hold tasks of it: without them, its managers would show no
/// place for such tasks.
QJsonObject listByTaskType(CommandContext &context, const QJsonObject &payload)
{
    const QString type = payload.value("taskType"_L1).toString();
    QList<Group> groups;
    for (const Group &group : context.store.state().groups) {
        if (typeCovers(type, group.taskType) || context.store.counts(group.id, type).all > 0)
            groups.append(group);
    }
    std::sort(groups.begin(), groups.end(), &standsBefore);
    if (context.store.counts({}, type).all > 0)
        groups.append(ungroupedGroup(type));

    QJsonArray wire;
    for (const Group &group : groups)
        wire.append(withCounts(context.store, group, type));
    return success({{u"groups"_s, wire}});
}

} // namespace

QList<Command> groupQueryCommands()
{
    return {
        {u"group.get"_s, {{"groupId"_L1}}, &getGroup},
        {u"group.listByTaskType"_s, {{"taskType"_L1}}, &listByTaskType},
    };
}

} // namespace Scheduler::DevDaemon
