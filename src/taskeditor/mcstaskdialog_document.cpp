#include "mcstaskdialog.h"

#include "mcsdynamicformwidget.h"
#include "mcsfilesizespinbox.h"
#include "taskmodes.h"
#include "ui_mcstaskdialog.h"

#include <QJsonArray>
#include <QTime>

#include <algorithm>
#include <cstddef>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr QStringView timeFormat = u"HH:mm:ss";
/// More than any size field takes, and still an exact whole number as a double; in bytes.
constexpr double maxFileSize = 9007199254740992.0;
/// The names on the wire, in the order of the check boxes.
constexpr std::array<QLatin1StringView, 7> weekdayNames = {"Mon"_L1, "Tue"_L1, "Wed"_L1, "Thu"_L1,
                                                           "Fri"_L1, "Sat"_L1, "Sun"_L1};

/// The value of the checked radio, the first one's if none is checked.
template <typename Modes> QString checkedValue(const Modes &modes)
{
    const auto checked = std::ranges::find_if(modes, [](const auto &mode) { return mode.radio->isChecked(); });
    return checked == modes.end() ? QString(modes.first().value) : QString(checked->value);
}

/// An unknown value leaves the group as it is.
template <typename Modes> void checkValue(const Modes &modes, const QString &value)
{
    const auto wanted = std::ranges::find_if(modes, [&value](const auto &mode) { return mode.value == value; });
    if (wanted != modes.end())
        wanted->radio->setChecked(true);
}

void insertText(QJsonObject &object, const QString &key, const QLineEdit *edit)
{
    object.insert(key, edit->text().trimmed());
}

void insertIfNotBlank(QJsonObject &object, const QString &key, const QLineEdit *edit)
{
    const QString text = edit->text().trimmed();
    if (!text.isEmpty())
        object.insert(key, text);
}

void loadText(QLineEdit *edit, const QJsonObject &object, const QString &key)
{
    if (object.contains(key))
        edit->setText(object.value(key).toString());
}

// A text that is no date or no time gives an invalid value, which the edits ignore.

void loadDateTime(QDateTimeEdit *edit, const QJsonValue &value)
{
    edit->setDateTime(QDateTime::fromString(value.toString(), Qt::ISODate));
}

void loadTime(QTimeEdit *edit, const QJsonValue &value)
{
    edit->setTime(QTime::fromString(value.toString(), timeFormat));
}

/// Whole minutes, part of one counting as one.
int minutesOf(int seconds)
{
    return static_cast<int>((qint64(seconds) + 59) / 60);
}

} // namespace

QList<MCsTaskDialog::ModeRadio> MCsTaskDialog::startModes() const
{
    return {{TaskModes::specifiedTime, m_ui->startModeSpecifiedTime},
            {TaskModes::everyDay, m_ui->startModeEveryDay},
            {TaskModes::everyWeek, m_ui->startModeEveryWeek},
            {TaskModes::monitorApp, m_ui->startModeMonitorApp},
            {TaskModes::monitorFolder, m_ui->startModeMonitorFolder}};
}

QList<MCsTaskDialog::ModeRadio> MCsTaskDialog::stopModes() const
{
    return {{TaskModes::none, m_ui->stopModeNone},
            {TaskModes::byDuration, m_ui->stopModeByDuration},
            {TaskModes::byFileSize, m_ui->stopModeByFileSize},
            {TaskModes::atTime, m_ui->stopModeAtTime}};
}

QList<MCsTaskDialog::ModeRadio> MCsTaskDialog::afterStopActions() const
{
    return {{TaskModes::none, m_ui->afterActionNone},
            {TaskModes::closeProgram, m_ui->afterActionCloseProgram},
            {TaskModes::shutdownComputer, m_ui->afterActionShutdown}};
}

QList<MCsTaskDialog::ModeRadio> MCsTaskDialog::displayModes() const
{
    return {{TaskModes::show, m_ui->displayModeShow},
            {TaskModes::minimize, m_ui->displayModeMinimize},
            {TaskModes::hide, m_ui->displayModeHide}};
}

QString MCsTaskDialog::startRecordingMode() const
{
    return checkedValue(startModes());
}

void MCsTaskDialog::setStartRecordingMode(const QString &mode)
{
    checkValue(startModes(), mode);
}

QString MCsTaskDialog::autoStopMode() const
{
    return checkedValue(stopModes());
}

void MCsTaskDialog::setAutoStopMode(const QString &mode)
{
    checkValue(stopModes(), mode);
}

QString MCsTaskDialog::afterStopAction() const
{
    return checkedValue(afterStopActions());
}

void MCsTaskDialog::setAfterStopAction(const QString &action)
{
    checkValue(afterStopActions(), action);
}

