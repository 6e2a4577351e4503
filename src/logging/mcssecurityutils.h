#pragma once

#include "fileaccess.h"

#include <QString>

namespace Scheduler {

/// Restricts a newly made log file to its owner (read and write) and one administrative group (read).
class MCsSecurityUtils {
public:
    MCsSecurityUtils() = delete;

    /// The switch of the whole operation. Nothing but an edit of this line turns it on, and see setFilePermissions()
    /// for what must change first.
    static constexpr bool hardeningEnabled = false;

    /// True on success, and always while hardeningEnabled is false: then nothing is touched, looked at or logged.
    ///
    /// The logger calls this with its lock held, and the operation reports through the logger, whose mutex is not
    /// recursive. With the switch off no report is ever reached. Whoever turns the switch on has to take the reporting
    /// out from under that lock first, or the first log file made will hang the process.
    [[nodiscard]] static bool setFilePermissions(const QString &path);

    /// The operation behind the switch: gives the file mode 0640, or what corresponds to it, and logs the outcome.
    /// False if the file does not exist or the system refuses. Must not be called with the logger's lock held.
    [[nodiscard]] static bool restrictFileAccess(const QString &path);

    /// The text that is logged for a failed step, with the system's code in decimal.
    [[nodiscard]] static QString failureText(const FileAccessResult &result);
};

} // namespace Scheduler
