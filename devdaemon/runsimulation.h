#pragma once

#include "daemoncommand.h"

namespace Scheduler::DevDaemon {

// Runs are simulated: a task is "running" for a while and then has an outcome. No program is ever started.

/// Starts a run of a task that exists and is not running.
void startRun(CommandContext &context, const QString &taskId);

/// Ends what is being run, without an outcome of its own, because the task goes away.
void cancelRun(CommandContext &context, const QString &taskId);

/// Ends the runs whose time is up and starts the tasks that are due. A start that was missed by more than the grace
/// time, since the daemon or the machine was not running, is not made up for.
void advanceRuns(CommandContext &context);

} // namespace Scheduler::DevDaemon
