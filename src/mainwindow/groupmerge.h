#pragma once

#include "records.h"

#include <QList>

namespace Scheduler {

/// One group per name, in ascending order of the names, for a view of all task types: the first group of a name with
/// all its fields, but with the task counts of all groups of that name together.
[[nodiscard]] QList<GroupInfo> mergedByName(const QList<GroupInfo> &groups);

} // namespace Scheduler
