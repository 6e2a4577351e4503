#include "taskcell.h"

#include "tasktypes.h"

#include <QBrush>

namespace Scheduler {

TaskCell::TaskCell(const Row &row, TaskColumn column)
    : QTableWidgetItem(Type)
    , m_row(row)
    , m_column(column)
{
}

QVariant TaskCell::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return shownText();
    case Qt::ForegroundRole:
        return foreground();
    case Qt::ToolTipRole: // the last column may be too narrow for a status with its details
        return m_column == LastRunColumn ? shownText() : QVariant();
    case Qt::UserRole:
        return m_column == NameColumn ? m_row->id : QVariant();
    default:
        return QTableWidgetItem::data(role);
    }
}

QString TaskCell::shownText() const
{
    switch (m_column) {
    case NameColumn:
        return m_row->name;
    case TypeColumn:
        return taskTypeDisplayName(m_row->type);
    case StatusColumn:
        return enabledText(m_row->enabled);
    case NextRunColumn:
        return formatNextRun(m_row->nextRun);
    case LastRunColumn:
        return formatRunStatus(m_row->lastRunStatus);
    case TaskColumnCount:
        break;
    }
    return {};
}

QVariant TaskCell::foreground() const
{
    if (m_column == StatusColumn)
        return QBrush(enabledColor(m_row->enabled));
    if (m_column == LastRunColumn)
        return QBrush(runStatusColor(m_row->lastRunStatus));
    return {};
}

} // namespace Scheduler
