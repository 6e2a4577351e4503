#include "daemontime.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

QDateTime utcFromWallTime(QDate date, QTime time, const QTimeZone &zone)
{
    // The offsets of a day earlier and a day later are those on both sides of a clock change that may be near. Doing
    // the arithmetic here keeps the result the same in all Qt versions, which treat skipped times differently.
    constexpr qint64 dayInSeconds = 24 * 60 * 60;
    const QDateTime wall = QDateTime(date, time, QTimeZone::utc()).toUTC();
    const int offsetBefore = zone.offsetFromUtc(wall.addSecs(-dayInSeconds));
    const int offsetAfter = zone.offsetFromUtc(wall.addSecs(dayInSeconds));

    const QDateTime earlier = wall.addSecs(-offsetBefore);
    if (zone.offsetFromUtc(earlier) == offsetBefore)
        return earlier;
    const QDateTime later = wall.addSecs(-offsetAfter);
    if (zone.offsetFromUtc(later) == offsetAfter)
        return later;
    return earlier;
}

QDateTime utcFromIsoText(const QString &text, const QTimeZone &zone)
{
    const QDateTime parsed = QDateTime::fromString(text, Qt::ISODate);
    if (parsed.isValid() && parsed.timeSpec() != Qt::LocalTime)
        return parsed.toUTC();
    // Read as UTC, date and time come out as written, also where this system's own clocks skip them.
    const QDateTime wall = QDateTime::fromString(text + u'Z', Qt::ISODate);
    return wall.isValid() ? utcFromWallTime(wall.date(), wall.time(), zone) : QDateTime();
}

QString utcText(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODate);
}

QString wallTimeText(const QDateTime &time, const QTimeZone &zone)
{
    if (!time.isValid())
        return {};
    const QDateTime wall = time.toTimeZone(zone);
    return wall.date().toString(Qt::ISODate) + u'T' + wall.time().toString(Qt::ISODate);
}

} // namespace Scheduler::DevDaemon
