#include "taskdialogfixture.h"
#include "taskparams.h"
#include "testmain.h"

#include <QDateTimeEdit>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// The document of a task, from the widgets and into them.
class TestTaskDocument : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void documentComesBackUnchanged_data();
    void documentComesBackUnchanged();
    void documentIsMended_data();
    void documentIsMended();
    void emptyParamsLeaveEveryWidgetAtItsStart();
    void unknownStartModeIsSavedAsTheStartingTime();
    void topLevelComesFromTheWidgetsAndTheHost();
    void valuesOfOtherModesAreDropped();

private:
    [[nodiscard]] QJsonObject paramsAfterLoading(const QJsonObject &params);
};

QJsonObject TestTaskDocument::paramsAfterLoading(const QJsonObject &params)
{
    openForEdit(params);
    return m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject();
}

void TestTaskDocument::documentComesBackUnchanged_data()
{
    QTest::addColumn<QJsonObject>("params");
    const auto row = [](const char *name, const char *members) {
        QTest::newRow(name) << TaskParams::plainWith(members);
    };
    row("specified time",
        R"({"startRecordingOn": {"mode": "SpecifiedTime", "specifiedDateTime": "2031-02-03T04:05:06"}})");
    row("specified time in the past",
        R"({"startRecordingOn": {"mode": "SpecifiedTime", "specifiedDateTime": "2001-02-03T23:59:59"}})");
    row("every day", R"({"startRecordingOn": {"mode": "EveryDay", "dailyTime": "23:59:58"}})");
    row("every week, all days",
        R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyTime": "00:00:00",
            "weeklyDays": ["Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"]}})");
    row("every week, some days",
        R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyTime": "12:30:00", "weeklyDays": ["Tue", "Sun"]}})");
    row("every week, no day",
        R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyTime": "12:30:00", "weeklyDays": []}})");
    row("program, a hidden mode",
        R"({"startRecordingOn": {"mode": "monitorApp", "monitorProgram": "C:\\a b\\c.exe"}})");
    row("folder, a hidden mode",
        R"({"startRecordingOn": {"mode": "monitorFolder", "monitorFolderPath": "/in", "monitorFileExtensions": ".a,.b"}})");
    row("program without a path", R"({"startRecordingOn": {"mode": "monitorApp", "monitorProgram": ""}})");
    row("all actions before the start", R"({"actionBeforeAutoStart":
            {"runProgram": "/bin/x", "openUrl": "not an address", "sleepAfterSeconds": 3600}})");
    row("one action before the start", R"({"actionBeforeAutoStart": {"openUrl": "https://www.example.com"}})");
    row("only a wait before the start", R"({"actionBeforeAutoStart": {"sleepAfterSeconds": 1}})");
    row("stop by duration", R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 5184000}})");
    row("stop by size", R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 1073741824}})");
    row("largest size", R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 10995116277760}})");
    row("stop at a time, a hidden mode",
        R"({"autoStopCondition": {"mode": "AtTime", "stopAtTime": "2031-12-31T00:00:00"}})");
    row("close the program", R"({"actionAfterAutoStop": {"action": "CloseProgram"}})");
    row("shut down", R"({"actionAfterAutoStop": {"action": "ShutdownComputer"}})");
    row("own output", R"({"outputSettings":
            {"mode": "Custom", "customFolder": "/out", "customFileNamePattern": "[TaskName]"}})");
    row("own output, all empty",
        R"({"outputSettings": {"mode": "Custom", "customFolder": "", "customFileNamePattern": ""}})");
    row("minimized", R"({"displayMode": "Minimize"})");
    row("hidden", R"({"displayMode": "Hide"})");
    row("parameters", R"({"dynamicParams": {"fps": 99, "format": "AVI", "title": "<b>研修 🎬</b> %1"}})");
}

void TestTaskDocument::documentComesBackUnchanged()
{
    QFETCH(const QJsonObject, params);
    QCOMPARE(paramsAfterLoading(params), params);
}