QString MCsTaskDialog::displayMode() const
{
    return checkedValue(displayModes());
}

void MCsTaskDialog::setDisplayMode(const QString &mode)
{
    checkValue(displayModes(), mode);
}

QJsonObject MCsTaskDialog::collectTaskDocument() const
{
    QJsonObject document;
    insertText(document, u"name"_s, m_ui->nameEdit);
    document.insert("type"_L1, m_ui->typeCombo->currentData().toString());
    document.insert("enabled"_L1, m_ui->enabledCheck->isChecked());
    document.insert("groupId"_L1, m_ui->groupCombo->currentData().toString());
    insertText(document, u"programName"_s, m_ui->programNameEdit);
    insertText(document, u"targetProgram"_s, m_ui->targetProgramEdit);
    document.insert("paramsJson"_L1, collectParams());
    return document;
}

QJsonObject MCsTaskDialog::collectParams() const
{
    QJsonObject params;
    params.insert("startRecordingOn"_L1, collectStart());
    const QJsonObject actionBefore = collectActionBefore();
    if (!actionBefore.isEmpty())
        params.insert("actionBeforeAutoStart"_L1, actionBefore);
    params.insert("autoStopCondition"_L1, collectAutoStop());
    const QString action = afterStopAction();
    if (action != TaskModes::none)
        params.insert("actionAfterAutoStop"_L1, QJsonObject{{u"action"_s, action}});
    params.insert("outputSettings"_L1, collectOutput());
    params.insert("displayMode"_L1, displayMode());
    if (m_formWidget->hasFields())
        params.insert("dynamicParams"_L1, m_formWidget->collectValues());
    return params;
}

// Only the members of the chosen mode are written; what the widgets of the others hold is dropped.
QJsonObject MCsTaskDialog::collectStart() const
{
    const QString mode = startRecordingMode();
    QJsonObject start{{u"mode"_s, mode}};
    if (mode == TaskModes::specifiedTime) {
        start.insert("specifiedDateTime"_L1, m_ui->specifiedDateTimeEdit->dateTime().toString(Qt::ISODate));
    } else if (mode == TaskModes::everyDay) {
        start.insert("dailyTime"_L1, m_ui->dailyTimeEdit->time().toString(timeFormat));
    } else if (mode == TaskModes::everyWeek) {
        start.insert("weeklyDays"_L1, collectWeekdays());
        start.insert("weeklyTime"_L1, m_ui->weeklyTimeEdit->time().toString(timeFormat));
    } else if (mode == TaskModes::monitorApp) {
        insertText(start, u"monitorProgram"_s, m_ui->monitorProgramEdit);
    } else if (mode == TaskModes::monitorFolder) {
        insertText(start, u"monitorFolderPath"_s, m_ui->monitorFolderPathEdit);
        insertText(start, u"monitorFileExtensions"_s, m_ui->monitorFileExtensionsEdit);
    }
    return start;
}

QJsonArray MCsTaskDialog::collectWeekdays() const
{
    QJsonArray days;
    for (std::size_t day = 0; day < weekdayNames.size(); ++day) {
        if (m_weekdayChecks[day]->isChecked())
            days.append(weekdayNames[day]);
    }
    return days;
}

QJsonObject MCsTaskDialog::collectActionBefore() const
{
    QJsonObject action;
    insertIfNotBlank(action, u"runProgram"_s, m_ui->runProgramEdit);
    insertIfNotBlank(action, u"openUrl"_s, m_ui->openUrlEdit);
    if (m_ui->sleepAfterSecondsSpin->value() > 0)
        action.insert("sleepAfterSeconds"_L1, m_ui->sleepAfterSecondsSpin->value());
    return action;
}

QJsonObject MCsTaskDialog::collectAutoStop() const
{
    const QString mode = autoStopMode();
    QJsonObject stop{{u"mode"_s, mode}};
    if (mode == TaskModes::byDuration)
        stop.insert("durationSeconds"_L1, m_ui->durationMinutesSpin->value() * 60);
    else if (mode == TaskModes::byFileSize)
        stop.insert("fileSizeBytes"_L1, static_cast<double>(m_fileSizeSpin->bytes()));
    else if (mode == TaskModes::atTime)
        stop.insert("stopAtTime"_L1, m_ui->stopAtTimeEdit->dateTime().toString(Qt::ISODate));
    return stop;
}

QJsonObject MCsTaskDialog::collectOutput() const
{
    if (!m_ui->useCustomOutputRadio->isChecked())
        return {{u"mode"_s, TaskModes::useDefaultOutput}};
    QJsonObject output{{u"mode"_s, TaskModes::customOutput}};
    insertText(output, u"customFolder"_s, m_ui->customFolderEdit);
    insertText(output, u"customFileNamePattern"_s, m_ui->customFileNamePatternEdit);
    return output;
}

