#pragma once

namespace Scheduler::ServiceControl {

// The daemon's system service, asked and started through the platform's own tools, which the system finds as it finds
// every program. Each call blocks the thread for at most the tool's time: 3 seconds for a query, 5 for the start. What
// a tool prints counts, its exit code only for the start.

[[nodiscard]] bool isServiceRunning();
[[nodiscard]] bool isServiceInstalled();

/// A tool that cannot be started, or has not finished in time, counts as a success: whether the daemon then answers
/// decides.
[[nodiscard]] bool startService();

} // namespace Scheduler::ServiceControl
