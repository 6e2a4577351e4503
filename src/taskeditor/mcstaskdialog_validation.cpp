#include "mcstaskdialog.h"

#include "messagebox.h"
#include "taskmodes.h"
#include "ui_mcstaskdialog.h"

#include <algorithm>

namespace Scheduler {

namespace {

bool isBlank(const QLineEdit *edit)
{
    return edit->text().trimmed().isEmpty();
}

bool isInFuture(const QDateTimeEdit *edit)
{
    return edit->dateTime() > QDateTime::currentDateTime();
}

} // namespace

// A task that is switched off is not examined. The parameter form never is: "required" is a mark there, and no rule.
bool MCsTaskDialog::validateInput()
{
    return !m_ui->enabledCheck->isChecked() || (validateBasics() && validateStart() && validateStop());
}

bool MCsTaskDialog::validateBasics()
{
    if (isBlank(m_ui->nameEdit))
        return reportFault(tr("Task name is required."), m_ui->nameEdit);
    // These two cannot be changed here, so they get no focus.
    if (isBlank(m_ui->programNameEdit))
        return reportFault(tr("Program name is required."));
    if (isBlank(m_ui->targetProgramEdit))
        return reportFault(tr("Target program is required."));
    if (m_ui->typeCombo->currentData().toString().isEmpty())
        return reportFault(tr("Task type is required."), m_ui->typeCombo);
    return true;
}

bool MCsTaskDialog::validateStart()
{
    const QString mode = startRecordingMode();
    if (mode == TaskModes::specifiedTime && !isInFuture(m_ui->specifiedDateTimeEdit))
        return reportFault(tr("Specified date/time must be in the future."), m_ui->specifiedDateTimeEdit);
    if (mode == TaskModes::everyWeek && std::ranges::none_of(m_weekdayChecks, &QCheckBox::isChecked))
        return reportFault(tr("At least one weekday must be selected for EveryWeek mode."));
    if (mode == TaskModes::monitorApp && isBlank(m_ui->monitorProgramEdit))
        return reportFault(tr("Monitor program is required for monitorApp mode."), m_ui->monitorProgramEdit);
    if (mode != TaskModes::monitorFolder)
        return true;
    if (isBlank(m_ui->monitorFolderPathEdit))
        return reportFault(tr("Monitor folder path is required for monitorFolder mode."), m_ui->monitorFolderPathEdit);
    if (isBlank(m_ui->monitorFileExtensionsEdit))
        return reportFault(tr("File extensions are required for monitorFolder mode."), m_ui->monitorFileExtensionsEdit);
    return true;
}

bool MCsTaskDialog::validateStop()
{
    if (autoStopMode() == TaskModes::atTime && !isInFuture(m_ui->stopAtTimeEdit))
        return reportFault(tr("Stop time must be in the future."), m_ui->stopAtTimeEdit);
    return true;
}

// Always false, for the caller to return. The page is not scrolled to the widget.
bool MCsTaskDialog::reportFault(const QString &text, QWidget *focus)
{
    const QPointer<QWidget> target = focus;
    showMessage(this, QMessageBox::Warning, tr("Validation Error"), text);
    if (target != nullptr)
        target->setFocus(Qt::OtherFocusReason);
    return false;
}

} // namespace Scheduler
