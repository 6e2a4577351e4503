#include "recordingstyle.h"
#include "spinboxparts.h"
#include "testmain.h"
#include "windows10likespinboxstyle.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStyleOptionSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

QStyleOptionSpinBox spinBoxOption(const QRect &rect)
{
    QStyleOptionSpinBox option;
    option.rect = rect;
    return option;
}

/// An arrow as the style draws it on a transparent image of the given size.
QImage drawnArrow(QStyle::PrimitiveElement element, QStyle::State state, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QStyleOptionSpinBox option = spinBoxOption(QRect(QPoint(), size));
    option.state = state;
    const Windows10LikeSpinBoxStyle style;
    style.drawPrimitive(element, &option, &painter);
    return image;
}

bool isBlank(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y).alpha() == 0;
}

} // namespace

class TestSpinBoxStyle : public QObject {
    Q_OBJECT

private slots:
    void partsOfASpinBox_data();
    void partsOfASpinBox();
    void buttonsFillTheirColumnAndNothingIsNegative();
    void partsAreMirroredFromRightToLeft();
    void otherSubControlsAndControlsAreTheBaseStyles();
    void missingOptionGoesToTheBaseStyle();
    void pointsOfTheArrow_data();
    void pointsOfTheArrow();
    void colorOfTheArrow_data();
    void colorOfTheArrow();
    void arrowPointsWhereItsButtonGoes();
    void painterIsLeftAsItWas();
    void otherPrimitivesAndMissingPartsGoToTheBaseStyle();
};

void TestSpinBoxStyle::partsOfASpinBox_data()
{
    QTest::addColumn<int>("frameWidth");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("up");
    QTest::addColumn<QRect>("down");
    QTest::addColumn<QRect>("editField");

    // The right edge of a rectangle from 10 with width 120 is 129.
    QTest::newRow("height 24, buttons 20 wide")
        << 2 << QRect(10, 5, 120, 24) << QRect(108, 7, 20, 10) << QRect(108, 17, 20, 10) << QRect(12, 7, 94, 20);
    QTest::newRow("height 40, buttons 22 wide")
        << 2 << QRect(10, 5, 120, 40) << QRect(106, 7, 22, 18) << QRect(106, 25, 22, 18) << QRect(12, 7, 92, 36);
    QTest::newRow("height 20, buttons 18 wide")
        << 2 << QRect(10, 5, 120, 20) << QRect(110, 7, 18, 8) << QRect(110, 15, 18, 8) << QRect(12, 7, 96, 16);
    QTest::newRow("height 0") << 2 << QRect(10, 5, 120, 0) << QRect(110, 7, 18, 0) << QRect(110, 7, 18, 0)
                              << QRect(12, 7, 96, 0);
    QTest::newRow("less height than frame")
        << 2 << QRect(10, 5, 120, 3) << QRect(110, 7, 18, 0) << QRect(110, 7, 18, 0) << QRect(12, 7, 96, 0);
    QTest::newRow("odd height, the lower button has the rest")
        << 2 << QRect(10, 5, 120, 25) << QRect(107, 7, 21, 10) << QRect(107, 17, 21, 11) << QRect(12, 7, 93, 21);
    QTest::newRow("frame of one") << 1 << QRect(10, 5, 120, 24) << QRect(107, 6, 22, 11) << QRect(107, 17, 22, 11)
                                  << QRect(11, 6, 95, 22);
    QTest::newRow("no frame") << 0 << QRect(0, 0, 120, 19) << QRect(101, 0, 19, 9) << QRect(101, 9, 19, 10)
                              << QRect(0, 0, 101, 19);
    QTest::newRow("no room for the edit field")
        << 2 << QRect(10, 5, 20, 24) << QRect(8, 7, 20, 10) << QRect(8, 17, 20, 10) << QRect(12, 7, 0, 20);
}

void TestSpinBoxStyle::partsOfASpinBox()
{
    QFETCH(const int, frameWidth);
    QFETCH(const QRect, rect);
    QFETCH(const QRect, up);
    QFETCH(const QRect, down);
    QFETCH(const QRect, editField);
    auto *base = new RecordingStyle;
    base->frameWidth = frameWidth;
    const Windows10LikeSpinBoxStyle style(base);
    const QStyleOptionSpinBox option = spinBoxOption(rect);
    QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp), up);
    QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown), down);
    QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField), editField);
    QCOMPARE(base->controls.size(), 0);
}

void TestSpinBoxStyle::buttonsFillTheirColumnAndNothingIsNegative()
{
    for (int frameWidth = 0; frameWidth <= 4; ++frameWidth) {
        for (int height = 0; height <= 60; ++height) {
            const SpinBoxParts parts = spinBoxParts(QRect(0, 0, 100, height), frameWidth);
            const int columnHeight = qMax(0, height - 2 * frameWidth);
            QVERIFY(parts.up.height() >= 0 && parts.down.height() >= 0);
            QCOMPARE(parts.up.height() + parts.down.height(), columnHeight);
            QCOMPARE(parts.down.top(), parts.up.top() + parts.up.height());
            QCOMPARE(parts.editField.height(), columnHeight);
            QCOMPARE(parts.editField.left() + parts.editField.width() + frameWidth, parts.up.left());
        }
    }
}

void TestSpinBoxStyle::partsAreMirroredFromRightToLeft()
{
    const Windows10LikeSpinBoxStyle style(new RecordingStyle);
    QStyleOptionSpinBox option = spinBoxOption(QRect(10, 5, 120, 24));
    option.direction = Qt::RightToLeft;
    QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp), QRect(12, 7, 20, 10));
    QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown), QRect(12, 17, 20, 10));
    QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField), QRect(34, 7, 94, 20));
}

