#include "itemviews.h"

#include <QAbstractItemView>
#include <QAccessible>

namespace Scheduler {

void showChange(QAbstractItemView &view)
{
    showChange(view, view.viewport()->rect());
}

void showChange(QAbstractItemView &view, const QRect &part)
{
    view.viewport()->update(part);
    if (QAccessible::isActive()) {
        QAccessibleTableModelChangeEvent change(&view, QAccessibleTableModelChangeEvent::DataChanged);
        QAccessible::updateAccessibility(&change);
    }
}

} // namespace Scheduler
