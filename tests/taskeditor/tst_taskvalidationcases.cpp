#include "taskvalidationfixture.h"
#include "testmain.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

QJsonObject params(const char *block, const QJsonObject &members)
{
    return {{QString::fromLatin1(block), members}};
}

QJsonObject start(const QString &mode, const QJsonObject &more = {})
{
    QJsonObject members{{u"mode"_s, mode}};
    for (auto member = more.begin(); member != more.end(); ++member)
        members.insert(member.key(), member.value());
    return params("startRecordingOn", members);
}

} // namespace

/// Tasks that are examined and found faulty or sound, and what is not examined at all.
class TestTaskValidationCases : public TaskValidationFixture {
    Q_OBJECT

private slots:
    void storedTaskOfAHiddenModeIsValidated_data();
    void storedTaskOfAHiddenModeIsValidated();
    void storedTaskWhoseDateHasPassedNeedsANewOne();
    void dialogLeftOpenPastItsTimeFails();
    void soundTaskPasses_data();
    void soundTaskPasses();
    void valuesOfOtherModesAreNotExamined();
    void customOutputWithoutAFolderPasses();
    void requiredFieldOfTheFormMayBeEmpty();
    void taskThatIsSwitchedOffIsNotExamined();
};

void TestTaskValidationCases::storedTaskOfAHiddenModeIsValidated_data()
{
    QTest::addColumn<QJsonObject>("stored");
    QTest::addColumn<QString>("text");
    QTest::newRow("monitorApp") << start(u"monitorApp"_s) << programMissing;
    QTest::newRow("monitorApp, blank") << start(u"monitorApp"_s, {{u"monitorProgram"_s, u"  "_s}}) << programMissing;
    QTest::newRow("monitorFolder") << start(u"monitorFolder"_s, {{u"monitorFileExtensions"_s, u".mp4"_s}})
                                   << folderMissing;
    QTest::newRow("monitorFolder, no extensions")
        << start(u"monitorFolder"_s, {{u"monitorFolderPath"_s, u"/srv/in"_s}}) << extensionsMissing;
    QTest::newRow("AtTime") << params("autoStopCondition",
                                      {{u"mode"_s, u"AtTime"_s}, {u"stopAtTime"_s, u"2020-01-01T00:00:00"_s}})
                            << stopPassed;
}

void TestTaskValidationCases::storedTaskOfAHiddenModeIsValidated()
{
    QFETCH(const QJsonObject, stored);
    QFETCH(const QString, text);
    openForEdit(stored);
    saveFails(text);
}

void TestTaskValidationCases::storedTaskWhoseDateHasPassedNeedsANewOne()
{
    openForEdit(start(u"SpecifiedTime"_s, {{u"specifiedDateTime"_s, u"2020-01-01T12:00:00"_s}}));
    widget<QLineEdit>("nameEdit")->setText(u"Another name"_s);
    saveFails(startPassed);
    QCOMPARE(widget<QDateTimeEdit>("specifiedDateTimeEdit")->date(), QDate(2020, 1, 1));
    setTime("specifiedDateTimeEdit", 60);
    saveSuccessfully();
    QCOMPARE(sentTask(u"task.update"_s).value("name"_L1).toString(), u"Another name"_s);
}

void TestTaskValidationCases::dialogLeftOpenPastItsTimeFails()
{
    m_daemon->refuse(u"task.create"_s, u"BUSY"_s, u"busy"_s);
    openSound();
    setTime("specifiedDateTimeEdit", 3);
    {
        ModalDriver driver;
        driver.expectBox(QMessageBox::Warning, u"Error"_s, u"Failed to save task. reason : BUSY: busy"_s);
        save();
        QVERIFY2(driver.finished(), driver.problems());
    }
    const QDateTime start = widget<QDateTimeEdit>("specifiedDateTimeEdit")->dateTime();
    QTRY_VERIFY(QDateTime::currentDateTime() >= start);
    saveFails(startPassed);
}

