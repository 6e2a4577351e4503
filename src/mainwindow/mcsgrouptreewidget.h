#pragma once

#include <QPersistentModelIndex>
#include <QStringList>
#include <QTreeWidget>

namespace Scheduler {

/// The tree of groups, which takes tasks dropped on a group.
class MCsGroupTreeWidget : public QTreeWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsGroupTreeWidget)

public:
    /// What an item holds in its column.
    enum Role : int {
        GroupIdRole = Qt::UserRole,
        GroupTaskCountRole = Qt::UserRole + 1,
        GroupNameRole = Qt::UserRole + 2 ///< the plain name; the item's text carries the count behind it
    };

    explicit MCsGroupTreeWidget(QWidget *parent = nullptr);

    /// The name of an item's group, without the count that its text carries.
    [[nodiscard]] static QString plainName(const QTreeWidgetItem &item);

signals:
    void taskDropped(const QStringList &taskIds, const QString &groupId);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void clearHighlight();

    /// The group under the drag. The tree may be rebuilt during a drag, so no item is held.
    QPersistentModelIndex highlightedItem;
};

} // namespace Scheduler
