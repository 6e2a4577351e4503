#include "mcsmainwindow.h"

#include "groupitem.h"
#include "groupmerge.h"
#include "itemviews.h"
#include "mcsschedulerclient.h"
#include "ui_mcsmainwindow.h"

#include <QHash>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QTreeWidgetItemIterator>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

// Only what is in sight is repainted. Were the item to tell the tree of its change, that would measure it as well.
void showCount(QTreeWidget &tree, QTreeWidgetItem *item, int count)
{
    if (item != nullptr && item->type() == GroupItem::Type && static_cast<GroupItem *>(item)->setTaskCount(count))
        showChange(tree, tree.visualItemRect(item));
}

/// Parents that form a circle would take their items out of the tree altogether.
bool isSelfOrAncestor(const QTreeWidgetItem &candidate, const QTreeWidgetItem *item)
{
    while (item != nullptr && item != &candidate)
        item = item->parent();
    return item != nullptr;
}

} // namespace

void MCsMainWindow::refreshGroupTree()
{
    if (!m_client->isConnected())
        return;
    // The table follows the selection and waits for the daemon, and the user may select again meanwhile. So the
    // selection goes first, and the clearing itself runs no event loop.
    while (!m_ui->groupTree->selectedItems().isEmpty())
        m_ui->groupTree->clearSelection();
    if (!m_client->isConnected())
        return;
    const quint64 refresh = ++m_treeRefresh;
    const quint64 losses = m_losses;
    m_ui->groupTree->clear();
    const QList<GroupInfo> groups = m_client->listGroups();
    // A rebuild that began while this one waited has filled the tree.
    if (refresh == m_treeRefresh && losses == m_losses)
        fillGroupTree(m_client->isAllTypesClient() ? mergedByName(groups) : groups);
}

void MCsMainWindow::fillGroupTree(const QList<GroupInfo> &groups)
{
    QHash<QString, QTreeWidgetItem *> itemsById;
    QList<QTreeWidgetItem *> items;
    for (const GroupInfo &group : groups) {
        items.append(new GroupItem(group));
        itemsById.insert(group.id, items.last());
    }
    // A second pass, so that a child may be listed before its parent. What is no child goes into the tree last and at
    // once, since each change of a tree that is shown costs more than the item.
    QList<QTreeWidgetItem *> topLevel;
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const QString &parentId = groups.at(i).parentId;
        QTreeWidgetItem *parent = parentId.isEmpty() ? nullptr : itemsById.value(parentId);
        if (parent != nullptr && !isSelfOrAncestor(*items.at(i), parent))
            parent->addChild(items.at(i));
        else
            topLevel.append(items.at(i));
    }
    m_ui->groupTree->addTopLevelItems(topLevel);
    m_ui->groupTree->expandAll();
}

void MCsMainWindow::updateGroupTaskCounts()
{
    if (!m_client->isConnected())
        return;
    const quint64 refresh = ++m_countRefresh;
    const quint64 losses = m_losses;
    struct Group {
        QString id;
        QPersistentModelIndex index; ///< invalid once the tree was rebuilt
    };
    QList<Group> groups;
    for (QTreeWidgetItemIterator it(m_ui->groupTree); *it != nullptr; ++it)
        groups.append(
            {(*it)->data(0, MCsGroupTreeWidget::GroupIdRole).toString(), m_ui->groupTree->indexFromItem(*it)});
    for (const Group &group : std::as_const(groups)) {
        const int count = m_client->getTaskCountByGroup(group.id);
        // Counts that were asked for while this one waited are newer, and those of a lost connection are none.
        if (refresh != m_countRefresh || losses != m_losses)
            return;
        // The tree may have been rebuilt while the request waited.
        QTreeWidgetItem *item =
            group.index.isValid() ? m_ui->groupTree->itemFromIndex(group.index) : findGroupItem(group.id);
        showCount(*m_ui->groupTree, item, count);
    }
}

QTreeWidgetItem *MCsMainWindow::findGroupItem(const QString &groupId) const
{
    for (QTreeWidgetItemIterator it(m_ui->groupTree); *it != nullptr; ++it) {
        if ((*it)->data(0, MCsGroupTreeWidget::GroupIdRole).toString() == groupId)
            return *it;
    }
    return nullptr;
}

void MCsMainWindow::onGroupSelectionChanged()
{
    const QList<QTreeWidgetItem *> selected = m_ui->groupTree->selectedItems();
    currentGroupId =
        selected.isEmpty() ? QString() : selected.first()->data(0, MCsGroupTreeWidget::GroupIdRole).toString();
    const bool editable = !selected.isEmpty() && currentGroupId != ungroupedGroupId;
    m_ui->editGroupButton->setEnabled(editable);
    m_ui->deleteGroupButton->setEnabled(editable);
    refreshTaskTable();
}

void MCsMainWindow::onRefreshGroups()
{
    refreshGroupTree();
}

void MCsMainWindow::onGroupExpanded(const QModelIndex & /*index*/) {}

void MCsMainWindow::onGroupCollapsed(const QModelIndex & /*index*/) {}

void MCsMainWindow::showGroupContextMenu(const QPoint &position)
{
    const QTreeWidgetItem *item = m_ui->groupTree->itemAt(position);
    if (item == nullptr)
        return;
    // The press has selected the item, but the table that follows waits for the daemon, and meanwhile another may have
    // been selected. The commands would act on that one.
    const QString groupId = item->data(0, MCsGroupTreeWidget::GroupIdRole).toString();
    if (groupId == ungroupedGroupId || groupId != currentGroupId)
        return;
    groupContextMenu->exec(m_ui->groupTree->viewport()->mapToGlobal(position));
}

} // namespace Scheduler
