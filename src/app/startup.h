#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Scheduler {

/// What a host passes to the manager, checked.
struct StartValues {
    QString taskType;
    QString language;
    QString programName;
    QString programPath;
    QString programParametersJson; ///< text of the parameter file as read; empty without one
};

/// Name, version and icon of the application object.
void identifyApplication();

/// Lets the application end with its last window, also where that is closed between two waits for the daemon.
void quitWithLastWindow();

/// Directs the log to its file. Debug entries are kept when a file "debug.txt" stands beside the executable.
void startLogging();

/// Parses and checks a command line, whose first element is the program. Shows a box and returns nothing where it
/// cannot be used. Help, version and malformed options end the process.
[[nodiscard]] std::optional<StartValues> readCommandLine(const QStringList &commandLine);

/// Runs the manager from the application object to the end of its event loop; the result is the exit status.
[[nodiscard]] int runManager(int argc, char **argv);

} // namespace Scheduler
