#include "checkboxindicator.h"
#include "recordingstyle.h"
#include "testmain.h"
#include "windows10likecheckboxstyle.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

constexpr int scale = 8;
constexpr int indicatorSize = 16;
constexpr QRect indicatorRect{0, 0, indicatorSize, indicatorSize};

// Points of the indicator, in its own coordinates. Each lies well inside of what it is named for.
constexpr QPointF onBorder{1.0, 8.0};
constexpr QPointF onFill{8.0, 3.0};
constexpr QPointF onTick{7.02, 11.2};
constexpr QPointF onBar{11.2, 8.1}; ///< beside the tick
constexpr QPointF onBoth{9.6, 8.1};

/// The indicator as the style draws it, eight times as large, so that lines have pixels of their pure colour.
QImage drawn(QStyle::State state)
{
    QImage image(indicatorRect.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    QStyleOptionButton option;
    option.rect = indicatorRect;
    option.state = state;
    const Windows10LikeCheckBoxStyle style;
    style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
    return image;
}

QString colorAt(const QImage &image, QPointF point)
{
    return image.pixelColor((point * scale).toPoint()).name();
}

} // namespace

class TestCheckBoxStyle : public QObject {
    Q_OBJECT

private slots:
    void boxHasTheColorsOfItsState_data();
    void boxHasTheColorsOfItsState();
    void disabledCheckedBoxIsPaleBlueWithANearWhiteMark();
    void checkedBoxWithPartialStateShowsTheTickAlone();
    void cornersAreRound();
    void nothingIsDrawnOutsideOfTheRectangle();
    void boxFollowsTheRectangle();
    void painterIsLeftAsItWas();
    void indicatorMeasuresSixteenPixels();
    void otherMetricsAreTheBaseStyles();
    void otherPrimitivesGoToTheBaseStyle();
    void missingOptionOrPainterGoesToTheBaseStyle();
};

void TestCheckBoxStyle::boxHasTheColorsOfItsState_data()
{
    constexpr QStyle::State enabled = QStyle::State_Enabled;
    constexpr QStyle::State on = QStyle::State_On;
    constexpr QStyle::State partial = QStyle::State_NoChange;
    constexpr QStyle::State off = QStyle::State_Off;
    constexpr QStyle::State hover = QStyle::State_MouseOver;
    constexpr QStyle::State sunken = QStyle::State_Sunken;

    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("fill");
    QTest::addColumn<QString>("tick");
    QTest::addColumn<QString>("bar");

    const auto row = [](const char *name, QStyle::State state, const QString &border, const QString &fill,
                        const QString &mark) {
        const bool ticked = state.testFlag(QStyle::State_On);
        const bool barred = !ticked && state.testFlag(QStyle::State_NoChange);
        QTest::newRow(name) << state << border << fill << (ticked ? mark : fill) << (barred ? mark : fill);
    };
    row("disabled", off, u"#c7ccd3"_s, u"#f3f4f6"_s, u"#f5f7fa"_s);
    row("disabled, no state at all", QStyle::State_None, u"#c7ccd3"_s, u"#f3f4f6"_s, u"#f5f7fa"_s);
    row("disabled under the mouse", off | hover, u"#c7ccd3"_s, u"#f3f4f6"_s, u"#f5f7fa"_s);
    row("disabled checked", on, u"#b6c6da"_s, u"#9db7df"_s, u"#f5f7fa"_s);
    row("disabled partial", partial, u"#b6c6da"_s, u"#9db7df"_s, u"#f5f7fa"_s);
    row("disabled checked pressed", on | sunken, u"#b6c6da"_s, u"#9db7df"_s, u"#f5f7fa"_s);
    row("enabled under the mouse", enabled | off | hover, u"#6a7480"_s, u"#f9fafb"_s, u"#ffffff"_s);
    row("enabled", enabled | off, u"#8f99a3"_s, u"#ffffff"_s, u"#ffffff"_s);
    row("enabled pressed", enabled | off | sunken, u"#8f99a3"_s, u"#ffffff"_s, u"#ffffff"_s);
    row("enabled checked pressed", enabled | on | sunken, u"#2b6cb0"_s, u"#2b6cb0"_s, u"#ffffff"_s);
    row("enabled partial pressed", enabled | partial | sunken, u"#2b6cb0"_s, u"#2b6cb0"_s, u"#ffffff"_s);
    row("enabled checked", enabled | on, u"#4a90e2"_s, u"#4a90e2"_s, u"#ffffff"_s);
    row("enabled checked under the mouse", enabled | on | hover, u"#4a90e2"_s, u"#4a90e2"_s, u"#ffffff"_s);
    row("enabled partial", enabled | partial, u"#4a90e2"_s, u"#4a90e2"_s, u"#ffffff"_s);
}

void TestCheckBoxStyle::boxHasTheColorsOfItsState()
{
    QFETCH(const QStyle::State, state);
    QFETCH(const QString, border);
    QFETCH(const QString, fill);
    QFETCH(const QString, tick);
    QFETCH(const QString, bar);
    const QImage image = drawn(state);
    QCOMPARE(colorAt(image, onBorder), border);
    QCOMPARE(colorAt(image, onFill), fill);
    QCOMPARE(colorAt(image, onTick), tick);
    QCOMPARE(colorAt(image, onBar), bar);
}

