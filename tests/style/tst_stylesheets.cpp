#include "stylesheets.h"
#include "testmain.h"
#include "widgetstyles.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPainter>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// The dialog's sheet below that of a window which makes everything grey, as the main window's does.
class DressedDialog : public QDialog {
public:
    explicit DressedDialog(QWidget *parent)
        : QDialog(parent)
    {
        setStyleSheet(taskDialogStyleSheet());
        resize(400, 300);
    }
};

QString colorAt(const QImage &image, const QPoint &point)
{
    return image.pixelColor(point).name();
}

/// The widget as it shows on its window, with what lies behind it.
QImage shownImage(QWidget *widget)
{
    QWidget *window = widget->window();
    window->show();
    return window->grab(QRect(widget->mapTo(window, QPoint()), widget->size())).toImage();
}

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

class TestStyleSheets : public QObject {
    Q_OBJECT

private slots:
    void init();
    void everySheetIsUnderstood_data();
    void everySheetIsUnderstood();
    void dialogAndCardHaveTheirColors();
    void titleOfACardDoesNotShow();
    void formCardLooksLikeTheOthers();
    void whatLiesOnACardDoesNotHideIt();
    void disabledLineEditIsGrey();
    void modeCardHasTheColorsOfItsState_data();
    void modeCardHasTheColorsOfItsState();
    void modeIndicatorShowsADot_data();
    void modeIndicatorShowsADot();
    void selectedSectionIsBlue();
    void customOutputPanelStandsOut();
    void comboBoxHasNoArrow();
    void spinButtonsAreFlat();
    void headingsDiffer();
    void switchShowsItsImages_data();
    void switchShowsItsImages();
    void scrollBarHandleHasTheColorsOfItsState_data();
    void scrollBarHandleHasTheColorsOfItsState();

private:
    QMainWindow m_window;
};

void TestStyleSheets::init()
{
    m_window.setStyleSheet(u"QWidget { background-color: #f0f0f0; } QSpinBox { background-color: #ffffff; }"_s);
}

void TestStyleSheets::everySheetIsUnderstood_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("dialog") << taskDialogStyleSheet();
    QTest::newRow("mode radio") << modeRadioStyleSheet();
    QTest::newRow("section label") << sectionLabelStyleSheet();
    QTest::newRow("form heading") << formHeadingStyleSheet();
    QTest::newRow("form card") << formCardStyleSheet();
    QTest::newRow("switch") << switchStyleSheet();
    QTest::newRow("scroll bar") << scrollBarStyleSheet();
}

void TestStyleSheets::everySheetIsUnderstood()
{
    QFETCH(const QString, sheet);
    QTest::failOnWarning(QRegularExpression(u"parse|unknown property"_s, QRegularExpression::CaseInsensitiveOption));
    QDialog dialog;
    dialog.setStyleSheet(sheet);
    new QRadioButton(&dialog);
    new QCheckBox(&dialog);
    new QComboBox(&dialog);
    new QGroupBox(&dialog);
    dialog.show();
    dialog.grab();
    QCOMPARE(dialog.styleSheet(), sheet);
}

void TestStyleSheets::dialogAndCardHaveTheirColors()
{
    DressedDialog dialog(&m_window);
    auto *card = new QGroupBox(&dialog);
    card->setGeometry(20, 20, 200, 100);
    const QImage image = shownImage(&dialog);
    QCOMPARE(colorAt(image, QPoint(5, 5)), u"#f4f6f8"_s);
    QCOMPARE(colorAt(image, QPoint(120, 70)), u"#ffffff"_s);
    QCOMPARE(colorAt(image, QPoint(20, 70)), u"#a8c8f0"_s);
    QCOMPARE(colorAt(image, QPoint(120, 20)), u"#a8c8f0"_s);
    // Round corners leave the dialog's colour.
    QCOMPARE(colorAt(image, QPoint(20, 20)), u"#f4f6f8"_s);
}

