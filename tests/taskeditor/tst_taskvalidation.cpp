#include "taskvalidationfixture.h"
#include "testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// The faults that keep a task from being saved: their order, their texts, and where the focus goes.
class TestTaskValidation : public TaskValidationFixture {
    Q_OBJECT

private slots:
    void faultsAreReportedOneByOneInOrder();
    void faultMovesTheFocusToItsWidget_data();
    void faultMovesTheFocusToItsWidget();
    void faultThatNobodyCanMendHereMovesNoFocus_data();
    void faultThatNobodyCanMendHereMovesNoFocus();
    void weekWithoutDaysMovesNoFocus();
    void missingTypeFocusesTheTypes();
    void unreachableDaemonLeavesNoType();
    void nameOfOnlyBlanksIsBlank();
    void blankNameIsReportedBeforeAPastDate();
    void missingPathIsReportedBeforeMissingExtensions();
    void pastStartIsReportedBeforePastStop();
    void timeThatIsJustNowIsNotInTheFuture();
    void focusMovesButThePageDoesNot();
};

void TestTaskValidation::faultsAreReportedOneByOneInOrder()
{
    openForCreate();
    for (const char *edit : {"nameEdit", "programNameEdit", "targetProgramEdit"})
        blank(edit);
    ORVEL_REQUIRE_WIDGET(QComboBox, types, m_dialog.get(), "typeCombo");
    types->clear();
    setTime("specifiedDateTimeEdit", -60);
    setTime("stopAtTimeEdit", -60);
    choose("stopModeAtTime");

    saveFails(nameMissing);
    widget<QLineEdit>("nameEdit")->setText(u"Demo"_s);
    saveFails(u"Program name is required."_s);
    widget<QLineEdit>("programNameEdit")->setText(u"Recorder"_s);
    saveFails(u"Target program is required."_s);
    widget<QLineEdit>("targetProgramEdit")->setText(u"/opt/recorder"_s);
    saveFails(typeMissing);
    types->addItem(u"Without an id"_s, QString());
    saveFails(typeMissing);
    types->setItemData(0, u"task_type.screen_record"_s);
    saveFails(startPassed);
    choose("startModeEveryWeek");
    saveFails(dayMissing);
    choose("startModeMonitorApp");
    saveFails(programMissing);
    choose("startModeMonitorFolder");
    saveFails(folderMissing);
    widget<QLineEdit>("monitorFolderPathEdit")->setText(u"/srv/in"_s);
    saveFails(extensionsMissing);
    widget<QLineEdit>("monitorFileExtensionsEdit")->setText(u".mp4"_s);
    saveFails(stopPassed);
    setTime("stopAtTimeEdit", 60);
    saveSuccessfully();
    QCOMPARE(m_daemon->commands(), QStringList{u"task.create"_s});
}

void TestTaskValidation::faultMovesTheFocusToItsWidget_data()
{
    QTest::addColumn<QString>("radio");
    QTest::addColumn<QString>("text");
    QTest::newRow("nameEdit") << QString() << nameMissing;
    QTest::newRow("specifiedDateTimeEdit") << u"startModeSpecifiedTime"_s << startPassed;
    QTest::newRow("monitorProgramEdit") << u"startModeMonitorApp"_s << programMissing;
    QTest::newRow("monitorFolderPathEdit") << u"startModeMonitorFolder"_s << folderMissing;
    QTest::newRow("monitorFileExtensionsEdit") << u"startModeMonitorFolder"_s << extensionsMissing;
    QTest::newRow("stopAtTimeEdit") << u"stopModeAtTime"_s << stopPassed;
}

void TestTaskValidation::faultMovesTheFocusToItsWidget()
{
    QFETCH(const QString, radio);
    QFETCH(const QString, text);
    openSound();
    if (!radio.isEmpty())
        choose(qPrintable(radio));
    widget<QLineEdit>("monitorFolderPathEdit")->setText(u"/srv/in"_s);
    ORVEL_REQUIRE_WIDGET(QWidget, faulty, m_dialog.get(), QTest::currentDataTag());
    if (auto *const time = qobject_cast<QDateTimeEdit *>(faulty))
        time->setDateTime(QDateTime::currentDateTime().addSecs(-1));
    else
        blank(QTest::currentDataTag());
    saveFails(text);
    QCOMPARE(focused(), faulty->objectName());
}

