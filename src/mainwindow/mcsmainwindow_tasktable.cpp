#include "mcsmainwindow.h"

#include "mcsschedulerclient.h"
#include "tasktexts.h"
#include "tasktypes.h"
#include "ui_mcsmainwindow.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

/// A request of the one-second update has surely ended by then.
constexpr int statusWaitMs = MCsSchedulerClient::commandTimeoutMs + 500;

enum Column : int { NameColumn, TypeColumn, StatusColumn, NextRunColumn, LastRunColumn };

// Every change of an item makes its view lay out and repaint the cell, so that what stands is left alone.
void setText(QTableWidgetItem &item, const QString &text)
{
    if (item.text() != text)
        item.setText(text);
}

void setColor(QTableWidgetItem &item, const QColor &color)
{
    if (const QBrush brush(color); item.foreground() != brush)
        item.setForeground(brush);
}

void setTip(QTableWidgetItem &item, const QString &text)
{
    if (item.toolTip() != text)
        item.setToolTip(text);
}

QHash<QString, int> rowsById(const QTableWidget &table)
{
    QHash<QString, int> rows;
    rows.reserve(table.rowCount());
    for (int row = 0; row < table.rowCount(); ++row) {
        if (const QTableWidgetItem *item = table.item(row, NameColumn); item != nullptr)
            rows.insert(item->data(Qt::UserRole).toString(), row);
    }
    return rows;
}

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
    if (refresh == m_tableRefresh && losses == m_losses)
        fillTaskTable(tasks);
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

void MCsMainWindow::fillTaskTable(const QList<TaskInfo> &tasks)
{
    const int count = static_cast<int>(tasks.size());
    m_ui->taskTable->setRowCount(count);
    for (int row = 0; row < count; ++row)
        fillTaskRow(row, tasks.at(row));
    updateTaskCountLabel();
}

void MCsMainWindow::fillTaskRow(int row, const TaskInfo &task)
{
    auto *name = new QTableWidgetItem(task.name);
    name->setData(Qt::UserRole, task.id);
    auto *status = new QTableWidgetItem(enabledText(task.enabled));
    status->setForeground(enabledColor(task.enabled));
    auto *lastRun = new QTableWidgetItem(task.lastRunStatus);
    lastRun->setForeground(runStatusColor(task.lastRunStatus));
    lastRun->setText(formatRunStatus(task.lastRunStatus));
    lastRun->setToolTip(lastRun->text());

    QTableWidget *table = m_ui->taskTable;
    table->setItem(row, NameColumn, name);
    table->setItem(row, TypeColumn, new QTableWidgetItem(taskTypeDisplayName(task.type)));
    table->setItem(row, StatusColumn, status);
    table->setItem(row, NextRunColumn, new QTableWidgetItem(formatNextRun(task.nextRunAt)));
    table->setItem(row, LastRunColumn, lastRun);
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
    m_statusWait.setRemainingTime(statusWaitMs);
    refreshTaskStatuses();
    m_statusWait.setRemainingTime(0);
}

void MCsMainWindow::refreshTaskStatuses()
{
    if (rowsById(*m_ui->taskTable).isEmpty())
        return;
    const quint64 tick = ++m_statusTick;
    const quint64 refresh = m_tableRefresh;
    const QList<TaskInfo> tasks = m_client->listTasks();
    // What a refresh or a later tick has written while this one waited is newer.
    if (tick != m_statusTick || refresh != m_tableRefresh)
        return;
    const QHash<QString, int> rows = rowsById(*m_ui->taskTable);
    for (const TaskInfo &task : tasks) {
        if (const auto row = rows.constFind(task.id); row != rows.constEnd())
            updateTaskRow(*row, task);
    }
}

void MCsMainWindow::updateTaskRow(int row, const TaskInfo &task)
{
    const QTableWidget *table = m_ui->taskTable;
    if (QTableWidgetItem *status = table->item(row, StatusColumn); status != nullptr) {
        setText(*status, enabledText(task.enabled));
        setColor(*status, enabledColor(task.enabled));
    }
    if (QTableWidgetItem *nextRun = table->item(row, NextRunColumn); nextRun != nullptr)
        setText(*nextRun, formatNextRun(task.nextRunAt));
    if (QTableWidgetItem *lastRun = table->item(row, LastRunColumn); lastRun != nullptr) {
        const QString text = formatRunStatus(task.lastRunStatus);
        setColor(*lastRun, runStatusColor(task.lastRunStatus));
        setText(*lastRun, text);
        setTip(*lastRun, text);
    }
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

QString MCsMainWindow::formatNextRun(const QDateTime &when) const
{
    return nextRunText(when, QDateTime::currentDateTime());
}

QString MCsMainWindow::formatRunStatus(const QString &status) const
{
    return lastRunText(status);
}

QColor MCsMainWindow::runStatusColor(const QString &status) const
{
    return lastRunColor(status);
}

} // namespace Scheduler
