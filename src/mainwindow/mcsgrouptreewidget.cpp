#include "mcsgrouptreewidget.h"

#include "taskdragmime.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>

using namespace Qt::StringLiterals;

namespace Scheduler {

MCsGroupTreeWidget::MCsGroupTreeWidget(QWidget *parent)
    : QTreeWidget(parent)
{
}

QString MCsGroupTreeWidget::plainName(const QTreeWidgetItem &item)
{
    const QString name = item.data(0, GroupNameRole).toString();
    return name.isEmpty() ? item.text(0).section(u" ("_s, 0, 0) : name;
}

void MCsGroupTreeWidget::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(TaskDragMime::format))
        event->acceptProposedAction();
    else
        event->ignore();
}

void MCsGroupTreeWidget::dragMoveEvent(QDragMoveEvent *event)
{
    if (!event->mimeData()->hasFormat(TaskDragMime::format)) {
        event->ignore();
        return;
    }
    const QModelIndex index = indexAt(event->position().toPoint());
    QTreeWidgetItem *item = itemFromIndex(index);
    if (highlightedItem != index)
        clearHighlight();
    if (item == nullptr) {
        event->ignore();
        return;
    }
    item->setBackground(0, QColor(100, 150, 255, 80));
    highlightedItem = index.siblingAtColumn(0);
    event->acceptProposedAction();
}

void MCsGroupTreeWidget::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    clearHighlight();
}

void MCsGroupTreeWidget::dropEvent(QDropEvent *event)
{
    if (!event->mimeData()->hasFormat(TaskDragMime::format)) {
        event->ignore();
        return;
    }
    const QTreeWidgetItem *item = itemAt(event->position().toPoint());
    clearHighlight();
    if (item == nullptr) {
        event->ignore();
        return;
    }
    const QString groupId = item->data(0, GroupIdRole).toString();
    const QStringList taskIds = TaskDragMime::toTaskIds(*event->mimeData());
    if (taskIds.isEmpty()) {
        event->ignore();
        return;
    }
    // The slots ask the daemon, and the event may not outlive that.
    event->acceptProposedAction();
    emit taskDropped(taskIds, groupId);
}

// The group's own tint is not put back: it returns with the next rebuild of the tree.
void MCsGroupTreeWidget::clearHighlight()
{
    if (QTreeWidgetItem *item = itemFromIndex(highlightedItem); item != nullptr)
        item->setBackground(0, QBrush());
    highlightedItem = QPersistentModelIndex();
}

} // namespace Scheduler
