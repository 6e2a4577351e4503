#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace Scheduler {

/// Why the process at the other end of a connected local socket is not to be trusted: it runs as another user, or the
/// system does not tell as whom. Nothing when it is the own user's.
///
/// Asks the system about the process and not the file about its owner, so nothing that is renamed or replaced at the
/// endpoint meanwhile deceives it. Where local sockets are no files, the answer is always nothing.
[[nodiscard]] std::optional<QString> strangerBehind(qintptr socketDescriptor);

} // namespace Scheduler
