#include "tasktexts.h"

#include "tasktypes.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr auto context = "Scheduler::MCsMainWindow";
constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
/// A daemon that tells each task's status in words of its own must not make the memory of them grow without end.
constexpr qsizetype rememberedTexts = 1000;

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

QString filled(const QString &pattern, const Countdown &countdown)
{
    switch (countdown.form) {
    case Countdown::Form::NotScheduled:
    case Countdown::Form::Overdue:
        return pattern;
    case Countdown::Form::Seconds:
        return pattern.arg(QString::number(countdown.smaller));
    default:
        return pattern.arg(QString::number(countdown.larger), QString::number(countdown.smaller));
    }
}

Countdown counted(Countdown::Form form, qint64 larger, qint64 smaller)
{
    return {form, static_cast<int>(larger), static_cast<int>(smaller)};
}

} // namespace

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

TaskTexts::TaskTexts(const QDateTime &now)
    : m_now(now.toUTC()) // daemons send UTC, and times of one zone are compared without looking the zone up
    , m_enabled{enabledText(true), enabledColor(true)}
    , m_disabled{enabledText(false), enabledColor(false)}
{
    using Form = Countdown::Form;
    for (const Form form : {Form::NotScheduled, Form::Overdue, Form::Seconds, Form::MinutesAndSeconds,
                            Form::HoursAndMinutes, Form::DaysAndHours})
        m_patterns.insert(form, pattern(form));
}

Countdown TaskTexts::countdownTo(const QDateTime &when) const
{
    using Form = Countdown::Form;
    if (!when.isValid())
        return {};
    const qint64 seconds = m_now.secsTo(when);
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

QString TaskTexts::formatNextRun(const Countdown &countdown) const
{
    return filled(m_patterns.value(countdown.form), countdown);
}

const TaskTexts::Look &TaskTexts::enabledLook(bool enabled) const
{
    return enabled ? m_enabled : m_disabled;
}

const TaskTexts::Look &TaskTexts::runStatusLook(const QString &status)
{
    if (const auto known = m_runStatuses.constFind(status); known != m_runStatuses.constEnd())
        return *known;
    if (m_runStatuses.size() >= rememberedTexts)
        m_runStatuses.clear();
    return *m_runStatuses.insert(status, {formatRunStatus(status), runStatusColor(status)});
}

const QString &TaskTexts::typeName(const QString &type)
{
    if (const auto known = m_typeNames.constFind(type); known != m_typeNames.constEnd())
        return *known;
    if (m_typeNames.size() >= rememberedTexts)
        m_typeNames.clear();
    return *m_typeNames.insert(type, taskTypeDisplayName(type));
}

} // namespace Scheduler
