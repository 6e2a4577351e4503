#include "daemonschedule.h"

#include "daemontime.h"

#include <QJsonArray>

#include <array>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array weekdayNames{"Mon"_L1, "Tue"_L1, "Wed"_L1, "Thu"_L1, "Fri"_L1, "Sat"_L1, "Sun"_L1};

/// Indexed by day of the week less one.
using Weekdays = std::array<bool, 7>;

constexpr Weekdays everyDay{true, true, true, true, true, true, true};

Weekdays weekdaysFrom(const QJsonValue &names)
{
    Weekdays days{};
    const QJsonArray array = names.toArray();
    for (size_t day = 0; day < days.size(); ++day)
        days.at(day) = array.contains(QJsonValue(weekdayNames.at(day)));
    return days;
}

QDateTime firstAfter(const QDateTime &now, const Weekdays &days, const QString &timeText, const QTimeZone &zone)
{
    const QTime time = QTime::fromString(timeText, Qt::ISODate);
    if (!time.isValid())
        return {};
    // From yesterday, since a clock change can move a start past midnight, to the same weekday of the next week.
    const QDate today = now.toTimeZone(zone).date();
    for (int offset = -1; offset <= 8; ++offset) {
        const QDate date = today.addDays(offset);
        if (!days.at(static_cast<size_t>(date.dayOfWeek() - 1)))
            continue;
        const QDateTime start = utcFromWallTime(date, time, zone);
        if (start > now)
            return start;
    }
    return {};
}

QDateTime onceAt(const QDateTime &start, const Task &task)
{
    const bool hasRun = task.lastRunAt.isValid() && task.lastRunAt >= start;
    return hasRun ? QDateTime() : start;
}

} // namespace

QDateTime nextRun(const Task &task, const QDateTime &now, const QTimeZone &zone)
{
    if (!task.enabled)
        return {};
    const QJsonObject start = task.paramsJson.value("startRecordingOn"_L1).toObject();
    const QString mode = start.value("mode"_L1).toString();
    if (mode == "SpecifiedTime"_L1)
        return onceAt(utcFromIsoText(start.value("specifiedDateTime"_L1).toString(), zone), task);
    if (mode == "EveryDay"_L1)
        return firstAfter(now, everyDay, start.value("dailyTime"_L1).toString(), zone);
    if (mode == "EveryWeek"_L1) {
        const Weekdays days = weekdaysFrom(start.value("weeklyDays"_L1));
        return firstAfter(now, days, start.value("weeklyTime"_L1).toString(), zone);
    }
    return {};
}

bool isOneOff(const Task &task)
{
    return startMode(task.paramsJson) == "SpecifiedTime"_L1;
}

} // namespace Scheduler::DevDaemon
