#include "spinboxparts.h"

#include <QColor>
#include <QPainter>

#include <algorithm>

namespace Scheduler {

namespace {

constexpr int minButtonWidth = 18;
constexpr int maxButtonWidth = 22;
constexpr int enabledGrey = 45;
constexpr int disabledGrey = 160;

} // namespace

SpinBoxParts spinBoxParts(const QRect &rect, int frameWidth)
{
    const int innerHeight = rect.height() - 2 * frameWidth;
    const int buttonWidth = std::clamp(innerHeight, minButtonWidth, maxButtonWidth);
    const int columnHeight = std::max(innerHeight, 0);
    const int upHeight = columnHeight / 2;
    const int top = rect.top() + frameWidth;
    const int buttonLeft = rect.right() - frameWidth - buttonWidth + 1;
    const int editWidth = std::max(0, rect.width() - 3 * frameWidth - buttonWidth);
    return {QRect(buttonLeft, top, buttonWidth, upHeight),
            QRect(buttonLeft, top + upHeight, buttonWidth, columnHeight - upHeight),
            QRect(rect.left() + frameWidth, top, editWidth, columnHeight)};
}

QPolygon spinArrow(const QRect &rect, SpinDirection direction)
{
    const QRect box = rect.adjusted(3, 3, -3, -3);
    const QPoint center = box.center();
    const int halfWidth = std::max(box.width() / 4, 3);
    const int halfHeight = std::max(box.height() / 5, 2);
    const int tip = direction == SpinDirection::Up ? -halfHeight : halfHeight;
    return {{center + QPoint(0, tip), center + QPoint(-halfWidth, -tip), center + QPoint(halfWidth, -tip)}};
}

void drawSpinArrow(QPainter *painter, const QRect &rect, SpinDirection direction, QStyle::State state)
{
    const int grey = state.testFlag(QStyle::State_Enabled) ? enabledGrey : disabledGrey;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(grey, grey, grey));
    painter->drawPolygon(spinArrow(rect, direction), Qt::OddEvenFill);
    painter->restore();
}

} // namespace Scheduler
