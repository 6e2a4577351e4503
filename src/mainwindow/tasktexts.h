#pragma once

#include <QBrush>
#include <QColor>
#include <QDateTime>
#include <QHash>
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

/// "Enabled" or "Disabled".
[[nodiscard]] QString enabledText(bool enabled);
[[nodiscard]] QColor enabledColor(bool enabled);

/// The translated word of a known status, whatever its case and without the detail behind " - "; any other status as it
/// stands.
[[nodiscard]] QString formatRunStatus(const QString &status);

/// The colour by the beginning of the raw status, case-sensitively: unlike the text, an unusual spelling stays grey.
[[nodiscard]] QColor runStatusColor(const QString &status);

/// The countdowns, and these texts and colours for many rows at one moment. Translations are looked up once, and what
/// is equal in several rows is one object that they share: ten thousand rows cost little time and memory.
class TaskTexts {
public:
    struct Look {
        QString text;
        QBrush brush;
    };

    /// The moment that the countdowns start from.
    explicit TaskTexts(const QDateTime &now = QDateTime::currentDateTimeUtc());

    /// To a run, in whole units, truncated; an invalid time is not scheduled, and a past one overdue.
    [[nodiscard]] Countdown countdownTo(const QDateTime &when) const;
    [[nodiscard]] QString formatNextRun(const Countdown &countdown) const;
    [[nodiscard]] const Look &enabledLook(bool enabled) const;
    [[nodiscard]] const Look &runStatusLook(const QString &status);
    [[nodiscard]] const QString &typeName(const QString &type);

private:
    QDateTime m_now;
    QHash<Countdown::Form, QString> m_patterns;
    Look m_enabled;
    Look m_disabled;
    QHash<QString, Look> m_runStatuses;
    QHash<QString, QString> m_typeNames;
};

} // namespace Scheduler
