#pragma once

#include "daemonrecords.h"

#include <optional>

namespace Scheduler::DevDaemon {

struct LoadedState {
    std::optional<State> state; ///< nothing when there is no file, or when it cannot be used
    QString error;              ///< why an existing file cannot be used
};

[[nodiscard]] LoadedState loadStateFile(const QString &path);

/// Replaces the file as a whole, and makes its directory when it is missing. Returns why it failed, or an empty text;
/// an earlier file is kept then.
[[nodiscard]] QString saveStateFile(const QString &path, const State &state);

} // namespace Scheduler::DevDaemon
