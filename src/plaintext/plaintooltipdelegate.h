#pragma once

#include <QStyledItemDelegate>

namespace Scheduler {

/// Shows the tool tips of a view's items as plain text. Qt guesses at rich text otherwise, and texts of the daemon
/// must not be taken for markup.
class PlainToolTipDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

} // namespace Scheduler
