#pragma once

#include <QColor>
#include <QDateTime>
#include <QString>

namespace Scheduler {

// Texts and colours of a task's row.

/// The countdown from now to a run, in whole units, truncated: "Not scheduled" for an invalid time, "Overdue" for a
/// past one.
[[nodiscard]] QString nextRunText(const QDateTime &when, const QDateTime &now);

/// "Enabled" or "Disabled".
[[nodiscard]] QString enabledText(bool enabled);
[[nodiscard]] QColor enabledColor(bool enabled);

/// The translated word of a known status, whatever its case and without the detail behind " - "; any other status as it
/// stands.
[[nodiscard]] QString lastRunText(const QString &status);

/// The colour by the beginning of the raw status, case-sensitively: unlike the text, an unusual spelling stays grey.
[[nodiscard]] QColor lastRunColor(const QString &status);

} // namespace Scheduler
