#pragma once

#include <QColor>
#include <QDateTime>
#include <QString>

namespace Scheduler {

// Texts and colours of a task's row.

/// What a countdown shows: its form and the two numbers in it. Two countdowns are equal when they read the same.
struct Countdown {
    enum class Form { NotScheduled, Overdue, Seconds, MinutesAndSeconds, HoursAndMinutes, DaysAndHours };
    Form form = Form::NotScheduled;
    int larger = 0;
    int smaller = 0;

    friend bool operator==(const Countdown &, const Countdown &) = default;
};

/// To a run, in whole units, truncated; an invalid time is not scheduled, and a past one overdue. Two times in UTC,
/// which daemons send, are compared without a look at the time zone.
[[nodiscard]] Countdown countdownFrom(const QDateTime &now, const QDateTime &when);
[[nodiscard]] QString formatNextRun(const Countdown &countdown);

/// "Enabled" or "Disabled".
[[nodiscard]] QString enabledText(bool enabled);
[[nodiscard]] QColor enabledColor(bool enabled);

/// The translated word of a known status, whatever its case and without the detail behind " - "; any other status as it
/// stands.
[[nodiscard]] QString formatRunStatus(const QString &status);

/// The colour by the beginning of the raw status, case-sensitively: unlike the text, an unusual spelling stays grey.
[[nodiscard]] QColor runStatusColor(const QString &status);

} // namespace Scheduler
