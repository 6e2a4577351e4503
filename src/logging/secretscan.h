#pragma once

#include <QStringView>

namespace Scheduler {

/// Whether any of the expressions of redactText() can match: true at times when none does, but never false when one
/// does.
///
/// Almost no message holds a secret, and the three expressions run over a long one cost several times the file access
/// that follows. This scan costs a small part of it.
[[nodiscard]] bool mayHoldSecret(QStringView text);

} // namespace Scheduler
