#include "plaintooltipdelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace Scheduler {

bool PlainToolTipDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                                     const QModelIndex &index)
{
    const QString text = index.data(Qt::ToolTipRole).toString();
    if (event == nullptr || view == nullptr || event->type() != QEvent::ToolTip || !Qt::mightBeRichText(text))
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal), view,
                       view->visualRect(index));
    return true;
}

} // namespace Scheduler
