#pragma once

class QString;

namespace Scheduler {

/// The step at which restricting a file failed.
enum class FileAccessFailure { None, ProcessToken, TokenInformation, AdminSid, Acl, FileSecurity };

struct FileAccessResult {
    FileAccessFailure failure = FileAccessFailure::None;
    unsigned long code = 0; ///< the system's error code; 0 when nothing failed
};

/// Lets the process user read and write the file and the local administrators read it, and shuts out everybody else,
/// rights inherited from the directory included. Holds no Qt, so that it compiles and can be tried by itself.
[[nodiscard]] FileAccessResult restrictFileAccessOnWindows(const wchar_t *path);

/// The same in the way of this system; elsewhere that is mode 0640.
[[nodiscard]] FileAccessResult applyFileAccess(const QString &path);

} // namespace Scheduler
