#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Scheduler::DevDaemon {

struct DaemonOptions {
    QString statePath;  ///< the JSON file that keeps the state
    bool empty = false; ///< start with nothing instead of the sample when there is no state file
    int taskCount = 0;  ///< with groupCount: generate this many instead of the sample, if either is above 0
    int groupCount = 0;
    int runSeconds = 5;   ///< how long a simulated run takes
    bool verbose = false; ///< log every message
};

struct CommandLine {
    std::optional<DaemonOptions> options; ///< nothing when the process has to end at once
    QString text;                         ///< what to tell then: help, version, or what is wrong
    int exitStatus = 0;
};

/// Reads the arguments, the program's name first. The default state file lies in the application data location, so
/// the application's name must be set.
[[nodiscard]] CommandLine parseCommandLine(const QStringList &arguments);

} // namespace Scheduler::DevDaemon
