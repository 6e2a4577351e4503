#pragma once

#include "cannedanswers.h"

#include <QProcess>
#include <QTemporaryDir>

namespace Bench {

/// Serves canned answers at the manager's endpoint until the process is killed; the result is the exit status. Prints a
/// line when it listens.
[[nodiscard]] int runCannedDaemon(int argc, char **argv);

/// A canned daemon in another process for as long as the object lives. It has a runtime directory, and so an endpoint,
/// of its own, which whoever connects next finds.
class DaemonProcess {
public:
    explicit DaemonProcess(const Amounts &amounts);
    ~DaemonProcess();
    Q_DISABLE_COPY_MOVE(DaemonProcess)

private:
    QTemporaryDir m_runtimeDirectory;
    QProcess m_process;
};

} // namespace Bench
