#include "dressed.h"
#include "testmain.h"
#include "widgetstyles.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace Dressed;

namespace {

bool near(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) < 8 && std::abs(a.green() - b.green()) < 8 && std::abs(a.blue() - b.blue()) < 8;
}

/// Makes the widget believe that the mouse is over it.
void setHovered(QWidget *widget, bool hovered)
{
    widget->setAttribute(Qt::WA_UnderMouse, hovered);
    widget->update();
}

QRadioButton *createModeCard(const QString &text, QWidget *parent)
{
    auto *radio = new QRadioButton(text, parent);
    applyModeCardStyle(radio);
    radio->resize(160, 44);
    return radio;
}

/// The middle of the round indicator.
QPoint indicatorCenter(const QRadioButton *radio)
{
    QStyleOptionButton option;
    option.initFrom(radio);
    const QRect rect = radio->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, radio);
    return {rect.left() + 9, rect.center().y()};
}

} // namespace

class TestControlSheets : public QObject {
    Q_OBJECT

private slots:
    void disabledLineEditIsGrey();
    void modeCardHasTheColorsOfItsState_data();
    void modeCardHasTheColorsOfItsState();
    void modeIndicatorShowsADot_data();
    void modeIndicatorShowsADot();
    void comboBoxHasNoArrow();
    void spinButtonsAreFlat();
    void switchShowsItsImages_data();
    void switchShowsItsImages();
    void scrollBarHandleHasTheColorsOfItsState_data();
    void scrollBarHandleHasTheColorsOfItsState();

private:
    Window m_window;
};

void TestControlSheets::disabledLineEditIsGrey()
{
    Dialog dialog(&m_window);
    auto *edit = new QLineEdit(&dialog);
    edit->setGeometry(20, 20, 100, 30);
    edit->setEnabled(false);
    QCOMPARE(colorAt(shownImage(edit), QPoint(50, 15)), u"#f0f0f0"_s);
    QCOMPARE(edit->palette().color(QPalette::Disabled, QPalette::Text).name(), u"#888888"_s);
}

void TestControlSheets::modeCardHasTheColorsOfItsState_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("background");
    QTest::addColumn<QString>("border");
    QTest::newRow("not chosen") << false << false << u"#f8f9fb"_s << u"#d8dde3"_s;
    QTest::newRow("under the mouse") << false << true << u"#eaf2ff"_s << u"#4a90e2"_s;
    QTest::newRow("chosen") << true << false << u"#dbe9ff"_s << u"#4a90e2"_s;
    QTest::newRow("chosen and under the mouse") << true << true << u"#dbe9ff"_s << u"#4a90e2"_s;
}

void TestControlSheets::modeCardHasTheColorsOfItsState()
{
    QFETCH(const bool, checked);
    QFETCH(const bool, hovered);
    QFETCH(const QString, background);
    QFETCH(const QString, border);
    Dialog dialog(&m_window);
    QRadioButton *radio = createModeCard(u"On"_s, &dialog);
    radio->setChecked(checked);
    setHovered(radio, hovered);
    const QImage image = shownImage(radio);
    QCOMPARE(colorAt(image, QPoint(150, 22)), background);
    QCOMPARE(colorAt(image, QPoint(80, 0)), border);
    QCOMPARE(colorAt(image, QPoint(159, 22)), border);
    QVERIFY(radio->sizeHint().height() >= 42);
}

void TestControlSheets::modeIndicatorShowsADot_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("middle");
    QTest::addColumn<QString>("ring");
    QTest::newRow("not chosen") << false << true << u"#ffffff"_s << u"#ffffff"_s;
    QTest::newRow("chosen") << true << true << u"#4a90e2"_s << u"#ffffff"_s;
    QTest::newRow("not chosen, disabled") << false << false << u"#f3f4f6"_s << u"#f3f4f6"_s;
    QTest::newRow("chosen, disabled") << true << false << u"#9db7df"_s << u"#f3f4f6"_s;
}

void TestControlSheets::modeIndicatorShowsADot()
{
    QFETCH(const bool, checked);
    QFETCH(const bool, enabled);
    QFETCH(const QString, middle);
    QFETCH(const QString, ring);
    Dialog dialog(&m_window);
    QRadioButton *radio = createModeCard(QString(), &dialog);
    radio->setChecked(checked);
    radio->setEnabled(enabled);
    const QImage image = shownImage(radio);
    const QPoint center = indicatorCenter(radio);
    QCOMPARE(colorAt(image, center), middle);
    QCOMPARE(colorAt(image, center - QPoint(0, 5)), ring);
    QCOMPARE(colorAt(image, center - QPoint(5, 0)), ring);
}

void TestControlSheets::comboBoxHasNoArrow()
{
    Dialog dialog(&m_window);
    auto *combo = new QComboBox(&dialog);
    combo->setGeometry(20, 20, 150, 32);
    const QImage image = shownImage(combo);
    for (int x = 20; x < 145; ++x)
        QCOMPARE(colorAt(image, QPoint(x, 16)), u"#ffffff"_s);
    QCOMPARE(colorAt(image, QPoint(75, 0)), u"#cfd6dd"_s);
}

