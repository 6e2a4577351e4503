#include "mcsfilesizespinbox.h"
#include "taskparams.h"
#include "taskvalidationfixture.h"
#include "testmain.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// What a document does to widgets that hold something else than their starting values, and what it leaves alone.
class TestTaskDocumentLoad : public TaskValidationFixture {
    Q_OBJECT

private slots:
    void missingMemberLeavesItsWidgetAlone_data();
    void missingMemberLeavesItsWidgetAlone();
    void unreadableMemberLeavesItsWidgetAlone_data();
    void unreadableMemberLeavesItsWidgetAlone();
    void unknownModeLeavesItsRadiosAlone_data();
    void unknownModeLeavesItsRadiosAlone();
    void documentTakesBackAnEarlierOne_data();
    void documentTakesBackAnEarlierOne();
    void leftOverFolderOfTheDefaultOutputIsIgnored();
    void weekWithoutDaysUnchecksThemAll_data();
    void weekWithoutDaysUnchecksThemAll();
    void editedTaskWithoutDaysCannotBeSavedSwitchedOn();

private:
    /// Leaves no widget that a document is read into at its starting value.
    void openFilled();
    [[nodiscard]] QJsonObject params() const;
    /// Loads the document of this test's row over what openFilled() has set. Only the "changed" members may differ
    /// then.
    void loadAndCompare();
};

void TestTaskDocumentLoad::openFilled()
{
    openForCreate();
    const auto setText = [this](const char *edit, const QString &text) { widget<QLineEdit>(edit)->setText(text); };
    widget<QDateTimeEdit>("specifiedDateTimeEdit")->setDateTime(QDateTime(QDate(2031, 2, 3), QTime(4, 5, 6)));
    widget<QTimeEdit>("dailyTimeEdit")->setTime(QTime(1, 2, 3));
    widget<QTimeEdit>("weeklyTimeEdit")->setTime(QTime(4, 5, 6));
    widget<QCheckBox>("weekdayCheckTue")->setChecked(true);
    widget<QCheckBox>("weekdayCheckSun")->setChecked(true);
    setText("monitorProgramEdit", u"/bin/watched"_s);
    setText("monitorFolderPathEdit", u"/in"_s);
    setText("monitorFileExtensionsEdit", u".in"_s);
    setText("runProgramEdit", u"/bin/first"_s);
    setText("openUrlEdit", u"page"_s);
    widget<QSpinBox>("sleepAfterSecondsSpin")->setValue(12);
    widget<QSpinBox>("durationMinutesSpin")->setValue(42);
    m_dialog->findChild<MCsFileSizeSpinBox *>()->setBytes(5368709120);
    widget<QDateTimeEdit>("stopAtTimeEdit")->setDateTime(QDateTime(QDate(2032, 3, 4), QTime(5, 6, 7)));
    setText("customFolderEdit", u"/out"_s);
    setText("customFileNamePatternEdit", u"pattern"_s);
    fps()->setValue(77);
    for (const char *radio : {"startModeEveryWeek", "stopModeByFileSize", "afterActionShutdown", "useCustomOutputRadio",
                              "displayModeMinimize"})
        choose(radio);
}

QJsonObject TestTaskDocumentLoad::params() const
{
    return m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject();
}

void TestTaskDocumentLoad::loadAndCompare()
{
    QFETCH(const QByteArray, stored);
    QFETCH(const QByteArray, changed);
    openFilled();
    const QJsonObject before = params();
    m_dialog->loadTaskParams(FormFields::object(stored.constData()));
    QCOMPARE(params(), TaskParams::merged(before, FormFields::object(changed.constData())));
}