void TestStyleSheets::titleOfACardDoesNotShow()
{
    DressedDialog dialog(&m_window);
    auto *card = new QGroupBox(u"MMMMMMMM"_s, &dialog);
    card->setGeometry(20, 20, 200, 100);
    const QImage image = shownImage(card);
    const int border = QColor(0xa8c8f0).lightness();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QVERIFY(image.pixelColor(x, y).lightness() >= border);
    }
}

void TestStyleSheets::formCardLooksLikeTheOthers()
{
    DressedDialog dialog(&m_window);
    auto *card = new QGroupBox(&dialog);
    auto *formCard = new QGroupBox(&dialog);
    formCard->setStyleSheet(formCardStyleSheet());
    card->setGeometry(20, 20, 200, 100);
    formCard->setGeometry(20, 140, 200, 100);
    QCOMPARE(shownImage(formCard), shownImage(card));
    QCOMPARE(formCardStyleSheet(),
             u"QGroupBox {  background-color: #ffffff;  border: 1.5px solid #a8c8f0;  border-radius: 8px;  "
             "margin-top: 0px;  padding: 12px 10px 10px 10px;}QGroupBox::title {  font-size: 0px;  color: "
             "transparent;}"_s);
}

void TestStyleSheets::whatLiesOnACardDoesNotHideIt()
{
    DressedDialog dialog(&m_window);
    auto *card = new QGroupBox(&dialog);
    card->setGeometry(20, 20, 300, 200);
    auto *panel = new QWidget(card);
    panel->setGeometry(20, 20, 100, 40);
    auto *label = new QLabel(card);
    label->setGeometry(20, 70, 100, 40);
    auto *checkBox = new QCheckBox(card);
    checkBox->setGeometry(20, 120, 100, 40);
    auto *spinBox = new QDoubleSpinBox(card);
    spinBox->setGeometry(150, 20, 100, 40);
    const QImage image = shownImage(card);
    for (const QWidget *widget : std::initializer_list<QWidget *>{panel, label, checkBox, spinBox})
        QCOMPARE(colorAt(image, widget->geometry().bottomRight() - QPoint(5, 5)), u"#ffffff"_s);
}

void TestStyleSheets::disabledLineEditIsGrey()
{
    DressedDialog dialog(&m_window);
    auto *edit = new QLineEdit(&dialog);
    edit->setGeometry(20, 20, 100, 30);
    edit->setEnabled(false);
    QCOMPARE(colorAt(shownImage(edit), QPoint(50, 15)), u"#f0f0f0"_s);
    QCOMPARE(edit->palette().color(QPalette::Disabled, QPalette::Text).name(), u"#888888"_s);
}

void TestStyleSheets::modeCardHasTheColorsOfItsState_data()
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

void TestStyleSheets::modeCardHasTheColorsOfItsState()
{
    QFETCH(const bool, checked);
    QFETCH(const bool, hovered);
    QFETCH(const QString, background);
    QFETCH(const QString, border);
    DressedDialog dialog(&m_window);
    QRadioButton *radio = createModeCard(u"On"_s, &dialog);
    radio->setChecked(checked);
    setHovered(radio, hovered);
    const QImage image = shownImage(radio);
    QCOMPARE(colorAt(image, QPoint(150, 22)), background);
    QCOMPARE(colorAt(image, QPoint(80, 0)), border);
    QCOMPARE(colorAt(image, QPoint(159, 22)), border);
    QVERIFY(radio->sizeHint().height() >= 42);
}

void TestStyleSheets::modeIndicatorShowsADot_data()
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

void TestStyleSheets::modeIndicatorShowsADot()
{
    QFETCH(const bool, checked);
    QFETCH(const bool, enabled);
    QFETCH(const QString, middle);
    QFETCH(const QString, ring);
    DressedDialog dialog(&m_window);
    QRadioButton *radio = createModeCard(QString(), &dialog);
    radio->setChecked(checked);
    radio->setEnabled(enabled);
    const QImage image = shownImage(radio);
    const QPoint center = indicatorCenter(radio);
    QCOMPARE(colorAt(image, center), middle);
    QCOMPARE(colorAt(image, center - QPoint(0, 5)), ring);
    QCOMPARE(colorAt(image, center - QPoint(5, 0)), ring);
}

