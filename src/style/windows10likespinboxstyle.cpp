#include "windows10likespinboxstyle.h"

#include "spinboxparts.h"

#include <QStyleOption>

namespace Scheduler {

void Windows10LikeSpinBoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                              const QWidget *widget) const
{
    const bool isArrow = element == PE_IndicatorSpinUp || element == PE_IndicatorSpinDown;
    if (isArrow && option != nullptr && painter != nullptr) {
        const SpinDirection direction = element == PE_IndicatorSpinUp ? SpinDirection::Up : SpinDirection::Down;
        drawSpinArrow(painter, option->rect, direction, option->state);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

QRect Windows10LikeSpinBoxStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                                SubControl subControl, const QWidget *widget) const
{
    if (control != CC_SpinBox || option == nullptr)
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    const int frameWidth = QProxyStyle::pixelMetric(PM_DefaultFrameWidth, option, widget);
    const SpinBoxParts parts = spinBoxParts(option->rect, frameWidth);
    switch (subControl) {
    case SC_SpinBoxUp:
        return visualRect(option->direction, option->rect, parts.up);
    case SC_SpinBoxDown:
        return visualRect(option->direction, option->rect, parts.down);
    case SC_SpinBoxEditField:
        return visualRect(option->direction, option->rect, parts.editField);
    default:
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
}

} // namespace Scheduler
