#include "mcsmainwindow.h"

#include "mcsgroupdialog.h"
#include "mcsschedulerclient.h"
#include "mcstaskdialog.h"
#include "messagebox.h"
#include "taskcell.h"
#include "tasktexts.h"
#include "tasktypes.h"
#include "ui_mcsmainwindow.h"

#include <QScopedValueRollback>
#include <QTimer>

#include <optional>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int refreshAfterTriggerMs = 500;

/// What a task command needs of the selected row. Read before the daemon is asked, since rows may change meanwhile.
struct SelectedTask {
    QString id;
    QString name;
    QString statusText;
};

std::optional<SelectedTask> selectedTask(const QTableWidget &table)
{
    const QList<QTableWidgetItem *> selected = table.selectedItems();
    if (selected.isEmpty())
        return std::nullopt;
    const int row = selected.first()->row();
    const QTableWidgetItem *name = table.item(row, NameColumn);
    const QTableWidgetItem *status = table.item(row, StatusColumn);
    if (name == nullptr)
        return std::nullopt;
    return SelectedTask{name->data(Qt::UserRole).toString(), name->text(),
                        status == nullptr ? QString() : status->text()};
}

} // namespace

// After a success a refresh, after a failure a box and nothing else. A window that was closed while the command waited
// has nobody left to tell.
void MCsMainWindow::finishCommand(bool succeeded, void (MCsMainWindow::*refresh)(), const QString &failureTitle,
                                  const QString &failureText)
{
    if (succeeded)
        (this->*refresh)();
    else if (m_state != ConnectionState::Closing)
        showMessage(this, QMessageBox::Critical, failureTitle, failureText);
}

// The daemon takes a moment to start what was triggered.
void MCsMainWindow::refreshAfterTrigger()
{
    QTimer::singleShot(refreshAfterTriggerMs, this, &MCsMainWindow::onRefreshTaskList);
}

// True when the dialog was accepted and the window is still there. Disposes of the dialog, which may go along with the
// window while it is up. It is not shown if the window was closed while its constructor waited for the daemon.
bool MCsMainWindow::runDialog(QDialog *dialog)
{
    const QPointer<MCsMainWindow> self(this);
    const QPointer<QDialog> guard(dialog);
    const bool accepted = m_state != ConnectionState::Closing && dialog->exec() == QDialog::Accepted;
    if (guard != nullptr)
        guard->deleteLater();
    return accepted && self != nullptr;
}

void MCsMainWindow::onCreateTask()
{
    const QTreeWidgetItem *current = m_ui->groupTree->currentItem();
    const QString groupId =
        current == nullptr ? QString() : current->data(0, MCsGroupTreeWidget::GroupIdRole).toString();
    showTaskDialog(QString(), groupId == ungroupedGroupId ? QString() : groupId);
}

void MCsMainWindow::onEditTask()
{
    const std::optional<SelectedTask> task = selectedTask(*m_ui->taskTable);
    if (!task) {
        showMessage(this, QMessageBox::Warning, tr("No Selection"), tr("Please select a task to edit."));
        return;
    }
    showTaskDialog(task->id, QString());
}

void MCsMainWindow::showTaskDialog(const QString &taskId, const QString &groupId)
{
    if (m_openingDialog)
        return;
    MCsTaskDialog *dialog = nullptr;
    {
        const QScopedValueRollback opening(m_openingDialog, true);
        dialog =
            new MCsTaskDialog(m_client, taskId, m_programName, m_programPath, m_programParametersJson, groupId, this);
    }
    if (runDialog(dialog))
        refreshAll();
}

void MCsMainWindow::onDeleteTask()
{
    const std::optional<SelectedTask> task = selectedTask(*m_ui->taskTable);
    if (!task) {
        showMessage(this, QMessageBox::Warning, tr("No Selection"), tr("Please select a task to delete."));
        return;
    }
    if (!askYesNo(this, tr("Confirm Delete"), tr("Are you sure you want to delete task '%1'?").arg(task->name)))
        return;
    finishCommand(m_client->deleteTask(task->id), &MCsMainWindow::refreshAll, tr("Delete Error"),
                  tr("Failed to delete task."));
}

void MCsMainWindow::onToggleTaskEnabled()
{
    const std::optional<SelectedTask> task = selectedTask(*m_ui->taskTable);
    if (!task)
        return;
    const bool enabled = task->statusText == enabledText(true);
    finishCommand(enabled ? m_client->disableTask(task->id) : m_client->enableTask(task->id),
                  &MCsMainWindow::refreshAll, tr("Toggle Error"), tr("Failed to toggle task status."));
}

void MCsMainWindow::onTriggerTask()
{
    const std::optional<SelectedTask> task = selectedTask(*m_ui->taskTable);
    if (!task) {
        showMessage(this, QMessageBox::Warning, tr("No Selection"), tr("Please select a task to trigger."));
        return;
    }
    finishCommand(m_client->triggerTask(task->id), &MCsMainWindow::refreshAfterTrigger, tr("Trigger Error"),
                  tr("Failed to trigger task."));
}

