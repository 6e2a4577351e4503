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

QString filled(const QString &pattern, qint64 larger, qint64 smaller)
{
    return pattern.arg(QString::number(larger), QString::number(smaller));
}

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

} // namespace

QString nextRunText(const QDateTime &when, const QDateTime &now)
{
    if (!when.isValid())
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "Not scheduled");
    const qint64 seconds = now.secsTo(when);
    if (seconds < 0)
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "Overdue");
    if (seconds < minute)
        return QCoreApplication::translate("Scheduler::MCsMainWindow", "%1s left").arg(seconds);
    if (seconds < hour)
        return filled(QCoreApplication::translate("Scheduler::MCsMainWindow", "%1m %2s left"), seconds / minute,
                      seconds % minute);
    if (seconds >= day)
        return filled(QCoreApplication::translate("Scheduler::MCsMainWindow", "%1d %2h left"), seconds / day,
                      seconds % day / hour);
    return filled(QCoreApplication::translate("Scheduler::MCsMainWindow", "%1h %2m left"), seconds / hour,
                  seconds % hour / minute);
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

QString lastRunText(const QString &status)
{
    const QString word = status.left(status.indexOf(" - "_L1)).toLower();
    for (const StatusWord &known : statusWords) {
        if (word == known.word)
            return QCoreApplication::translate(context, known.text);
    }
    return status;
}

QColor lastRunColor(const QString &status)
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
