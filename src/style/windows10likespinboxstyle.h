#pragma once

#include <QProxyStyle>

namespace Scheduler {

/// Gives a spin box two wide buttons in a column at its right, with flat triangles; the rest is the base style's. A
/// widget has one of its own, see applySpinBoxStyle.
class Windows10LikeSpinBoxStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                                       const QWidget *widget = nullptr) const override;
};

} // namespace Scheduler