void TestTaskDocumentLoad::missingMemberLeavesItsWidgetAlone_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("changed");
    const auto row = [](const char *name, const QByteArray &stored, const QByteArray &changed) {
        QTest::newRow(name) << stored << changed;
    };
    const auto start = [&row](const char *name, const QByteArray &stored, const QByteArray &shown) {
        row(name, R"({"startRecordingOn": )" + stored + "}", R"({"startRecordingOn": )" + shown + "}");
    };
    const auto stop = [&row](const char *name, const QByteArray &stored, const QByteArray &shown) {
        row(name, R"({"autoStopCondition": )" + stored + "}", R"({"autoStopCondition": )" + shown + "}");
    };
    row("everything", "{}", "{}");
    start("specified time", R"({"mode": "SpecifiedTime"})",
          R"({"mode": "SpecifiedTime", "specifiedDateTime": "2031-02-03T04:05:06"})");
    start("every day", R"({"mode": "EveryDay"})", R"({"mode": "EveryDay", "dailyTime": "01:02:03"})");
    start("every week", R"({"mode": "EveryWeek"})",
          R"({"mode": "EveryWeek", "weeklyDays": ["Tue", "Sun"], "weeklyTime": "04:05:06"})");
    start("every week, days", R"({"mode": "EveryWeek", "weeklyTime": "07:08:09"})",
          R"({"mode": "EveryWeek", "weeklyDays": ["Tue", "Sun"], "weeklyTime": "07:08:09"})");
    start("every week, time", R"({"mode": "EveryWeek", "weeklyDays": ["Mon"]})",
          R"({"mode": "EveryWeek", "weeklyDays": ["Mon"], "weeklyTime": "04:05:06"})");
    start("program", R"({"mode": "monitorApp"})", R"({"mode": "monitorApp", "monitorProgram": "/bin/watched"})");
    start("folder", R"({"mode": "monitorFolder"})",
          R"({"mode": "monitorFolder", "monitorFolderPath": "/in", "monitorFileExtensions": ".in"})");
    start("folder, path", R"({"mode": "monitorFolder", "monitorFileExtensions": ".new"})",
          R"({"mode": "monitorFolder", "monitorFolderPath": "/in", "monitorFileExtensions": ".new"})");
    start("folder, extensions", R"({"mode": "monitorFolder", "monitorFolderPath": "/new"})",
          R"({"mode": "monitorFolder", "monitorFolderPath": "/new", "monitorFileExtensions": ".in"})");
    row("actions before the start", R"({"actionBeforeAutoStart": {}})", "{}");
    row("actions before the start, but for one", R"({"actionBeforeAutoStart": {"openUrl": "new"}})",
        R"({"actionBeforeAutoStart": {"runProgram": "/bin/first", "openUrl": "new", "sleepAfterSeconds": 12}})");
    stop("duration", R"({"mode": "ByDuration"})", R"({"mode": "ByDuration", "durationSeconds": 2520})");
    stop("size", R"({"mode": "ByFileSize"})", R"({"mode": "ByFileSize", "fileSizeBytes": 5368709120})");
    stop("stop time", R"({"mode": "AtTime"})", R"({"mode": "AtTime", "stopAtTime": "2032-03-04T05:06:07"})");
    row("action after the stop", R"({"actionAfterAutoStop": {}})", "{}");
    row("own output", R"({"outputSettings": {"mode": "Custom"}})", "{}");
    row("own output, folder", R"({"outputSettings": {"mode": "Custom", "customFileNamePattern": "new"}})",
        R"({"outputSettings": {"mode": "Custom", "customFolder": "/out", "customFileNamePattern": "new"}})");
    row("own output, pattern", R"({"outputSettings": {"mode": "Custom", "customFolder": "/new"}})",
        R"({"outputSettings": {"mode": "Custom", "customFolder": "/new", "customFileNamePattern": "pattern"}})");
    row("parameters", R"({"dynamicParams": {}})", "{}");
    row("parameters, but for one", R"({"dynamicParams": {"format": "AVI"}})",
        R"({"dynamicParams": {"fps": 77, "format": "AVI", "title": ""}})");
}

void TestTaskDocumentLoad::missingMemberLeavesItsWidgetAlone()
{
    loadAndCompare();
}

