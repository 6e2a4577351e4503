#include "mcsdynamicformwidget.h"
#include "stylesheets.h"
#include "taskdialogfixture.h"
#include "testmain.h"
#include "windows10likecheckboxstyle.h"
#include "windows10likespinboxstyle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// Which looks the widgets of the dialog were given.
class TestTaskDialogStyles : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void everySpinAndCheckBoxIsStyledOnce();
    void fieldsOfARebuiltFormAreStyled();
    void radiosAreCardsAndHeadingsAreDressed();
    void scrollBarsAndSwitchAreDressed();
};

void TestTaskDialogStyles::everySpinAndCheckBoxIsStyledOnce()
{
    openForCreate();
    const QList<QAbstractSpinBox *> spinBoxes = m_dialog->findChildren<QAbstractSpinBox *>();
    QVERIFY(spinBoxes.size() >= 8); // seven of the dialog, one of the form
    for (const QAbstractSpinBox *box : spinBoxes) {
        QVERIFY2(box->property("win10SpinBoxStyleApplied").toBool(), qPrintable(describe(box)));
        QCOMPARE(box->findChildren<Windows10LikeSpinBoxStyle *>().size(), 1);
    }
    const QList<QCheckBox *> checkBoxes = m_dialog->findChildren<QCheckBox *>();
    QCOMPARE(checkBoxes.size(), 8);
    for (const QCheckBox *box : checkBoxes) {
        QVERIFY2(box->property("win10CheckBoxStyleApplied").toBool(), qPrintable(describe(box)));
        QCOMPARE(box->findChildren<Windows10LikeCheckBoxStyle *>().size(), 1);
    }
}

void TestTaskDialogStyles::fieldsOfARebuiltFormAreStyled()
{
    answerTypes({typeJson(u"a"_s, {fieldJson(u"first"_s, u"int"_s)}),
                 typeJson(u"b"_s, {fieldJson(u"second"_s, u"int"_s), fieldJson(u"third"_s, u"bool"_s)})});
    setClientType(u"task_type.all"_s);
    openForCreate();
    QTest::keyClick(widget<QComboBox>("typeCombo"), Qt::Key_Down);
    const auto *const form = m_dialog->findChild<MCsDynamicFormWidget *>();
    QTRY_COMPARE(form->findChildren<QAbstractSpinBox *>().size(), 1); // the old field goes a little later
    const auto *const spinBox = form->findChild<QAbstractSpinBox *>();
    QCOMPARE(spinBox->accessibleName(), u"second"_s);
    QCOMPARE(spinBox->findChildren<Windows10LikeSpinBoxStyle *>().size(), 1);
    QCOMPARE(form->findChild<QCheckBox *>()->findChildren<Windows10LikeCheckBoxStyle *>().size(), 1);
    const auto *const untouched = widget<QAbstractSpinBox>("durationMinutesSpin");
    QCOMPARE(untouched->findChildren<Windows10LikeSpinBoxStyle *>().size(), 1);
}

void TestTaskDialogStyles::radiosAreCardsAndHeadingsAreDressed()
{
    openForCreate();
    const QList<QRadioButton *> radios = m_dialog->findChildren<QRadioButton *>();
    QCOMPARE(radios.size(), 17);
    for (const QRadioButton *radio : radios) {
        QVERIFY2(radio->property("class").toString() == "modeCard"_L1, qPrintable(describe(radio)));
        QCOMPARE(radio->styleSheet(), modeRadioStyleSheet());
    }
    const QList<QWidget *> all = m_dialog->findChildren<QWidget *>();
    QCOMPARE(std::ranges::count_if(
                 all, [](const QWidget *each) { return each->property("class").toString() == "modeCard"_L1; }),
             17);
    QStringList dressed;
    const QList<QLabel *> labels = m_dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->styleSheet() == sectionLabelStyleSheet())
            dressed.append(label->objectName());
    }
    dressed.sort();
    QCOMPARE(dressed, (QStringList{u"actionAfterSectionLabel"_s, u"actionBeforeSectionLabel"_s,
                                   u"autoStopSectionLabel"_s, u"basicSectionLabel"_s, u"displaySectionLabel"_s,
                                   u"outputSectionLabel"_s, u"startRecordingSectionLabel"_s}));
}

void TestTaskDialogStyles::scrollBarsAndSwitchAreDressed()
{
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QScrollArea, area, m_dialog.get(), "scrollArea");
    for (const QScrollBar *bar : {area->verticalScrollBar(), area->horizontalScrollBar()}) {
        QVERIFY(bar->property("win11ScrollBarStyleApplied").toBool());
        QCOMPARE(bar->styleSheet(), scrollBarStyleSheet());
    }
    QCOMPARE(widget<QCheckBox>("enabledCheck")->styleSheet(), switchStyleSheet());
    QCOMPARE(m_dialog->styleSheet(), taskDialogStyleSheet());
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogStyles)
#include "tst_taskdialogstyles.moc"