void TestTaskDocument::documentIsMended_data()
{
    QTest::addColumn<QJsonObject>("stored");
    QTest::addColumn<QJsonObject>("saved");
    const auto row = [](const char *name, const char *stored, const char *saved) {
        QTest::newRow(name) << TaskParams::plainWith(stored) << TaskParams::plainWith(saved);
    };
    row("seconds are rounded up to minutes", R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 61}})",
        R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 120}})");
    row("no duration becomes a minute", R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 0}})",
        R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 60}})");
    row("negative duration becomes a minute",
        R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": -600}})",
        R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 60}})");
    row("longest duration", R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 2147483647}})",
        R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 5184000}})");
    row("duration of a wrong type", R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": "600"}})",
        R"({"autoStopCondition": {"mode": "ByDuration", "durationSeconds": 60}})");
    row("size is rounded to what is shown",
        R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 1000000000}})",
        R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 1000026931}})");
    row("fraction of a byte", R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 1073741824.9}})",
        R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 1073741824}})");
    row("negative size", R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": -1e300}})",
        R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 204800}})");
    row("immense size", R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 1e300}})",
        R"({"autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 10995116277760}})");
    row("foreign members", R"({"taskFields": {"a": 1}, "foreign": [1, 2],
            "startRecordingOn": {"mode": "EveryDay", "dailyTime": "09:00:00", "weeklyDays": ["Mon"]}})",
        "{}");
    row("empty action before the start", R"({"actionBeforeAutoStart": {}})", "{}");
    row("blank actions before the start",
        R"({"actionBeforeAutoStart": {"runProgram": "  ", "openUrl": "\t", "sleepAfterSeconds": 0}})", "{}");
    row("actions before the start of wrong types",
        R"({"actionBeforeAutoStart": {"runProgram": 1, "openUrl": [], "sleepAfterSeconds": "9"}})", "{}");
    row("wait beyond the limit", R"({"actionBeforeAutoStart": {"sleepAfterSeconds": 9999}})",
        R"({"actionBeforeAutoStart": {"sleepAfterSeconds": 3600}})");
    row("texts are trimmed", R"({"actionBeforeAutoStart": {"runProgram": "  /bin/x  "}})",
        R"({"actionBeforeAutoStart": {"runProgram": "/bin/x"}})");
    row("days in disorder, doubled, unknown and translated",
        R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyTime": "09:00:00",
            "weeklyDays": ["Sun", "Mon", "Mon", "mon", "Montag", 3]}})",
        R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyTime": "09:00:00", "weeklyDays": ["Mon", "Sun"]}})");
    row("parameters that no longer exist", R"({"dynamicParams": {"fps": 25, "gone": true}})",
        R"({"dynamicParams": {"fps": 25, "format": "MP4", "title": ""}})");
    row("option that no longer exists", R"({"dynamicParams": {"format": "WMV"}})", "{}");
    row("parameter beyond its range", R"({"dynamicParams": {"fps": 9999}})",
        R"({"dynamicParams": {"fps": 240, "format": "MP4", "title": ""}})");
    row("parameters of wrong types", R"({"dynamicParams": {"fps": "12", "format": 1, "title": {}}})",
        R"({"dynamicParams": {"fps": 0, "format": "MP4", "title": ""}})");
    row("parameters that are no object", R"({"dynamicParams": "fps"})", "{}");
}

void TestTaskDocument::documentIsMended()
{
    QFETCH(const QJsonObject, stored);
    QFETCH(const QJsonObject, saved);
    QCOMPARE(paramsAfterLoading(stored), saved);
    QCOMPARE(paramsAfterLoading(saved), saved);
}

void TestTaskDocument::emptyParamsLeaveEveryWidgetAtItsStart()
{
    openForCreate(u"g1"_s);
    QJsonObject fresh = m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject();
    const auto start = widget<QDateTimeEdit>("specifiedDateTimeEdit")->dateTime();
    const auto stop = widget<QDateTimeEdit>("stopAtTimeEdit")->dateTime();
    m_dialog->loadTaskParams({});
    QCOMPARE(widget<QDateTimeEdit>("specifiedDateTimeEdit")->dateTime(), start);
    QCOMPARE(widget<QDateTimeEdit>("stopAtTimeEdit")->dateTime(), stop);
    QCOMPARE(m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject(), fresh);
}

void TestTaskDocument::unknownStartModeIsSavedAsTheStartingTime()
{
    openForCreate();
    const QString start = widget<QDateTimeEdit>("specifiedDateTimeEdit")->dateTime().toString(Qt::ISODate);
    m_dialog->loadTaskParams(FormFields::object(R"({"startRecordingOn": {"mode": "Sometimes"}})"));
    QCOMPARE(m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject().value("startRecordingOn"_L1).toObject(),
             QJsonObject({{u"mode"_s, u"SpecifiedTime"_s}, {u"specifiedDateTime"_s, start}}));
}

void TestTaskDocument::topLevelComesFromTheWidgetsAndTheHost()
{
    m_programName = u"  Recorder 2 "_s;
    m_programPath = u" /opt/recorder 2 "_s;
    openForEdit(TaskParams::plain(), {{u"name"_s, u"  Demo  "_s},
                                      {u"groupId"_s, u"g2"_s},
                                      {u"enabled"_s, false},
                                      {u"programName"_s, u"Stored"_s},
                                      {u"targetProgram"_s, u"/stored"_s}});
    QJsonObject document = m_dialog->collectTaskDocument();
    QCOMPARE(document.take("paramsJson"_L1).toObject(), TaskParams::plain());
    QCOMPARE(document, FormFields::object(R"({"name": "Demo", "type": "task_type.screen_record", "enabled": false,
                 "groupId": "g2", "programName": "Recorder 2", "targetProgram": "/opt/recorder 2"})"));
}

void TestTaskDocument::valuesOfOtherModesAreDropped()
{
    openForEdit(TaskParams::plainWith(R"({"startRecordingOn": {"mode": "monitorApp", "monitorProgram": "/bin/x"},
                                    "autoStopCondition": {"mode": "ByDuration", "durationSeconds": 600},
                                    "outputSettings": {"mode": "Custom", "customFolder": "/out"}})"));
    choose("startModeEveryDay");
    choose("stopModeNone");
    choose("useDefaultOutputRadio");
    QCOMPARE(m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject(), TaskParams::plain());
    // Hidden, but still held.
    choose("startModeMonitorApp");
    QCOMPARE(m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject().value("startRecordingOn"_L1).toObject(),
             FormFields::object(R"({"mode": "monitorApp", "monitorProgram": "/bin/x"})"));
}

ORVEL_TEST_MAIN(QApplication, TestTaskDocument)
#include "tst_taskdocument.moc"
