#pragma once

#include <QPolygon>
#include <QRect>
#include <QStyle>

class QPainter;

namespace Scheduler {

enum class SpinDirection { Up, Down };

/// Where a part of a spin box lies. Heights and widths are never negative, however little room there is.
struct SpinBoxParts {
    QRect up;
    QRect down;
    QRect editField;
};

/// Parts of a spin box that fills the rectangle and has a frame of the given width, in pixels. The two buttons share a
/// column at the right, 18 to 22 wide.
[[nodiscard]] SpinBoxParts spinBoxParts(const QRect &rect, int frameWidth);

/// The triangle of a spin button that fills the rectangle.
[[nodiscard]] QPolygon spinArrow(const QRect &rect, SpinDirection direction);

/// Draws the triangle, dark when the state is enabled. Leaves the painter as it was.
void drawSpinArrow(QPainter *painter, const QRect &rect, SpinDirection direction, QStyle::State state);

} // namespace Scheduler