void TestCheckBoxStyle::disabledCheckedBoxIsPaleBlueWithANearWhiteMark()
{
    const CheckBoxColors colors = checkBoxColors(QStyle::State_On);
    QCOMPARE(colors.border.name(), u"#b6c6da"_s);
    QCOMPARE(colors.fill.name(), u"#9db7df"_s);
    QCOMPARE(colors.mark.name(), u"#f5f7fa"_s);
}

void TestCheckBoxStyle::checkedBoxWithPartialStateShowsTheTickAlone()
{
    const QImage image = drawn(QStyle::State_Enabled | QStyle::State_On | QStyle::State_NoChange);
    QCOMPARE(colorAt(image, onTick), u"#ffffff"_s);
    QCOMPARE(colorAt(image, onBoth), u"#ffffff"_s);
    QCOMPARE(colorAt(image, onBar), u"#4a90e2"_s);
}

void TestCheckBoxStyle::cornersAreRound()
{
    const QImage image = drawn(QStyle::State_Enabled | QStyle::State_On);
    for (const QPointF corner : {QPointF(1.1, 1.1), QPointF(14.9, 1.1), QPointF(1.1, 14.9), QPointF(14.9, 14.9)})
        QCOMPARE(image.pixelColor((corner * scale).toPoint()).alpha(), 0);
    for (const QPointF inside : {QPointF(2.5, 2.5), QPointF(13.5, 2.5), QPointF(2.5, 13.5), QPointF(13.5, 13.5)})
        QCOMPARE(image.pixelColor((inside * scale).toPoint()).alpha(), 255);
}

void TestCheckBoxStyle::nothingIsDrawnOutsideOfTheRectangle()
{
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QRect rect(12, 9, indicatorSize, indicatorSize);
    drawCheckBoxIndicator(&painter, rect, QStyle::State_Enabled | QStyle::State_On);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!rect.contains(x, y))
                QCOMPARE(image.pixelColor(x, y).alpha(), 0);
        }
    }
    QCOMPARE(image.pixelColor(rect.center()).alpha(), 255);
}

void TestCheckBoxStyle::boxFollowsTheRectangle()
{
    QImage image(120, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawCheckBoxIndicator(&painter, QRect(10, 10, 102, 42), QStyle::State_Enabled | QStyle::State_NoChange);
    painter.end();
    // The box is 100 by 40, from 11, 11: its bar begins at 33 and 28.2, and is 56 by 6.4.
    QCOMPARE(image.pixelColor(31, 31).name(), u"#4a90e2"_s);
    QCOMPARE(image.pixelColor(35, 31).name(), u"#ffffff"_s);
    QCOMPARE(image.pixelColor(87, 31).name(), u"#ffffff"_s);
    QCOMPARE(image.pixelColor(90, 31).name(), u"#4a90e2"_s);
    QCOMPARE(image.pixelColor(60, 27).name(), u"#4a90e2"_s);
    QCOMPARE(image.pixelColor(60, 36).name(), u"#4a90e2"_s);
}

void TestCheckBoxStyle::painterIsLeftAsItWas()
{
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 5));
    painter.setBrush(Qt::green);
    drawCheckBoxIndicator(&painter, indicatorRect, QStyle::State_On);
    QCOMPARE(painter.pen(), QPen(Qt::red, 5));
    QCOMPARE(painter.brush(), QBrush(Qt::green));
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

void TestCheckBoxStyle::indicatorMeasuresSixteenPixels()
{
    const Windows10LikeCheckBoxStyle style;
    QCOMPARE(style.pixelMetric(QStyle::PM_IndicatorWidth), indicatorSize);
    QCOMPARE(style.pixelMetric(QStyle::PM_IndicatorHeight), indicatorSize);
}

void TestCheckBoxStyle::otherMetricsAreTheBaseStyles()
{
    const Windows10LikeCheckBoxStyle style(new RecordingStyle);
    for (const QStyle::PixelMetric metric :
         {QStyle::PM_ExclusiveIndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight, QStyle::PM_CheckBoxLabelSpacing})
        QCOMPARE(style.pixelMetric(metric), 100 + int(metric));
}

void TestCheckBoxStyle::otherPrimitivesGoToTheBaseStyle()
{
    auto *base = new RecordingStyle;
    const Windows10LikeCheckBoxStyle style(base);
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QStyleOptionButton option;
    style.drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &painter);
    style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter);
    const QList<QStyle::PrimitiveElement> expected{QStyle::PE_IndicatorRadioButton, QStyle::PE_FrameFocusRect};
    QCOMPARE(base->primitives, expected);
}

void TestCheckBoxStyle::missingOptionOrPainterGoesToTheBaseStyle()
{
    auto *base = new RecordingStyle;
    const Windows10LikeCheckBoxStyle style(base);
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QStyleOptionButton option;
    style.drawPrimitive(QStyle::PE_IndicatorCheckBox, nullptr, &painter);
    style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, nullptr);
    QCOMPARE(base->primitives, QList<QStyle::PrimitiveElement>(2, QStyle::PE_IndicatorCheckBox));
}

ORVEL_TEST_MAIN(QApplication, TestCheckBoxStyle)
#include "tst_checkboxstyle.moc"
