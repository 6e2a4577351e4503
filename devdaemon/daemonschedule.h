#pragma once

#include "daemonrecords.h"

#include <QTimeZone>

namespace Scheduler::DevDaemon {

/// When the task starts next, as seen at now, worked out from its stored start mode. Invalid when nothing is
/// scheduled: the task is disabled, waits for a program or a folder, or is a one-off task that has run.
///
/// The result lies in the future except for a one-off task that has not run although its time has passed: it keeps
/// that time, so that it shows as overdue instead of silently dropping out of the schedule.
[[nodiscard]] QDateTime nextRun(const Task &task, const QDateTime &now, const QTimeZone &zone);

/// True when the task starts once, at a given time.
[[nodiscard]] bool isOneOff(const Task &task);

} // namespace Scheduler::DevDaemon
