#include "groupitem.h"

#include "mcsgrouptreewidget.h"
#include "mcsmainwindow.h"

#include <utility>

namespace Scheduler {

namespace {

constexpr int tintAlpha = 30;

QColor colorOf(const QString &name)
{
    // Asked first, since QColor warns of a name that it does not know.
    return QColor::isValidColorName(name) ? QColor(name) : QColor();
}

QBrush tint(QColor color)
{
    color.setAlpha(tintAlpha);
    return color;
}

} // namespace

GroupItem::GroupItem(const GroupInfo &group)
    : QTreeWidgetItem(Type)
    , m_id(group.id)
    , m_name(group.name)
    , m_color(colorOf(group.color))
    , m_taskCount(group.taskCount)
    , m_tinted(m_color.isValid())
{
}

bool GroupItem::setTaskCount(int count)
{
    return std::exchange(m_taskCount, count) != count;
}

QVariant GroupItem::data(int column, int role) const
{
    if (column != 0)
        return QTreeWidgetItem::data(column, role);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return MCsMainWindow::tr("%1 (%2)").arg(m_name, QString::number(m_taskCount));
    case Qt::ForegroundRole:
        return m_color.isValid() ? QBrush(m_color) : QVariant();
    case Qt::BackgroundRole:
        return m_tinted ? tint(m_color) : QTreeWidgetItem::data(column, role);
    case MCsGroupTreeWidget::GroupIdRole:
        return m_id;
    case MCsGroupTreeWidget::GroupTaskCountRole:
        return m_taskCount;
    case MCsGroupTreeWidget::GroupNameRole:
        return m_name;
    default:
        return QTreeWidgetItem::data(column, role);
    }
}

void GroupItem::setData(int column, int role, const QVariant &value)
{
    if (column == 0 && role == Qt::BackgroundRole)
        m_tinted = false;
    QTreeWidgetItem::setData(column, role, value);
}

} // namespace Scheduler