void MCsTaskDialog::loadTaskParams(const QJsonObject &params)
{
    if (params.contains("startRecordingOn"_L1))
        loadStart(params.value("startRecordingOn"_L1).toObject());
    if (params.contains("actionBeforeAutoStart"_L1))
        loadActionBefore(params.value("actionBeforeAutoStart"_L1).toObject());
    if (params.contains("autoStopCondition"_L1))
        loadAutoStop(params.value("autoStopCondition"_L1).toObject());
    const QJsonObject actionAfter = params.value("actionAfterAutoStop"_L1).toObject();
    if (actionAfter.contains("action"_L1))
        setAfterStopAction(actionAfter.value("action"_L1).toString());
    if (params.contains("outputSettings"_L1))
        loadOutput(params.value("outputSettings"_L1).toObject());
    if (params.contains("displayMode"_L1))
        setDisplayMode(params.value("displayMode"_L1).toString());
    // An empty list of exclusions: what is stored wins over the host's parameter file.
    if (params.contains("dynamicParams"_L1) && m_formWidget->hasFields())
        m_formWidget->applyValues(params.value("dynamicParams"_L1).toObject(), {});
}

void MCsTaskDialog::loadStart(const QJsonObject &start)
{
    const QString mode = start.value("mode"_L1).toString();
    setStartRecordingMode(mode);
    if (mode == TaskModes::specifiedTime) {
        loadDateTime(m_ui->specifiedDateTimeEdit, start.value("specifiedDateTime"_L1));
    } else if (mode == TaskModes::everyDay) {
        loadTime(m_ui->dailyTimeEdit, start.value("dailyTime"_L1));
    } else if (mode == TaskModes::everyWeek) {
        loadWeekly(start);
    } else if (mode == TaskModes::monitorApp) {
        loadText(m_ui->monitorProgramEdit, start, u"monitorProgram"_s);
    } else if (mode == TaskModes::monitorFolder) {
        loadText(m_ui->monitorFolderPathEdit, start, u"monitorFolderPath"_s);
        loadText(m_ui->monitorFileExtensionsEdit, start, u"monitorFileExtensions"_s);
    }
}

void MCsTaskDialog::loadWeekly(const QJsonObject &start)
{
    if (start.contains("weeklyDays"_L1)) {
        const QJsonArray days = start.value("weeklyDays"_L1).toArray();
        for (std::size_t day = 0; day < weekdayNames.size(); ++day)
            m_weekdayChecks[day]->setChecked(days.contains(weekdayNames[day]));
    }
    loadTime(m_ui->weeklyTimeEdit, start.value("weeklyTime"_L1));
}

void MCsTaskDialog::loadActionBefore(const QJsonObject &action)
{
    loadText(m_ui->runProgramEdit, action, u"runProgram"_s);
    loadText(m_ui->openUrlEdit, action, u"openUrl"_s);
    if (action.contains("sleepAfterSeconds"_L1))
        m_ui->sleepAfterSecondsSpin->setValue(action.value("sleepAfterSeconds"_L1).toInt(0));
}

void MCsTaskDialog::loadAutoStop(const QJsonObject &stop)
{
    const QString mode = stop.value("mode"_L1).toString();
    setAutoStopMode(mode);
    if (mode == TaskModes::byDuration && stop.contains("durationSeconds"_L1)) {
        m_ui->durationMinutesSpin->setValue(minutesOf(stop.value("durationSeconds"_L1).toInt()));
    } else if (mode == TaskModes::byFileSize && stop.contains("fileSizeBytes"_L1)) {
        const double size = stop.value("fileSizeBytes"_L1).toDouble(0.0);
        m_fileSizeSpin->setBytes(static_cast<qint64>(std::clamp(size, 0.0, maxFileSize)));
    } else if (mode == TaskModes::atTime && stop.contains("stopAtTime"_L1)) {
        loadDateTime(m_ui->stopAtTimeEdit, stop.value("stopAtTime"_L1));
    }
}

void MCsTaskDialog::loadOutput(const QJsonObject &output)
{
    if (output.value("mode"_L1).toString() != TaskModes::customOutput) {
        m_ui->useDefaultOutputRadio->setChecked(true);
        return;
    }
    m_ui->useCustomOutputRadio->setChecked(true);
    loadText(m_ui->customFolderEdit, output, u"customFolder"_s);
    loadText(m_ui->customFileNamePatternEdit, output, u"customFileNamePattern"_s);
}

} // namespace Scheduler