void TestTaskValidation::faultThatNobodyCanMendHereMovesNoFocus_data()
{
    QTest::addColumn<QString>("programName");
    QTest::addColumn<QString>("programPath");
    QTest::addColumn<QString>("text");
    QTest::newRow("no name") << QString() << u"/opt/recorder"_s << u"Program name is required."_s;
    QTest::newRow("blank name") << u" "_s << QString() << u"Program name is required."_s;
    QTest::newRow("no path") << u"Recorder"_s << QString() << u"Target program is required."_s;
    QTest::newRow("blank path") << u"Recorder"_s << u" "_s << u"Target program is required."_s;
}

void TestTaskValidation::faultThatNobodyCanMendHereMovesNoFocus()
{
    QFETCH(const QString, programName);
    QFETCH(const QString, programPath);
    QFETCH(const QString, text);
    m_programName = programName;
    m_programPath = programPath;
    openSound();
    saveFails(text);
    QCOMPARE(focused(), u"enabledCheck"_s);
}

void TestTaskValidation::weekWithoutDaysMovesNoFocus()
{
    openSound();
    click(m_dialog.get(), "startModeEveryWeek");
    saveFails(dayMissing);
    QCOMPARE(focused(), u"enabledCheck"_s);
}

void TestTaskValidation::missingTypeFocusesTheTypes()
{
    setClientType(u"task_type.all"_s);
    answerTypes({});
    openSound();
    saveFails(typeMissing);
    QCOMPARE(focused(), u"typeCombo"_s);
}

void TestTaskValidation::unreachableDaemonLeavesNoType()
{
    m_client->disconnectFromDaemon();
    openSound();
    QCOMPARE(widget<QComboBox>("groupCombo")->count(), 0);
    saveFails(typeMissing);
}

void TestTaskValidation::nameOfOnlyBlanksIsBlank()
{
    openSound();
    widget<QLineEdit>("nameEdit")->setText(u"   "_s);
    saveFails(nameMissing);
    QCOMPARE(widget<QLineEdit>("nameEdit")->text(), u"   "_s);
}

void TestTaskValidation::blankNameIsReportedBeforeAPastDate()
{
    openSound();
    widget<QLineEdit>("nameEdit")->clear();
    setTime("specifiedDateTimeEdit", -60);
    saveFails(nameMissing);
}

void TestTaskValidation::missingPathIsReportedBeforeMissingExtensions()
{
    openSound();
    choose("startModeMonitorFolder");
    saveFails(folderMissing);
    QCOMPARE(focused(), u"monitorFolderPathEdit"_s);
}

void TestTaskValidation::pastStartIsReportedBeforePastStop()
{
    openSound();
    choose("stopModeAtTime");
    setTime("specifiedDateTimeEdit", -60);
    setTime("stopAtTimeEdit", -60);
    saveFails(startPassed);
    setTime("specifiedDateTimeEdit", 60);
    saveFails(stopPassed);
}

void TestTaskValidation::timeThatIsJustNowIsNotInTheFuture()
{
    openSound();
    setTime("specifiedDateTimeEdit", 0);
    saveFails(startPassed);
}

void TestTaskValidation::focusMovesButThePageDoesNot()
{
    openSound();
    ORVEL_REQUIRE_WIDGET(QListWidget, sections, m_dialog.get(), "navList");
    QScrollBar *const bar = widget<QScrollArea>("scrollArea")->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum());
    sections->setCurrentRow(6);
    blank("nameEdit");
    saveFails(nameMissing);
    QCOMPARE(focused(), u"nameEdit"_s);
    QCOMPARE(bar->value(), bar->maximum());
    QCOMPARE(sections->currentRow(), 6);
}

ORVEL_TEST_MAIN(QApplication, TestTaskValidation)
#include "tst_taskvalidation.moc"
