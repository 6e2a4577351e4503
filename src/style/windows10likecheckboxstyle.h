#pragma once

#include <QProxyStyle>

namespace Scheduler {

/// Draws the box of a check box flat and in the same way on every platform; the rest is the base style's. A widget has
/// one of its own, see applyCheckBoxStyle.
class Windows10LikeCheckBoxStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                                  const QWidget *widget = nullptr) const override;
};

} // namespace Scheduler
