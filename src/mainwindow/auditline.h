#pragma once

#include "records.h"

#include <QString>

namespace Scheduler {

/// The sentence of an activity log entry, plain text.
[[nodiscard]] QString auditMessage(const AuditLogEntry &entry);

/// The colour of an entry, by its action alone.
[[nodiscard]] QString auditColor(const QString &action);

/// The entry as one line of HTML: time and message, the message escaped.
[[nodiscard]] QString auditLine(const AuditLogEntry &entry);

} // namespace Scheduler
