#include "stylesheets.h"
#include "testmain.h"
#include "widgetstyles.h"
#include "windows10likecheckboxstyle.h"
#include "windows10likespinboxstyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// The styles of a class that a widget owns.
template <typename Style> QList<Style *> ownStyles(const QWidget *widget)
{
    return widget->findChildren<Style *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

class TestWidgetStyles : public QObject {
    Q_OBJECT

private slots:
    void nullIsHarmless();
    void everySpinBoxBelowTheRootGetsAStyleOfItsOwn();
    void everyCheckBoxBelowTheRootGetsAStyleOfItsOwn();
    void rootItselfAndOtherWidgetsAreLeftAlone();
    void styledWidgetsAreTreatedOnce();
    void markedWidgetsAreSkipped();
    void newWidgetsAreStyledByTheNextCall();
    void stylesGoWithTheirWidget();
    void styleWorksUnderAStyleSheet();
    void bothScrollBarsGetTheSheetOnce();
    void modeCardHasItsClassAndSheet();
    void sectionLabelHasItsSheet();
};

void TestWidgetStyles::nullIsHarmless()
{
    applySpinBoxStyle(nullptr);
    applyCheckBoxStyle(nullptr);
    applyScrollBarStyle(nullptr);
    applyModeCardStyle(nullptr);
    applySectionLabelStyle(nullptr);
}

void TestWidgetStyles::everySpinBoxBelowTheRootGetsAStyleOfItsOwn()
{
    QWidget root;
    QGroupBox group(&root);
    QSpinBox direct(&root);
    QDoubleSpinBox nested(&group);
    QDateTimeEdit date(&group);
    QTimeEdit time(&group);
    nested.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    time.setButtonSymbols(QAbstractSpinBox::NoButtons);
    applySpinBoxStyle(&root);
    for (const QAbstractSpinBox *box : std::initializer_list<QAbstractSpinBox *>{&direct, &nested, &date, &time}) {
        const QList<Windows10LikeSpinBoxStyle *> styles = ownStyles<Windows10LikeSpinBoxStyle>(box);
        QCOMPARE(styles.size(), 1);
        QCOMPARE(box->style(), styles.first());
        QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
        QCOMPARE(box->property("win10SpinBoxStyleApplied"), QVariant(true));
    }
}

void TestWidgetStyles::everyCheckBoxBelowTheRootGetsAStyleOfItsOwn()
{
    QWidget root;
    QGroupBox group(&root);
    QCheckBox direct(&root);
    QCheckBox nested(&group);
    applyCheckBoxStyle(&root);
    for (const QCheckBox *box : {&direct, &nested}) {
        const QList<Windows10LikeCheckBoxStyle *> styles = ownStyles<Windows10LikeCheckBoxStyle>(box);
        QCOMPARE(styles.size(), 1);
        QCOMPARE(box->style(), styles.first());
        QVERIFY(box->testAttribute(Qt::WA_Hover));
        QCOMPARE(box->property("win10CheckBoxStyleApplied"), QVariant(true));
    }
}

void TestWidgetStyles::rootItselfAndOtherWidgetsAreLeftAlone()
{
    QSpinBox rootBox;
    QCheckBox rootCheck;
    QWidget root;
    QRadioButton radio(&root);
    QSpinBox spinBox(&root);
    QCheckBox checkBox(&root);
    applySpinBoxStyle(&rootBox);
    applyCheckBoxStyle(&rootCheck);
    applySpinBoxStyle(&root);
    QVERIFY(!checkBox.property("win10CheckBoxStyleApplied").isValid());
    applyCheckBoxStyle(&root);
    QCOMPARE(rootBox.style(), QApplication::style());
    QCOMPARE(rootCheck.style(), QApplication::style());
    QCOMPARE(radio.style(), QApplication::style());
    QVERIFY(!spinBox.property("win10CheckBoxStyleApplied").isValid());
}

void TestWidgetStyles::styledWidgetsAreTreatedOnce()
{
    QWidget root;
    QSpinBox spinBox(&root);
    QCheckBox checkBox(&root);
    applySpinBoxStyle(&root);
    applyCheckBoxStyle(&root);
    const QStyle *spinBoxStyle = spinBox.style();
    const QStyle *checkBoxStyle = checkBox.style();
    spinBox.setButtonSymbols(QAbstractSpinBox::NoButtons);
    checkBox.setAttribute(Qt::WA_Hover, false);
    applySpinBoxStyle(&root);
    applyCheckBoxStyle(&root);
    QCOMPARE(spinBox.style(), spinBoxStyle);
    QCOMPARE(checkBox.style(), checkBoxStyle);
    QCOMPARE(ownStyles<QStyle>(&spinBox).size(), 1);
    QCOMPARE(ownStyles<QStyle>(&checkBox).size(), 1);
    QCOMPARE(spinBox.buttonSymbols(), QAbstractSpinBox::NoButtons);
    QVERIFY(!checkBox.testAttribute(Qt::WA_Hover));
}

void TestWidgetStyles::markedWidgetsAreSkipped()
{
    QWidget root;
    QSpinBox spinBox(&root);
    QCheckBox checkBox(&root);
    spinBox.setProperty("win10SpinBoxStyleApplied", true);
    checkBox.setProperty("win10CheckBoxStyleApplied", true);
    applySpinBoxStyle(&root);
    applyCheckBoxStyle(&root);
    QCOMPARE(spinBox.style(), QApplication::style());
    QCOMPARE(checkBox.style(), QApplication::style());
}

void TestWidgetStyles::newWidgetsAreStyledByTheNextCall()
{
    QWidget root;
    QSpinBox first(&root);
    applySpinBoxStyle(&root);
    const QStyle *firstStyle = first.style();
    QSpinBox second(&root);
    applySpinBoxStyle(&root);
    QCOMPARE(first.style(), firstStyle);
    QCOMPARE(ownStyles<Windows10LikeSpinBoxStyle>(&second).size(), 1);
    QVERIFY(second.style() != firstStyle);
}

void TestWidgetStyles::stylesGoWithTheirWidget()
{
    QWidget root;
    auto *spinBox = new QSpinBox(&root);
    auto *checkBox = new QCheckBox(&root);
    applySpinBoxStyle(&root);
    applyCheckBoxStyle(&root);
    root.show();
    const QPointer<QStyle> spinBoxStyle = spinBox->style();
    const QPointer<QStyle> checkBoxStyle = checkBox->style();
    delete spinBox;
    delete checkBox;
    QVERIFY(spinBoxStyle.isNull());
    QVERIFY(checkBoxStyle.isNull());
    root.grab();
}

void TestWidgetStyles::styleWorksUnderAStyleSheet()
{
    QDialog dialog;
    dialog.setStyleSheet(taskDialogStyleSheet());
    auto *checkBox = new QCheckBox(u"Mon"_s, &dialog);
    checkBox->setChecked(true);
    applyCheckBoxStyle(&dialog);
    dialog.show();
    QStyleOptionButton option;
    option.initFrom(checkBox);
    const QRect indicator = checkBox->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, checkBox);
    QCOMPARE(indicator.size(), QSize(16, 16));
    const QImage image = checkBox->grab().toImage();
    QCOMPARE(image.pixelColor(indicator.topLeft() + QPoint(8, 3)).name(), u"#4a90e2"_s);
    dialog.setStyleSheet(QString());
    QCOMPARE(checkBox->style(), ownStyles<Windows10LikeCheckBoxStyle>(checkBox).value(0));
}