void TestTaskValidationCases::soundTaskPasses_data()
{
    QTest::addColumn<QString>("startRadio");
    QTest::addColumn<QString>("stopRadio");
    QTest::newRow("specified time") << u"startModeSpecifiedTime"_s << u"stopModeNone"_s;
    QTest::newRow("every day") << u"startModeEveryDay"_s << u"stopModeByDuration"_s;
    QTest::newRow("every week") << u"startModeEveryWeek"_s << u"stopModeByFileSize"_s;
    QTest::newRow("program") << u"startModeMonitorApp"_s << u"stopModeAtTime"_s;
    QTest::newRow("folder") << u"startModeMonitorFolder"_s << u"stopModeNone"_s;
}

void TestTaskValidationCases::soundTaskPasses()
{
    QFETCH(const QString, startRadio);
    QFETCH(const QString, stopRadio);
    openSound();
    choose(qPrintable(startRadio));
    choose(qPrintable(stopRadio));
    setTime("specifiedDateTimeEdit", 60);
    setTime("stopAtTimeEdit", 60);
    widget<QCheckBox>("weekdayCheckSun")->setChecked(true);
    widget<QLineEdit>("monitorProgramEdit")->setText(u"/opt/watched"_s);
    widget<QLineEdit>("monitorFolderPathEdit")->setText(u"/srv/in"_s);
    widget<QLineEdit>("monitorFileExtensionsEdit")->setText(u".mp4"_s);
    saveSuccessfully();
    QCOMPARE(m_daemon->requests(u"task.create"_s).size(), 1);
}

void TestTaskValidationCases::valuesOfOtherModesAreNotExamined()
{
    openSound();
    click(m_dialog.get(), "startModeEveryDay");
    setTime("specifiedDateTimeEdit", -60);
    setTime("stopAtTimeEdit", -60);
    for (const char *edit : {"monitorProgramEdit", "monitorFolderPathEdit", "monitorFileExtensionsEdit"})
        blank(edit);
    saveSuccessfully();
    QCOMPARE(m_daemon->requests(u"task.create"_s).size(), 1);
}

void TestTaskValidationCases::customOutputWithoutAFolderPasses()
{
    openSound();
    click(m_dialog.get(), "useCustomOutputRadio");
    blank("customFolderEdit");
    blank("customFileNamePatternEdit");
    saveSuccessfully();
    const QJsonObject output =
        sentTask(u"task.create"_s).value("paramsJson"_L1).toObject().value("outputSettings"_L1).toObject();
    QCOMPARE(output,
             (QJsonObject{
                 {u"mode"_s, u"Custom"_s}, {u"customFolder"_s, QString()}, {u"customFileNamePattern"_s, QString()}}));
}

void TestTaskValidationCases::requiredFieldOfTheFormMayBeEmpty()
{
    answerTypes(
        {typeJson(u"task_type.screen_record"_s, {fieldJson(u"title"_s, u"string"_s, {{u"required"_s, true}})})});
    openSound();
    saveSuccessfully();
    const QJsonObject sent = sentTask(u"task.create"_s).value("paramsJson"_L1).toObject();
    QCOMPARE(sent.value("dynamicParams"_L1).toObject(), (QJsonObject{{u"title"_s, QString()}}));
}

void TestTaskValidationCases::taskThatIsSwitchedOffIsNotExamined()
{
    openForCreate();
    for (const char *edit : {"nameEdit", "programNameEdit", "targetProgramEdit"})
        blank(edit);
    choose("stopModeAtTime");
    setTime("specifiedDateTimeEdit", -60);
    setTime("stopAtTimeEdit", -60);
    click(m_dialog.get(), "enabledCheck");
    saveSuccessfully();
    const QJsonObject sent = sentTask(u"task.create"_s);
    QCOMPARE(sent.value("name"_L1).toString(u"(none)"_s), QString());
    QCOMPARE(sent.value("enabled"_L1).toBool(true), false);
}

ORVEL_TEST_MAIN(QApplication, TestTaskValidationCases)
#include "tst_taskvalidationcases.moc"
