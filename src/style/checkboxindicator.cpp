#include "checkboxindicator.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace Scheduler {

namespace {

constexpr qreal boxRadius = 3.0;
constexpr qreal borderWidth = 1.0;
constexpr qreal tickWidth = 2.0;
constexpr qreal barRadius = 1.0;

/// A point of the box, given in parts of its width and height.
QPointF pointAt(const QRectF &box, qreal x, qreal y)
{
    return {box.left() + x * box.width(), box.top() + y * box.height()};
}

void drawTick(QPainter *painter, const QRectF &box, const QColor &color)
{
    QPainterPath tick(pointAt(box, 0.22, 0.55));
    tick.lineTo(pointAt(box, 0.43, 0.74));
    tick.lineTo(pointAt(box, 0.78, 0.30));
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, tickWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(tick);
}

void drawBar(QPainter *painter, const QRectF &box, const QColor &color)
{
    const QRectF bar(pointAt(box, 0.22, 0.43), QSizeF(0.56 * box.width(), 0.16 * box.height()));
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(bar, barRadius, barRadius);
}

} // namespace

CheckBoxColors checkBoxColors(QStyle::State state)
{
    const bool marked = state.testFlag(QStyle::State_On) || state.testFlag(QStyle::State_NoChange);
    if (!state.testFlag(QStyle::State_Enabled)) {
        return marked ? CheckBoxColors{QColor(0xb6c6da), QColor(0x9db7df), QColor(0xf5f7fa)}
                      : CheckBoxColors{QColor(0xc7ccd3), QColor(0xf3f4f6), QColor(0xf5f7fa)};
    }
    if (marked) {
        const QColor blue(state.testFlag(QStyle::State_Sunken) ? 0x2b6cb0 : 0x4a90e2);
        return {blue, blue, QColor(Qt::white)};
    }
    return state.testFlag(QStyle::State_MouseOver)
               ? CheckBoxColors{QColor(0x6a7480), QColor(0xf9fafb), QColor(Qt::white)}
               : CheckBoxColors{QColor(0x8f99a3), QColor(Qt::white), QColor(Qt::white)};
}

void drawCheckBoxIndicator(QPainter *painter, const QRectF &rect, QStyle::State state)
{
    const QRectF box = rect.adjusted(1, 1, -1, -1);
    const CheckBoxColors colors = checkBoxColors(state);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colors.border, borderWidth));
    painter->setBrush(colors.fill);
    painter->drawRoundedRect(box, boxRadius, boxRadius);
    if (state.testFlag(QStyle::State_On))
        drawTick(painter, box, colors.mark);
    else if (state.testFlag(QStyle::State_NoChange))
        drawBar(painter, box, colors.mark);
    painter->restore();
}

} // namespace Scheduler
