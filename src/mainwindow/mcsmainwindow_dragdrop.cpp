#include "mcsmainwindow.h"

#include "mcsschedulerclient.h"
#include "messagebox.h"
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
    if (!moved) {
        showMessage(this, QMessageBox::Critical, tr("Error"),
                    single ? tr("Failed to move task to group '%1'.").arg(name)
                           : tr("Failed to move %1 tasks to group '%2'.").arg(QString::number(taskIds.size()), name));
        return;
    }
    refreshAll();
    updateGroupTaskCounts();
}

void MCsMainWindow::onTaskDroppedOnGroup(const QString &taskId, const QString &groupId)
{
    if (!m_client->moveTaskToGroup(taskId, groupId)) {
        showMessage(this, QMessageBox::Critical, tr("Error"), tr("Failed to move task to group."));
        return;
    }
    refreshAll();
    updateGroupTaskCounts();
}

} // namespace Scheduler
