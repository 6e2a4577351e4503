#include "taskdialogfixture.h"
#include "testmain.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// Each widget of the dialog by itself, as it stands in a new task.
class TestTaskDialogWidgets : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void labelShowsItsText_data();
    void labelShowsItsText();
    void buttonShowsItsText_data();
    void buttonShowsItsText();
    void lineEditStarts_data();
    void lineEditStarts();
    void spinBoxStarts_data();
    void spinBoxStarts();
    void dateAndTimeEditStarts_data();
    void dateAndTimeEditStarts();
    void startingTimesCountFromTheOpening();
    void switchStandsInTheTopBar();
    void helpButtonIsNarrow();
    void hintAboutWaitingWraps();
};

void TestTaskDialogWidgets::labelShowsItsText_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QString &text) { QTest::newRow(name) << text; };
    row("enabledLabel", u"Task Status : "_s);
    row("enabledStatusLabel", u"ON"_s);
    row("basicSectionLabel", u"📋 Basic Information"_s);
    row("labelTaskName", u"Task Name (*):"_s);
    row("labelProgramName", u"Program Name (*):"_s);
    row("labelTargetProgram", u"Target Program (*):"_s);
    row("labelTaskType", u"Task Type (*):"_s);
    row("labelGroup", u"Group:"_s);
    row("outputSectionLabel", u"💾 Output Settings"_s);
    row("labelCustomFolder", u"Custom Folder:"_s);
    row("labelFileNamePattern", u"File Name Pattern:"_s);
    row("actionBeforeSectionLabel", u"🚀 Action Before Auto Start"_s);
    row("labelRunProgram", u"Run Program:"_s);
    row("labelOpenUrl", u"Open URL:"_s);
    row("label", u"After completing the above steps, wait for a while for the data or page to load completely :"_s);
    row("labelSleepAfter", u"Wait for :"_s);
    row("startRecordingSectionLabel", u"⏰ Start Target Program On"_s);
    row("m_startProgramName", u" [ Recorder ] "_s);
    row("labelSpecifiedDateTime", u"Specified Date/Time(*):"_s);
    row("labelDailyTime", u"Daily Time (HH:MM:SS) *:"_s);
    row("labelSelectDays", u"Select Days (*):"_s);
    row("labelWeeklyTime", u"Weekly Time (HH:MM:SS) *:"_s);
    row("labelMonitorProgram", u"Monitor Program (*):"_s);
    row("labelMonitorFolder", u"Monitor Folder (*):"_s);
    row("labelFileExtensions", u"File Extensions (*):"_s);
    row("autoStopSectionLabel", u"⏹️ Auto Stop Condition"_s);
    row("labelDuration", u"Duration (*):"_s);
    row("labelFileSize", u"Task File(s) Size (*):"_s);
    row("labelStopAtTime", u"Stop At Time (*):"_s);
    row("actionAfterSectionLabel", u"🏁 Action After Auto Stop"_s);
    row("displaySectionLabel", u"🖥️ Display Mode"_s);
}

void TestTaskDialogWidgets::labelShowsItsText()
{
    QFETCH(const QString, text);
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QLabel, label, m_dialog.get(), QTest::currentDataTag());
    QCOMPARE(label->text(), text);
}

