#pragma once

#include "records.h"

#include <QBrush>
#include <QColor>
#include <QTreeWidgetItem>

namespace Scheduler {

/// A group in the tree: its name with the number of its tasks behind it, in the group's colour on a light tint of it.
///
/// Text and colours are made when they are painted, and not kept in the lists of roles and values of QTreeWidgetItem:
/// that halves the cost of a tree with thousands of groups. Of the item's setters only that of the background counts.
class GroupItem : public QTreeWidgetItem {
public:
    static constexpr int Type = QTreeWidgetItem::UserType + 1;

    explicit GroupItem(const GroupInfo &group);

    /// Tells nobody: whoever counts repaints the view when all is counted. True when the number was another.
    bool setTaskCount(int count);

    [[nodiscard]] QVariant data(int column, int role) const override;
    /// A background takes the place of the tint for good.
    void setData(int column, int role, const QVariant &value) override;

private:
    QString m_id;
    QString m_name;
    QColor m_color; ///< invalid when the group has none
    int m_taskCount;
    bool m_tinted;
};

} // namespace Scheduler
