#include "groupmerge.h"

#include <QMap>

namespace Scheduler {

QList<GroupInfo> mergedByName(const QList<GroupInfo> &groups)
{
    QMap<QString, GroupInfo> byName;
    for (const GroupInfo &group : groups) {
        const auto known = byName.find(group.name);
        if (known == byName.end()) {
            byName.insert(group.name, group);
            continue;
        }
        known->taskCount += group.taskCount;
        known->enabledTaskCount += group.enabledTaskCount;
    }
    return byName.values();
}

} // namespace Scheduler