void TestTaskDialogWidgets::buttonShowsItsText_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("checked");
    const auto row = [](const char *className, const char *name, const QString &text, bool checked = false) {
        QTest::newRow(name) << QString::fromLatin1(className) << text << checked;
    };
    row("QCheckBox", "enabledCheck", {}, true);
    row("QRadioButton", "useDefaultOutputRadio", u"Use Default Output"_s, true);
    row("QRadioButton", "useCustomOutputRadio", u"Custom Output"_s);
    row("QPushButton", "browseOutputBtn", u"Browse..."_s);
    row("QPushButton", "fileNameHelpBtn", u"?"_s);
    row("QPushButton", "browseRunProgramBtn", u"Browse..."_s);
    row("QRadioButton", "startModeSpecifiedTime", u"📅 Specified Time"_s, true);
    row("QRadioButton", "startModeEveryDay", u"🔁 Every Day"_s);
    row("QRadioButton", "startModeEveryWeek", u"📆 Every Week"_s);
    row("QRadioButton", "startModeMonitorApp", u"🖥️ Monitor App"_s);
    row("QRadioButton", "startModeMonitorFolder", u"📁 Monitor Folder"_s);
    row("QCheckBox", "weekdayCheckMon", u"Mon"_s);
    row("QCheckBox", "weekdayCheckTue", u"Tue"_s);
    row("QCheckBox", "weekdayCheckWed", u"Wed"_s);
    row("QCheckBox", "weekdayCheckThu", u"Thu"_s);
    row("QCheckBox", "weekdayCheckFri", u"Fri"_s);
    row("QCheckBox", "weekdayCheckSat", u"Sat"_s);
    row("QCheckBox", "weekdayCheckSun", u"Sun"_s);
    row("QPushButton", "browseMonitorProgramBtn", u"Browse..."_s);
    row("QPushButton", "browseMonitorFolderBtn", u"Browse..."_s);
    row("QRadioButton", "stopModeNone", u"🚫 None"_s, true);
    row("QRadioButton", "stopModeByDuration", u"⏱️ By Duration"_s);
    row("QRadioButton", "stopModeByFileSize", u"💾 By File Size"_s);
    row("QRadioButton", "stopModeAtTime", u"🕐 At Time"_s);
    row("QRadioButton", "afterActionNone", u"🚫 None"_s, true);
    row("QRadioButton", "afterActionCloseProgram", u"❌ Close Program"_s);
    row("QRadioButton", "afterActionShutdown", u"🔌 Shutdown Computer"_s);
    row("QRadioButton", "displayModeShow", u"👁️ Show"_s, true);
    row("QRadioButton", "displayModeMinimize", u"🔽 Minimize"_s);
    row("QRadioButton", "displayModeHide", u"🙈 Hide"_s);
}

void TestTaskDialogWidgets::buttonShowsItsText()
{
    QFETCH(const QString, className);
    QFETCH(const QString, text);
    QFETCH(const bool, checked);
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QAbstractButton, found, m_dialog.get(), QTest::currentDataTag());
    QCOMPARE(QString::fromLatin1(found->metaObject()->className()), className);
    QCOMPARE(found->text(), text);
    QCOMPARE(found->isChecked(), checked);
}

void TestTaskDialogWidgets::lineEditStarts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("placeholder");
    QTest::addColumn<bool>("fixed"); // whether it only shows what the host gave
    const QString pattern = u"[YYYY-MM-DD][hh-mm-ss]_[TaskName]"_s;
    QTest::newRow("nameEdit") << QString() << QString() << false;
    QTest::newRow("programNameEdit") << u"Recorder"_s << QString() << true;
    QTest::newRow("targetProgramEdit") << u"/opt/recorder"_s << QString() << true;
    QTest::newRow("customFolderEdit") << QString() << QString() << false;
    QTest::newRow("customFileNamePatternEdit") << pattern << pattern << false;
    QTest::newRow("runProgramEdit") << QString() << QString() << false;
    QTest::newRow("openUrlEdit") << QString() << u"e.g., https://www.example.com"_s << false;
    QTest::newRow("monitorProgramEdit") << QString() << QString() << false;
    QTest::newRow("monitorFolderPathEdit") << QString() << QString() << false;
    QTest::newRow("monitorFileExtensionsEdit") << QString() << u"e.g., .mp4,.avi,.mkv"_s << false;
}

void TestTaskDialogWidgets::lineEditStarts()
{
    QFETCH(const QString, text);
    QFETCH(const QString, placeholder);
    QFETCH(const bool, fixed);
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QLineEdit, edit, m_dialog.get(), QTest::currentDataTag());
    QCOMPARE(edit->text(), text);
    QCOMPARE(edit->placeholderText(), placeholder);
    QCOMPARE(edit->isReadOnly(), fixed);
    const bool disabled = edit->objectName() == "programNameEdit"_L1;
    QCOMPARE(edit->isEnabledTo(edit->parentWidget()), !disabled);
}

