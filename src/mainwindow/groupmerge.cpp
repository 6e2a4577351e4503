#include "groupmerge.h"

#include <algorithm>
#include <limits>

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

/// Counts are whatever the daemon says, and their sum must be a number, too.
int sum(int one, int other)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<qint64>(qint64(one) + other, Limits::min(), Limits::max()));
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
        GroupInfo &sums = merged.last();
        sums.taskCount = sum(sums.taskCount, group->taskCount);
        sums.enabledTaskCount = sum(sums.enabledTaskCount, group->enabledTaskCount);
    }
    return merged;
}

} // namespace Scheduler
