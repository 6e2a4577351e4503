#pragma once

#include "daemonrecords.h"

#include <QTimeZone>

namespace Scheduler::DevDaemon {

// What a daemon that has no state yet starts with.

/// Tasks in every state that a manager shows, groups in two levels and an audit trail, with times relative to now.
[[nodiscard]] State sampleState(const QDateTime &now, const QTimeZone &zone);

/// The groups of the sample, with ids that its tasks know.
[[nodiscard]] QList<Group> sampleGroups(const QDateTime &now);

/// The tasks of the sample.
[[nodiscard]] QList<Task> sampleTasks(const QDateTime &now, const QTimeZone &zone);

/// As many tasks and groups as asked for, all of type "task_type.screen_record", for measuring. The tasks are spread
/// evenly over the groups and over no group, and none is due within the next hour. Every fifth group stands on the
/// top level, the others below it.
[[nodiscard]] State generatedState(const QDateTime &now, const QTimeZone &zone, int taskCount, int groupCount);

} // namespace Scheduler::DevDaemon
