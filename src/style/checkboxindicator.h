#pragma once

#include <QColor>
#include <QRectF>
#include <QStyle>

class QPainter;

namespace Scheduler {

/// What the box of a check box is drawn with.
struct CheckBoxColors {
    QColor border;
    QColor fill;
    QColor mark;
};

/// The colours for a style state: enabled, on or partial, under the mouse, pressed.
[[nodiscard]] CheckBoxColors checkBoxColors(QStyle::State state);

/// Draws the whole indicator into the rectangle: the box, and the tick or the bar of the partial state. Leaves the
/// painter as it was.
void drawCheckBoxIndicator(QPainter *painter, const QRectF &rect, QStyle::State state);

} // namespace Scheduler