void TestSpinBoxStyle::otherSubControlsAndControlsAreTheBaseStyles()
{
    auto *base = new RecordingStyle;
    const Windows10LikeSpinBoxStyle style(base);
    const QStyleOptionSpinBox spinBox = spinBoxOption(QRect(0, 0, 100, 24));
    QStyleOptionComboBox comboBox;
    comboBox.rect = QRect(0, 0, 100, 24);
    QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, &spinBox, QStyle::SC_SpinBoxFrame), RecordingStyle::someRect);
    // The sub-controls of different controls share their values.
    QCOMPARE(style.subControlRect(QStyle::CC_ComboBox, &comboBox, QStyle::SC_SpinBoxUp), RecordingStyle::someRect);
    const QList<QStyle::ComplexControl> expected{QStyle::CC_SpinBox, QStyle::CC_ComboBox};
    QCOMPARE(base->controls, expected);
}

void TestSpinBoxStyle::missingOptionGoesToTheBaseStyle()
{
    const Windows10LikeSpinBoxStyle style(new RecordingStyle);
    QCOMPARE(style.subControlRect(QStyle::CC_SpinBox, nullptr, QStyle::SC_SpinBoxUp), RecordingStyle::someRect);
}

void TestSpinBoxStyle::pointsOfTheArrow_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QPolygon>("up");
    QTest::addColumn<QPolygon>("down");

    // 40 by 26 leaves a box of 34 by 20 with its centre at 19, 12: half 8 by 4.
    QTest::newRow("large") << QRect(0, 0, 40, 26) << QPolygon({{19, 8}, {11, 16}, {27, 16}})
                           << QPolygon({{19, 16}, {11, 8}, {27, 8}});
    // 20 by 10 leaves a box of 14 by 4 with its centre at 9, 4.
    QTest::newRow("smallest size") << QRect(0, 0, 20, 10) << QPolygon({{9, 2}, {6, 6}, {12, 6}})
                                   << QPolygon({{9, 6}, {6, 2}, {12, 2}});
    QTest::newRow("moved") << QRect(100, 50, 20, 10) << QPolygon({{109, 52}, {106, 56}, {112, 56}})
                           << QPolygon({{109, 56}, {106, 52}, {112, 52}});
}

void TestSpinBoxStyle::pointsOfTheArrow()
{
    QFETCH(const QRect, rect);
    QFETCH(const QPolygon, up);
    QFETCH(const QPolygon, down);
    QCOMPARE(spinArrow(rect, SpinDirection::Up), up);
    QCOMPARE(spinArrow(rect, SpinDirection::Down), down);
}

void TestSpinBoxStyle::colorOfTheArrow_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<int>("grey");
    QTest::newRow("enabled") << QStyle::State(QStyle::State_Enabled) << 45;
    QTest::newRow("enabled and pressed") << (QStyle::State_Enabled | QStyle::State_Sunken) << 45;
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << 160;
    QTest::newRow("disabled under the mouse") << QStyle::State(QStyle::State_MouseOver) << 160;
}

void TestSpinBoxStyle::colorOfTheArrow()
{
    QFETCH(const QStyle::State, state);
    QFETCH(const int, grey);
    for (const QStyle::PrimitiveElement element : {QStyle::PE_IndicatorSpinUp, QStyle::PE_IndicatorSpinDown}) {
        const QImage image = drawnArrow(element, state, QSize(40, 26));
        QCOMPARE(image.pixelColor(19, 12), QColor(grey, grey, grey));
    }
}

void TestSpinBoxStyle::arrowPointsWhereItsButtonGoes()
{
    const QImage up = drawnArrow(QStyle::PE_IndicatorSpinUp, QStyle::State_Enabled, QSize(40, 26));
    QVERIFY(isBlank(up, 13, 9) && isBlank(up, 25, 9) && isBlank(up, 19, 6) && isBlank(up, 19, 17));
    QVERIFY(!isBlank(up, 13, 15) && !isBlank(up, 25, 15));
    const QImage down = drawnArrow(QStyle::PE_IndicatorSpinDown, QStyle::State_Enabled, QSize(40, 26));
    QVERIFY(isBlank(down, 13, 15) && isBlank(down, 25, 15) && isBlank(down, 19, 6) && isBlank(down, 19, 17));
    QVERIFY(!isBlank(down, 13, 8) && !isBlank(down, 25, 8));
}

void TestSpinBoxStyle::painterIsLeftAsItWas()
{
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 5));
    painter.setBrush(Qt::green);
    drawSpinArrow(&painter, image.rect(), SpinDirection::Up, QStyle::State_Enabled);
    QCOMPARE(painter.pen(), QPen(Qt::red, 5));
    QCOMPARE(painter.brush(), QBrush(Qt::green));
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

void TestSpinBoxStyle::otherPrimitivesAndMissingPartsGoToTheBaseStyle()
{
    auto *base = new RecordingStyle;
    const Windows10LikeSpinBoxStyle style(base);
    QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QStyleOptionSpinBox option = spinBoxOption(image.rect());
    style.drawPrimitive(QStyle::PE_IndicatorSpinUp, &option, &painter);
    style.drawPrimitive(QStyle::PE_IndicatorSpinPlus, &option, &painter);
    style.drawPrimitive(QStyle::PE_IndicatorSpinUp, nullptr, &painter);
    style.drawPrimitive(QStyle::PE_IndicatorSpinDown, &option, nullptr);
    const QList<QStyle::PrimitiveElement> expected{QStyle::PE_IndicatorSpinPlus, QStyle::PE_IndicatorSpinUp,
                                                   QStyle::PE_IndicatorSpinDown};
    QCOMPARE(base->primitives, expected);
}

ORVEL_TEST_MAIN(QApplication, TestSpinBoxStyle)
#include "tst_spinboxstyle.moc"