void TestTaskDocumentLoad::unreadableMemberLeavesItsWidgetAlone_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("changed");
    for (const char *time : {R"("10:30")", R"("25:00:00")", R"("")", "10", "null"}) {
        QTest::addRow("daily time %s", time)
            << R"({"startRecordingOn": {"mode": "EveryDay", "dailyTime": )" + QByteArray(time) + "}}"
            << QByteArray(R"({"startRecordingOn": {"mode": "EveryDay", "dailyTime": "01:02:03"}})");
        QTest::addRow("weekly time %s", time)
            << R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyTime": )" + QByteArray(time) + "}}"
            << QByteArray("{}");
    }
    for (const char *time : {R"("soon")", R"("2031-13-01T00:00:00")", R"("")", "1"}) {
        QTest::addRow("start time %s", time)
            << R"({"startRecordingOn": {"mode": "SpecifiedTime", "specifiedDateTime": )" + QByteArray(time) + "}}"
            << QByteArray(R"({"startRecordingOn":
                          {"mode": "SpecifiedTime", "specifiedDateTime": "2031-02-03T04:05:06"}})");
        QTest::addRow("stop time %s", time)
            << R"({"autoStopCondition": {"mode": "AtTime", "stopAtTime": )" + QByteArray(time) + "}}"
            << QByteArray(R"({"autoStopCondition": {"mode": "AtTime", "stopAtTime": "2032-03-04T05:06:07"}})");
    }
}

void TestTaskDocumentLoad::unreadableMemberLeavesItsWidgetAlone()
{
    loadAndCompare();
}

void TestTaskDocumentLoad::unknownModeLeavesItsRadiosAlone_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("changed");
    for (const char *stored :
         {R"({"startRecordingOn": {"mode": "everyday", "dailyTime": "10:00:00"}})", R"({"startRecordingOn": {}})",
          R"({"startRecordingOn": {"mode": ""}})", R"({"startRecordingOn": {"mode": 1}})",
          R"({"startRecordingOn": "EveryDay"})", R"({"autoStopCondition": {"mode": "byduration"}})",
          R"({"autoStopCondition": {"durationSeconds": 600}})", R"({"autoStopCondition": {"mode": ""}})",
          R"({"autoStopCondition": {"mode": 1}})", R"({"autoStopCondition": "None"})",
          R"({"actionAfterAutoStop": {"action": "none"}})", R"({"actionAfterAutoStop": {"action": ""}})",
          R"({"actionAfterAutoStop": {"action": 0}})", R"({"actionAfterAutoStop": "None"})",
          R"({"displayMode": "show"})", R"({"displayMode": ""})", R"({"displayMode": {"mode": "Show"}})"})
        QTest::newRow(stored) << QByteArray(stored) << QByteArray("{}");
}

void TestTaskDocumentLoad::unknownModeLeavesItsRadiosAlone()
{
    loadAndCompare();
}

void TestTaskDocumentLoad::documentTakesBackAnEarlierOne_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("radio");
    QTest::addColumn<QString>("block"); ///< which the document then has no more, or only its mode
    const auto action = [](const char *name, const char *stored) {
        QTest::newRow(name) << QByteArray(stored) << u"afterActionNone"_s << u"actionAfterAutoStop"_s;
    };
    const auto output = [](const char *name, const char *stored) {
        QTest::newRow(name) << QByteArray(stored) << u"useDefaultOutputRadio"_s << u"outputSettings"_s;
    };
    action("no action after the stop", R"({"actionAfterAutoStop": {"action": "None"}})");
    output("default output", R"({"outputSettings": {"mode": "UseDefault"}})");
    output("unknown output", R"({"outputSettings": {"mode": "custom", "customFolder": "/x"}})");
    output("output mode of a wrong type", R"({"outputSettings": {"mode": 1}})");
    output("output of a wrong type", R"({"outputSettings": ["Custom"]})");
    output("output without a mode", R"({"outputSettings": {}})");
    output("left-over folder of the default output",
           R"({"outputSettings": {"mode": "UseDefault", "customFolder": "/x", "customFileNamePattern": "y"}})");
}

