#pragma once

#include <QString>

// What a server's endpoint has to do with files.

namespace Scheduler {

/// The path of the file that a server has locked while it serves the endpoint, or is about to.
[[nodiscard]] QString lockFileOf(const QString &endpoint);

/// Removes the socket that a process left behind which is no more. Returns false, and leaves it alone, when something
/// else bears the name.
[[nodiscard]] bool removeRemains(const QString &endpoint);

} // namespace Scheduler
