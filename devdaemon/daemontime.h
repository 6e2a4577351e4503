#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>
#include <QTimeZone>

namespace Scheduler::DevDaemon {

/// The UTC time at which the clocks of a zone show date and time. A time that the clocks skip is moved on by the
/// length of the skip, and of a time that they show twice the first one counts.
[[nodiscard]] QDateTime utcFromWallTime(QDate date, QTime time, const QTimeZone &zone);

/// Reads an ISO 8601 date and time; one without an offset is wall time of the zone. Invalid when malformed.
[[nodiscard]] QDateTime utcFromIsoText(const QString &text, const QTimeZone &zone);

/// ISO 8601 in UTC with a Z, to the second; empty for an invalid time.
[[nodiscard]] QString utcText(const QDateTime &time);

/// ISO 8601 wall time of the zone without an offset, to the second, for readers that show it as it stands.
[[nodiscard]] QString wallTimeText(const QDateTime &time, const QTimeZone &zone);

} // namespace Scheduler::DevDaemon
