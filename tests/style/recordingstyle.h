#pragma once

#include <QList>
#include <QProxyStyle>
#include <QStyleOptionComplex>

/// A base style that remembers what it was asked for and has a frame of a known width.
class RecordingStyle : public QProxyStyle {
public:
    static constexpr QRect someRect{7, 7, 7, 7};

    void drawPrimitive(PrimitiveElement element, const QStyleOption *, QPainter *, const QWidget *) const override
    {
        primitives.append(element);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *, SubControl subControl,
                         const QWidget *) const override
    {
        controls.append(control);
        subControls.append(subControl);
        return someRect;
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *, const QWidget *) const override
    {
        return metric == PM_DefaultFrameWidth ? frameWidth : 100 + int(metric);
    }

    int frameWidth = 2;
    mutable QList<PrimitiveElement> primitives;
    mutable QList<ComplexControl> controls;
    mutable QList<SubControl> subControls;
};