void TestControlSheets::spinButtonsAreFlat()
{
    Dialog dialog(&m_window);
    auto *card = new QGroupBox(&dialog);
    card->setGeometry(20, 20, 200, 100);
    auto *spinBox = new QSpinBox(card);
    spinBox->setGeometry(20, 20, 120, 28);
    spinBox->setValue(5);
    applySpinBoxStyle(&dialog);
    const QImage image = shownImage(spinBox);
    QStyleOptionSpinBox option;
    option.initFrom(spinBox);
    const QRect up = spinBox->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, spinBox);
    // Nothing along the edges of the button, and its triangle within.
    for (int x = up.left(); x < up.right(); ++x)
        QCOMPARE(colorAt(image, QPoint(x, up.bottom())), u"#ffffff"_s);
    for (int y = up.top() + 2; y <= up.bottom(); ++y)
        QCOMPARE(colorAt(image, QPoint(up.left(), y)), u"#ffffff"_s);
    bool triangle = false;
    for (int y = up.top(); y <= up.bottom(); ++y)
        triangle = triangle || image.pixelColor(up.center().x(), y) == QColor(45, 45, 45);
    QVERIFY(triangle);
}

void TestControlSheets::switchShowsItsImages_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("path");
    QTest::newRow("on") << true << u":/images/switch_on.png"_s;
    QTest::newRow("off") << false << u":/images/switch_off.png"_s;
}

void TestControlSheets::switchShowsItsImages()
{
    QFETCH(const bool, checked);
    QFETCH(const QString, path);
    const QImage switchImage(path);
    QCOMPARE(switchImage.size(), QSize(102, 57));
    QVERIFY(switchImage.hasAlphaChannel());

    Dialog dialog(&m_window);
    auto *checkBox = new QCheckBox(&dialog);
    checkBox->setStyleSheet(switchStyleSheet());
    checkBox->setFixedSize(52, 28);
    checkBox->setChecked(checked);
    applyCheckBoxStyle(&dialog);
    const QImage image = shownImage(checkBox);
    QStyleOptionButton option;
    option.initFrom(checkBox);
    const QRect rect = checkBox->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, checkBox);
    QCOMPARE(rect.size(), QSize(42, 22));
    for (const qreal part : {0.25, 0.5, 0.75}) {
        const QPoint shown(rect.left() + int(part * rect.width()), rect.center().y());
        const QPoint source(int(part * switchImage.width()), switchImage.height() / 2);
        QVERIFY(near(image.pixelColor(shown), switchImage.pixelColor(source)));
    }
}

void TestControlSheets::scrollBarHandleHasTheColorsOfItsState_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("color");
    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        const char *name = orientation == Qt::Vertical ? "vertical" : "horizontal";
        QTest::addRow("%s", name) << orientation << QStyle::State(QStyle::State_None) << u"#b7bec7"_s;
        QTest::addRow("%s under the mouse", name)
            << orientation << QStyle::State(QStyle::State_MouseOver) << u"#98a2ad"_s;
        QTest::addRow("%s pressed", name)
            << orientation << (QStyle::State_MouseOver | QStyle::State_Sunken) << u"#7d8792"_s;
    }
}

void TestControlSheets::scrollBarHandleHasTheColorsOfItsState()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QStyle::State, state);
    QFETCH(const QString, color);
    QScrollArea area;
    applyScrollBarStyle(&area);
    QScrollBar *bar = orientation == Qt::Vertical ? area.verticalScrollBar() : area.horizontalScrollBar();
    bar->setRange(0, 100000);
    bar->ensurePolished();
    const QSize size = orientation == Qt::Vertical ? QSize(14, 200) : QSize(200, 14);
    QCOMPARE(qMin(bar->sizeHint().width(), bar->sizeHint().height()), 14);

    QStyleOptionSlider option;
    option.initFrom(bar);
    option.rect = QRect(QPoint(), size);
    option.orientation = orientation;
    option.maximum = bar->maximum();
    option.pageStep = 1;
    option.sliderPosition = option.sliderValue = 50000;
    option.subControls = QStyle::SC_All;
    option.state = QStyle::State_Enabled | state;
    option.state.setFlag(QStyle::State_Horizontal, orientation == Qt::Horizontal);
    option.activeSubControls = state == QStyle::State_None ? QStyle::SC_None : QStyle::SC_ScrollBarSlider;
    const QRect handle = bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, bar);
    QCOMPARE(qMax(handle.width(), handle.height()), 48);

    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    bar->style()->drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, bar);
    painter.end();
    QCOMPARE(colorAt(image, handle.center()), color);
    // Everything beside the handle lets through what lies behind: no lines, buttons or pages.
    QCOMPARE(image.pixelColor(orientation == Qt::Vertical ? QPoint(6, 4) : QPoint(4, 6)).alpha(), 0);
    QCOMPARE(image.pixelColor(orientation == Qt::Vertical ? QPoint(6, 195) : QPoint(195, 6)).alpha(), 0);
}

ORVEL_TEST_MAIN(QApplication, TestControlSheets)
#include "tst_controlsheets.moc"