void MCsMainWindow::onCreateGroup()
{
    showGroupDialog(QString());
}

void MCsMainWindow::onEditGroup()
{
    const QList<QTreeWidgetItem *> selected = m_ui->groupTree->selectedItems();
    if (selected.isEmpty()) {
        showMessage(this, QMessageBox::Warning, tr("No Selection"), tr("Please select a group to edit."));
        return;
    }
    const QString groupId = selected.first()->data(0, MCsGroupTreeWidget::GroupIdRole).toString();
    if (groupId == ungroupedGroupId) {
        showMessage(this, QMessageBox::Warning, tr("Cannot Edit"), tr("The 'Ungrouped' group cannot be edited."));
        return;
    }
    showGroupDialog(groupId);
}

// The type of a new group; nothing after a box where it cannot be told.
std::optional<QString> MCsMainWindow::newGroupTaskType()
{
    if (!m_client->isAllTypesClient())
        return m_client->clientType();
    const QComboBox *filter = m_ui->typeFilterCombo;
    if (filter->currentText() == allTypesText) {
        showMessage(this, QMessageBox::Warning, tr("Select Type"),
                    tr("Please select a specific task type from the filter before creating a group."));
        return std::nullopt;
    }
    const QString type = filter->currentData().toString();
    return type.isEmpty() ? filter->currentText() : type;
}

void MCsMainWindow::showGroupDialog(const QString &groupId)
{
    if (m_openingDialog)
        return;
    // An edited group brings its own type.
    const std::optional<QString> taskType = groupId.isEmpty() ? newGroupTaskType() : QString();
    if (!taskType)
        return;
    MCsGroupDialog *dialog = nullptr;
    {
        const QScopedValueRollback opening(m_openingDialog, true);
        dialog = new MCsGroupDialog(m_client, groupId, *taskType, this);
    }
    if (!runDialog(dialog))
        return;
    refreshGroupTree();
    refreshAll();
}

void MCsMainWindow::onDeleteGroup()
{
    const QList<QTreeWidgetItem *> selected = m_ui->groupTree->selectedItems();
    if (selected.isEmpty()) {
        showMessage(this, QMessageBox::Warning, tr("No Selection"), tr("Please select a group to delete."));
        return;
    }
    const QString groupId = selected.first()->data(0, MCsGroupTreeWidget::GroupIdRole).toString();
    if (groupId == ungroupedGroupId) {
        showMessage(this, QMessageBox::Warning, tr("Cannot Delete"), tr("The 'Ungrouped' group cannot be deleted."));
        return;
    }
    // The whole text of the item, so that the question tells the number of tasks.
    const QString question =
        tr("Are you sure you want to delete group '%1'?\nTasks in this group will be moved to 'Ungrouped'.")
            .arg(selected.first()->text(0));
    if (!askYesNo(this, tr("Confirm Delete"), question))
        return;
    finishCommand(m_client->deleteGroup(groupId, false), &MCsMainWindow::refreshAfterGroupDeletion, tr("Delete Error"),
                  tr("Failed to delete group."));
}

void MCsMainWindow::refreshAfterGroupDeletion()
{
    refreshGroupTree();
    onRefreshTaskList();
}

void MCsMainWindow::onEnableAllTasksInGroup()
{
    if (currentGroupId.isEmpty())
        return;
    finishCommand(m_client->enableAllTasksInGroup(currentGroupId), &MCsMainWindow::refreshAll, tr("Error"),
                  tr("Failed to enable all tasks in group."));
}

void MCsMainWindow::onDisableAllTasksInGroup()
{
    if (currentGroupId.isEmpty())
        return;
    finishCommand(m_client->disableAllTasksInGroup(currentGroupId), &MCsMainWindow::refreshAll, tr("Error"),
                  tr("Failed to disable all tasks in group."));
}

void MCsMainWindow::onTriggerAllTasksInGroup()
{
    if (currentGroupId.isEmpty())
        return;
    finishCommand(m_client->triggerAllTasksInGroup(currentGroupId), &MCsMainWindow::refreshAfterTrigger, tr("Error"),
                  tr("Failed to trigger all tasks in group."));
}

void MCsMainWindow::onDeleteAllTasksInGroup()
{
    const QString groupId = currentGroupId; // another may be selected by the time the question is answered
    if (groupId.isEmpty())
        return;
    if (!askYesNo(this, tr("Confirm Delete"), tr("Are you sure you want to delete all tasks in this group?")))
        return;
    finishCommand(m_client->deleteAllTasksInGroup(groupId), &MCsMainWindow::onRefreshTaskList, tr("Error"),
                  tr("Failed to delete all tasks in group."));
}

} // namespace Scheduler
