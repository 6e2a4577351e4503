#include "windows10likecheckboxstyle.h"

#include "checkboxindicator.h"

#include <QStyleOption>

namespace Scheduler {

namespace {

constexpr int indicatorSize = 16;

} // namespace

void Windows10LikeCheckBoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                               const QWidget *widget) const
{
    if (element == PE_IndicatorCheckBox && option != nullptr && painter != nullptr)
        drawCheckBoxIndicator(painter, option->rect, option->state);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int Windows10LikeCheckBoxStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    if (metric == PM_IndicatorWidth || metric == PM_IndicatorHeight)
        return indicatorSize;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace Scheduler
