#include "tasktexts.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr auto context = "Scheduler::MCsMainWindow";
constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

struct StatusWord {
    const char16_t *word;
    const char *text;
};

constexpr std::array<StatusWord, 6> statusWords{{
    {u"success", QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "Success")},
    {u"failed", QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "Failed")},
    {u"timeout", QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "Timeout")},
    {u"running", QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "Running")},
    {u"pending", QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "Pending")},
    {u"disabled", QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "Disabled")},
}};

QString pattern(Countdown::Form form)
{
    switch (form) {
    case Countdown::Form::NotScheduled:
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "Not scheduled");
    case Countdown::Form::Overdue:
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "Overdue");
    case Countdown::Form::Seconds:
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "%1s left");
    case Countdown::Form::MinutesAndSeconds:
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "%1m %2s left");
    case Countdown::Form::HoursAndMinutes:
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "%1h %2m left");
    case Countdown::Form::DaysAndHours:
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "%1d %2h left");
    }
    return {};
}

Countdown counted(Countdown::Form form, qint64 larger, qint64 smaller)
{
    return {form, static_cast<int>(larger), static_cast<int>(smaller)};
}

} // namespace

Countdown countdownFrom(const QDateTime &now, const QDateTime &when)
{
    using Form = Countdown::Form;
    if (!when.isValid())
        return {};
    const qint64 seconds = now.secsTo(when);
    if (seconds < 0)
        return {Form::Overdue};
    if (seconds < minute)
        return counted(Form::Seconds, 0, seconds);
    if (seconds < hour)
        return counted(Form::MinutesAndSeconds, seconds / minute, seconds % minute);
    if (seconds < day)
        return counted(Form::HoursAndMinutes, seconds / hour, seconds % hour / minute);
    return counted(Form::DaysAndHours, seconds / day, seconds % day / hour);
}

QString formatNextRun(const Countdown &countdown)
{
    const QString text = pattern(countdown.form);
    switch (countdown.form) {
    case Countdown::Form::NotScheduled:
    case Countdown::Form::Overdue:
        return text;
    case Countdown::Form::Seconds:
        return text.arg(QString::number(countdown.smaller));
    default:
        return text.arg(QString::number(countdown.larger), QString::number(countdown.smaller));
    }
}

QString enabledText(bool enabled)
{
    return enabled ? QCoreApplication::translate("Scheduler::MCsMainWindow", "Enabled")
                   : QCoreApplication::translate("Scheduler::MCsMainWindow", "Disabled");
}

QColor enabledColor(bool enabled)
{
    return enabled ? Qt::darkGreen : Qt::gray;
}

QString formatRunStatus(const QString &status)
{
    const QString word = status.left(status.indexOf(" - "_L1)).toLower();
    for (const StatusWord &known : statusWords) {
        if (word == known.word)
            return QCoreApplication::translate(context, known.text);
    }
    return status;
}

QColor runStatusColor(const QString &status)
{
    if (status.startsWith("success"_L1))
        return Qt::darkGreen;
    if (status.startsWith("failed"_L1) || status.startsWith("timeout"_L1))
        return Qt::red;
    if (status.startsWith("running"_L1))
        return {255, 165, 0, 255};
    return Qt::gray;
}

} // namespace Scheduler