void TestTaskDialogWidgets::spinBoxStarts_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::newRow("sleepAfterSecondsSpin") << u" seconds"_s << 0 << 3600 << 0;
    QTest::newRow("durationMinutesSpin") << u" minutes"_s << 1 << 86400 << 5;
}

void TestTaskDialogWidgets::spinBoxStarts()
{
    QFETCH(const QString, suffix);
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    QFETCH(const int, value);
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QSpinBox, box, m_dialog.get(), QTest::currentDataTag());
    QCOMPARE(box->suffix(), suffix);
    QCOMPARE(box->minimum(), minimum);
    QCOMPARE(box->maximum(), maximum);
    QCOMPARE(box->value(), value);
}

void TestTaskDialogWidgets::dateAndTimeEditStarts_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("calendar");
    QTest::newRow("specifiedDateTimeEdit") << u"QDateTimeEdit"_s << u"yyyy-MM-dd HH:mm:ss"_s << true;
    QTest::newRow("stopAtTimeEdit") << u"QDateTimeEdit"_s << u"yyyy-MM-dd HH:mm:ss"_s << true;
    QTest::newRow("dailyTimeEdit") << u"QTimeEdit"_s << u"HH:mm:ss"_s << false;
    QTest::newRow("weeklyTimeEdit") << u"QTimeEdit"_s << u"HH:mm:ss"_s << false;
}

void TestTaskDialogWidgets::dateAndTimeEditStarts()
{
    QFETCH(const QString, className);
    QFETCH(const QString, format);
    QFETCH(const bool, calendar);
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QDateTimeEdit, edit, m_dialog.get(), QTest::currentDataTag());
    QCOMPARE(QString::fromLatin1(edit->metaObject()->className()), className);
    QCOMPARE(edit->displayFormat(), format);
    QCOMPARE(edit->calendarPopup(), calendar);
    if (className == "QTimeEdit"_L1)
        QCOMPARE(edit->time(), QTime(9, 0));
}

void TestTaskDialogWidgets::startingTimesCountFromTheOpening()
{
    const QDateTime before = QDateTime::currentDateTime();
    openForCreate();
    const QDateTime after = QDateTime::currentDateTime();
    const QDateTime start = widget<QDateTimeEdit>("specifiedDateTimeEdit")->dateTime();
    const QDateTime stop = widget<QDateTimeEdit>("stopAtTimeEdit")->dateTime();
    // The edits may drop the fraction of a second that they do not show.
    QVERIFY(start > before.addSecs(3599) && start <= after.addSecs(3600));
    QVERIFY(stop > before.addSecs(7199) && stop <= after.addSecs(7200));
}

void TestTaskDialogWidgets::switchStandsInTheTopBar()
{
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QCheckBox, check, m_dialog.get(), "enabledCheck");
    QCOMPARE(check->minimumSize(), QSize(52, 28));
    QCOMPARE(check->maximumSize(), QSize(52, 28));
    QCOMPARE(widget<QLabel>("enabledLabel")->styleSheet(), u"font-size: 13px; font-weight: bold; color: #333;"_s);
    QCOMPARE(widget<QLabel>("enabledStatusLabel")->styleSheet(),
             u"font-size: 12px; font-weight: bold; color: #4cd964;"_s);
}

void TestTaskDialogWidgets::helpButtonIsNarrow()
{
    openForCreate();
    QCOMPARE(widget<QPushButton>("fileNameHelpBtn")->maximumWidth(), 30);
}

void TestTaskDialogWidgets::hintAboutWaitingWraps()
{
    openForCreate();
    QVERIFY(widget<QLabel>("label")->wordWrap());
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogWidgets)
#include "tst_taskdialogwidgets.moc"