void TestWidgetStyles::bothScrollBarsGetTheSheetOnce()
{
    QScrollArea area;
    applyScrollBarStyle(&area);
    for (QScrollBar *bar : {area.verticalScrollBar(), area.horizontalScrollBar()}) {
        QCOMPARE(bar->styleSheet(), scrollBarStyleSheet());
        QCOMPARE(bar->property("win11ScrollBarStyleApplied"), QVariant(true));
        bar->setStyleSheet(u"QScrollBar { background: red; }"_s);
    }
    applyScrollBarStyle(&area);
    QCOMPARE(area.verticalScrollBar()->styleSheet(), u"QScrollBar { background: red; }"_s);
    QCOMPARE(area.horizontalScrollBar()->styleSheet(), u"QScrollBar { background: red; }"_s);
}

void TestWidgetStyles::modeCardHasItsClassAndSheet()
{
    QRadioButton radio;
    for (int call = 0; call < 2; ++call) {
        applyModeCardStyle(&radio);
        QCOMPARE(radio.property("class").toString(), u"modeCard"_s);
        QCOMPARE(radio.styleSheet(), modeRadioStyleSheet());
    }
}

void TestWidgetStyles::sectionLabelHasItsSheet()
{
    QLabel label;
    for (int call = 0; call < 2; ++call) {
        applySectionLabelStyle(&label);
        QCOMPARE(label.styleSheet(), sectionLabelStyleSheet());
    }
}

ORVEL_TEST_MAIN(QApplication, TestWidgetStyles)
#include "tst_widgetstyles.moc"
