#include "mcsmainwindow.h"

#include "mcsschedulerclient.h"
#include "ui_mcsmainwindow.h"

namespace Scheduler {

void MCsMainWindow::onTasksDroppedOnGroup(const QStringList &taskIds, const QString &groupId)
{
    if (taskIds.isEmpty())
        return;
    const QTreeWidgetItem *group = findGroupItem(groupId);
    const QString name = group == nullptr ? groupId : MCsGroupTreeWidget::plainName(*group);
    const bool single = taskIds.size() == 1;
    const bool moved = single ? m_client->moveTaskToGroup(taskIds.first(), groupId)
                              : m_client->batchMoveTasksToGroup(taskIds, groupId);
    const QString failure =
        single ? tr("Failed to move task to group '%1'.").arg(name)
               : tr("Failed to move %1 tasks to group '%2'.").arg(QString::number(taskIds.size()), name);
    finishCommand(moved, &MCsMainWindow::refreshAfterDrop, tr("Error"), failure);
}

void MCsMainWindow::onTaskDroppedOnGroup(const QString &taskId, const QString &groupId)
{
    finishCommand(m_client->moveTaskToGroup(taskId, groupId), &MCsMainWindow::refreshAfterDrop, tr("Error"),
                  tr("Failed to move task to group."));
}

void MCsMainWindow::refreshAfterDrop()
{
    refreshAll();
    updateGroupTaskCounts();
}

} // namespace Scheduler