void TestStyleSheets::selectedSectionIsBlue()
{
    DressedDialog dialog(&m_window);
    auto *list = new QListWidget(&dialog);
    list->setObjectName(u"navList"_s);
    list->addItems({u"A"_s, u"B"_s});
    list->setCurrentRow(0);
    list->setGeometry(20, 20, 200, 200);
    const QImage image = shownImage(list->viewport());
    const QRect first = list->visualItemRect(list->item(0));
    const QRect second = list->visualItemRect(list->item(1));
    QCOMPARE(colorAt(image, QPoint(150, first.center().y())), u"#4a90e2"_s);
    QCOMPARE(colorAt(image, QPoint(150, second.center().y())), u"#ffffff"_s);
    QCOMPARE(colorAt(image, QPoint(150, second.bottom())), u"#eef0f3"_s);
    QCOMPARE(colorAt(shownImage(list), QPoint(0, 100)), u"#a8c8f0"_s);
}

void TestStyleSheets::customOutputPanelStandsOut()
{
    DressedDialog dialog(&m_window);
    auto *card = new QGroupBox(&dialog);
    card->setGeometry(20, 20, 200, 200);
    auto *panel = new QWidget(card);
    panel->setObjectName(u"customOutputWidget"_s);
    panel->setGeometry(20, 20, 100, 60);
    const QImage image = shownImage(panel);
    QCOMPARE(colorAt(image, QPoint(50, 30)), u"#f9fafb"_s);
    // The dashes and the gaps between them.
    QSet<QString> edge;
    for (int x = 10; x < 90; ++x)
        edge.insert(colorAt(image, QPoint(x, 0)));
    QCOMPARE(edge.size(), 2);
}

void TestStyleSheets::comboBoxHasNoArrow()
{
    DressedDialog dialog(&m_window);
    auto *combo = new QComboBox(&dialog);
    combo->setGeometry(20, 20, 150, 32);
    const QImage image = shownImage(combo);
    for (int x = 20; x < 145; ++x)
        QCOMPARE(colorAt(image, QPoint(x, 16)), u"#ffffff"_s);
    QCOMPARE(colorAt(image, QPoint(75, 0)), u"#cfd6dd"_s);
}

void TestStyleSheets::spinButtonsAreFlat()
{
    DressedDialog dialog(&m_window);
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

void TestStyleSheets::headingsDiffer()
{
    QCOMPARE(sectionLabelStyleSheet(), u"font-size: 14px;font-weight: bold;color: #2a6bcf;padding: 0px;padding-bottom: "
                                       "15px;background: transparent;"_s);
    QCOMPARE(formHeadingStyleSheet(), u"font-size: 14px;font-weight: bold;color: #FFB878; background-color: "
                                      "#ffffff;padding: 0px;padding-bottom: 15px;"_s);
}

void TestStyleSheets::switchShowsItsImages_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("path");
    QTest::newRow("on") << true << u":/images/switch_on.png"_s;
    QTest::newRow("off") << false << u":/images/switch_off.png"_s;
}

void TestStyleSheets::switchShowsItsImages()
{
    QFETCH(const bool, checked);
    QFETCH(const QString, path);
    const QImage switchImage(path);
    QCOMPARE(switchImage.size(), QSize(102, 57));
    QVERIFY(switchImage.hasAlphaChannel());

    DressedDialog dialog(&m_window);
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

void TestStyleSheets::scrollBarHandleHasTheColorsOfItsState_data()
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

void TestStyleSheets::scrollBarHandleHasTheColorsOfItsState()
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

ORVEL_TEST_MAIN(QApplication, TestStyleSheets)
#include "tst_stylesheets.moc"
