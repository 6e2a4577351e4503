#include "mcsmainwindow.h"

#include "mcsschedulerclient.h"
#include "taskrows.h"
#include "tasktypes.h"
#include "ui_mcsmainwindow.h"

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

/// So long after its time-out a request of the one-second update has surely ended.
constexpr int statusWaitMarginMs = 500;

} // namespace

// The bundle of refreshes that follows most commands.
void MCsMainWindow::refreshAll()
{
    if (!m_client->isConnected())
        return;
    refreshTaskTable();
    updateGroupTaskCounts();
    // The connection may have gone meanwhile, which the log would report with a box.
    if (m_client->isConnected())
        refreshAuditLog();
}

void MCsMainWindow::onRefreshTaskList()
{
    refreshAll();
}

void MCsMainWindow::onFilterByType(const QString & /*type*/)
{
    refreshTaskTable();
}

void MCsMainWindow::refreshTaskTable()
{
    if (!m_client->isConnected())
        return;
    const quint64 refresh = ++m_tableRefresh;
    const quint64 losses = m_losses;
    const QList<TaskInfo> tasks = listShownTasks();
    // Another refresh may have run while this one waited; what it filled in is newer, perhaps of another group. And
    // rows stay as they are when the connection is lost.
    if (refresh != m_tableRefresh || losses != m_losses)
        return;
    fillTaskRows(*m_ui->taskTable, tasks);
    updateTaskCountLabel();
}

QList<TaskInfo> MCsMainWindow::listShownTasks()
{
    const QString filterText = m_ui->typeFilterCombo->currentText();
    const bool allTypes = filterText == allTypesText;
    if (currentGroupId.isEmpty())
        return m_client->listTasksByType(allTypes ? allTaskTypesId.toString() : filterText);
    QList<TaskInfo> tasks = m_client->listTasksByGroup(currentGroupId);
    if (!allTypes)
        tasks.removeIf([&filterText](const TaskInfo &task) { return task.type != filterText; });
    return tasks;
}

void MCsMainWindow::updateTaskCountLabel()
{
    QString text = tr("Tasks: %1").arg(m_ui->taskTable->rowCount());
    const QTreeWidgetItem *group = m_ui->groupTree->currentItem();
    if (!currentGroupId.isEmpty() && group != nullptr)
        text += tr(" (in %1)").arg(MCsGroupTreeWidget::plainName(*group));
    m_ui->taskCountLabel->setText(text);
}

void MCsMainWindow::onUpdateTaskStatus()
{
    // A daemon that does not answer must not pile waits upon waits. A dialog that was opened inside a wait keeps that
    // tick from returning, though its request has long ended; the statuses go on under the dialog.
    if (!m_client->isConnected() || !m_statusWait.hasExpired())
        return;
    m_statusWait.setRemainingTime(m_client->commandTimeout() + statusWaitMarginMs);
    refreshTaskStatuses();
    m_statusWait.setRemainingTime(0);
}

void MCsMainWindow::refreshTaskStatuses()
{
    if (hasNoTaskRows(*m_ui->taskTable))
        return;
    const quint64 tick = ++m_statusTick;
    const quint64 refresh = m_tableRefresh;
    const QList<TaskInfo> tasks = m_client->listTasks();
    // What a refresh or a later tick has written while this one waited is newer.
    if (tick == m_statusTick && refresh == m_tableRefresh)
        updateTaskRows(*m_ui->taskTable, tasks);
}

void MCsMainWindow::refreshTypeFilter()
{
    QComboBox *filter = m_ui->typeFilterCombo;
    const quint64 losses = m_losses;
    filter->clear();
    filter->addItem(allTypesText, QVariant());
    const QList<TaskTypeInfo> types = m_client->listTaskTypes();
    if (losses != m_losses)
        return;
    // A refill that ran while this one waited has added its items.
    while (filter->count() > 1)
        filter->removeItem(filter->count() - 1);
    for (const TaskTypeInfo &type : types) {
        if (m_client->isAllTypesClient() || type.type == m_client->clientType())
            filter->addItem(type.name, type.type);
    }
}

void MCsMainWindow::onTaskSelectionChanged()
{
    const bool selected = !m_ui->taskTable->selectedItems().isEmpty();
    m_ui->editButton->setEnabled(selected);
    m_ui->deleteButton->setEnabled(selected);
    m_ui->triggerButton->setEnabled(selected);
}

} // namespace Scheduler
