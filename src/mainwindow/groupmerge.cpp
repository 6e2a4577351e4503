#include "groupmerge.h"

#include <algorithm>

namespace Scheduler {

namespace {

/// The groups by name, those of one name in their old order. Pointers, since a record is large to move.
QList<const GroupInfo *> sortedByName(const QList<GroupInfo> &groups)
{
    QList<const GroupInfo *> sorted;
    sorted.reserve(groups.size());
    for (const GroupInfo &group : groups)
        sorted.append(&group);
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const GroupInfo *left, const GroupInfo *right) { return left->name < right->name; });
    return sorted;
}

} // namespace

QList<GroupInfo> mergedByName(const QList<GroupInfo> &groups)
{
    QList<GroupInfo> merged;
    merged.reserve(groups.size());
    for (const GroupInfo *group : sortedByName(groups)) {
        if (merged.isEmpty() || merged.last().name != group->name) {
            merged.append(*group);
            continue;
        }
        merged.last().taskCount += group->taskCount;
        merged.last().enabledTaskCount += group->enabledTaskCount;
    }
    return merged;
}

} // namespace Scheduler