void TestTaskDocumentLoad::documentTakesBackAnEarlierOne()
{
    QFETCH(const QByteArray, stored);
    QFETCH(const QString, radio);
    QFETCH(const QString, block);
    openForEdit(TaskParams::plainWith(R"({"actionAfterAutoStop": {"action": "ShutdownComputer"},
        "outputSettings": {"mode": "Custom", "customFolder": "/out", "customFileNamePattern": "pattern"}})"));
    QVERIFY(!widget<QRadioButton>(qPrintable(radio))->isChecked());
    QJsonObject expected = params();
    expected.remove(block);
    if (block == "outputSettings"_L1)
        expected.insert(block, QJsonObject{{u"mode"_s, u"UseDefault"_s}});
    m_dialog->loadTaskParams(FormFields::object(stored.constData()));
    QVERIFY(widget<QRadioButton>(qPrintable(radio))->isChecked());
    QCOMPARE(params(), expected);
    QCOMPARE(widget<QLineEdit>("customFolderEdit")->text(), u"/out"_s);
    QCOMPARE(widget<QLineEdit>("customFileNamePatternEdit")->text(), u"pattern"_s);
}

void TestTaskDocumentLoad::leftOverFolderOfTheDefaultOutputIsIgnored()
{
    openForCreate();
    const QString pattern = widget<QLineEdit>("customFileNamePatternEdit")->text();
    openForEdit(TaskParams::plainWith(
        R"({"outputSettings": {"mode": "UseDefault", "customFolder": "/x", "customFileNamePattern": "y"}})"));
    QCOMPARE(widget<QLineEdit>("customFolderEdit")->text(), QString());
    QCOMPARE(widget<QLineEdit>("customFileNamePatternEdit")->text(), pattern);
    QCOMPARE(params(), TaskParams::plain());
}

void TestTaskDocumentLoad::weekWithoutDaysUnchecksThemAll_data()
{
    QTest::addColumn<QByteArray>("days");
    for (const char *days : {"[]", R"("Mon")", "null", R"({"Mon": true})", R"(["mon", "Monday", 1])"})
        QTest::newRow(days) << QByteArray(days);
}

void TestTaskDocumentLoad::weekWithoutDaysUnchecksThemAll()
{
    QFETCH(const QByteArray, days);
    openForEdit(TaskParams::plainWith(R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyTime": "04:05:06",
        "weeklyDays": ["Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"]}})"));
    const char *const names[] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    for (const char *name : names)
        QVERIFY(widget<QCheckBox>((QByteArray("weekdayCheck") + name).constData())->isChecked());
    const QByteArray stored = R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyDays": )" + days + "}}";
    m_dialog->loadTaskParams(FormFields::object(stored.constData()));
    for (const char *name : names)
        QVERIFY(!widget<QCheckBox>((QByteArray("weekdayCheck") + name).constData())->isChecked());
    QCOMPARE(params().value("startRecordingOn"_L1).toObject(),
             FormFields::object(R"({"mode": "EveryWeek", "weeklyDays": [], "weeklyTime": "04:05:06"})"));
}

void TestTaskDocumentLoad::editedTaskWithoutDaysCannotBeSavedSwitchedOn()
{
    openForEdit(TaskParams::plainWith(
        R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyTime": "12:30:00", "weeklyDays": []}})"));
    saveFails(dayMissing);
    widget<QCheckBox>("enabledCheck")->setChecked(false);
    saveSuccessfully();
    QCOMPARE(sentTask(u"task.update"_s)["paramsJson"_L1]["startRecordingOn"_L1].toObject(),
             FormFields::object(R"({"mode": "EveryWeek", "weeklyTime": "12:30:00", "weeklyDays": []})"));
}

ORVEL_TEST_MAIN(QApplication, TestTaskDocumentLoad)
#include "tst_taskdocumentload.moc"
