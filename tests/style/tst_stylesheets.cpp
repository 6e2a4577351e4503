#include "dressed.h"
#include "testmain.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <initializer_list>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace Dressed;

class TestStyleSheets : public QObject {
    Q_OBJECT

private slots:
    void everySheetIsUnderstood_data();
    void everySheetIsUnderstood();
    void dialogAndCardHaveTheirColors();
    void titleOfACardDoesNotShow();
    void formCardLooksLikeTheOthers();
    void whatLiesOnACardDoesNotHideIt();
    void selectedSectionIsBlue();
    void customOutputPanelStandsOut();
    void headingsDiffer();

private:
    Window m_window;
};

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
    Dialog dialog(&m_window);
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
    Dialog dialog(&m_window);
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
    Dialog dialog(&m_window);
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
    Dialog dialog(&m_window);
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

void TestStyleSheets::selectedSectionIsBlue()
{
    Dialog dialog(&m_window);
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
    Dialog dialog(&m_window);
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

void TestStyleSheets::headingsDiffer()
{
    QCOMPARE(sectionLabelStyleSheet(), u"font-size: 14px;font-weight: bold;color: #2a6bcf;padding: 0px;padding-bottom: "
                                       "15px;background: transparent;"_s);
    QCOMPARE(formHeadingStyleSheet(), u"font-size: 14px;font-weight: bold;color: #FFB878; background-color: "
                                      "#ffffff;padding: 0px;padding-bottom: 15px;"_s);
}

ORVEL_TEST_MAIN(QApplication, TestStyleSheets)
#include "tst_stylesheets.moc"
