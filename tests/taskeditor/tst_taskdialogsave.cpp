#include "formfields.h"
#include "mcsdynamicformwidget.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString screenType = u"task_type.screen_record"_s;

QJsonObject storedValues(const QString &type = screenType)
{
    return MCsLastTaskDefaults().loadDefaults(type).value("dynamicParams"_L1).toObject();
}

QStringList settingsKeys()
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, u"Tamrix Laboratory"_s, u"Orvel Task Scheduler"_s)
        .allKeys();
}

} // namespace

/// Saving, what is remembered of it, and the daemon's troubles during it.
class TestTaskDialogSave : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void newTaskIsCreated();
    void editedTaskIsUpdated();
    void switchedOffTaskWithABlankNameIsSent();
    void cancelSendsNothingAndRemembersNothing();
    void refusalKeepsTheDialogAndItsInput_data();
    void refusalKeepsTheDialogAndItsInput();
    void answerThatTimesOutKeepsTheDialogAndItsInput();
    void connectionLostBeforeSave();
    void connectionLostDuringSave();
    void withoutAClientSaveStops();
    void answerWithoutAnIdIsAFailure();
    void secondPressWhileSavingSendsNothing();
    void dialogCancelledWhileSavingIsStillAccepted();
    void dialogCancelledWhileAFailingSaveShowsNoBox();
    void dialogDestroyedWhileSaving();
    void dialogDestroyedUnderTheBoxOfSuccess();
    void saveMayBeRepeatedAfterAFailure();
    void savedValuesAreOfferedToTheNextTask();
    void parameterFileBeatsTheLastValues();
    void optionsInTheParameterFileBeatTheLastValuesToo();
    void malformedParameterFileExcludesNothing();
    void editTakesNoLastValuesButWritesThem();
    void failedSaveRemembersNothing();
    void typesRememberApart();

private:
    void enterEverything();
    [[nodiscard]] QSpinBox *fps() const
    {
        return m_dialog->findChild<MCsDynamicFormWidget *>()->findChild<QSpinBox *>();
    }
    void expectFailure(ModalDriver &driver, const QString &reason)
    {
        driver.expectBox(QMessageBox::Warning, u"Error"_s, u"Failed to save task. reason : "_s + reason);
    }
};

/// Leaves no widget of the document at its starting value.
void TestTaskDialogSave::enterEverything()
{
    widget<QLineEdit>("nameEdit")->setText(u"Typed"_s);
    widget<QComboBox>("groupCombo")->setCurrentIndex(2);
    choose("startModeEveryWeek");
    widget<QCheckBox>("weekdayCheckWed")->setChecked(true);
    choose("stopModeByFileSize");
    choose("useCustomOutputRadio");
    widget<QLineEdit>("customFolderEdit")->setText(u"/typed"_s);
    widget<QLineEdit>("runProgramEdit")->setText(u"/bin/typed"_s);
    choose("afterActionShutdown");
    choose("displayModeHide");
    fps()->setValue(77);
}

void TestTaskDialogSave::newTaskIsCreated()
{
    openForCreate();
    enterEverything();
    const QJsonObject document = m_dialog->collectTaskDocument();
    saveSuccessfully();
    QCOMPARE(sentTask(u"task.create"_s), document);
    QVERIFY(!m_dialog->isVisible());
}

void TestTaskDialogSave::editedTaskIsUpdated()
{
    openForEdit();
    enterEverything();
    const QJsonObject document = m_dialog->collectTaskDocument();
    saveSuccessfully();
    QCOMPARE(sentTask(u"task.update"_s), document);
    QCOMPARE(m_daemon->requests(u"task.update"_s).first().value("payload"_L1).toObject().value("taskId"_L1).toString(),
             u"t1"_s);
}

void TestTaskDialogSave::switchedOffTaskWithABlankNameIsSent()
{
    openForCreate();
    widget<QCheckBox>("enabledCheck")->setChecked(false);
    saveSuccessfully();
    QCOMPARE(sentTask(u"task.create"_s).value("name"_L1), QJsonValue(u""_s));
    QCOMPARE(sentTask(u"task.create"_s).value("enabled"_L1), QJsonValue(false));
}

void TestTaskDialogSave::cancelSendsNothingAndRemembersNothing()
{
    openForCreate();
    enterEverything();
    m_daemon->clearRequests();
    QVERIFY(click(button(QDialogButtonBox::Cancel)));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(m_daemon->commands(), QStringList());
    QCOMPARE(settingsKeys(), QStringList());
}

void TestTaskDialogSave::refusalKeepsTheDialogAndItsInput_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("message");
    QTest::newRow("create") << u"task.create"_s << u"no room"_s;
    QTest::newRow("update") << u"task.update"_s << u"no room"_s;
    QTest::newRow("markup") << u"task.update"_s << u"<b>%1</b>&lt;<a href='x'>y</a>"_s;
}

void TestTaskDialogSave::refusalKeepsTheDialogAndItsInput()
{
    QFETCH(const QString, command);
    QFETCH(const QString, message);
    m_daemon->refuse(command, u"INVALID_TASK"_s, message);
    if (command == "task.create"_L1)
        openForCreate();
    else
        openForEdit();
    enterEverything();
    const QJsonObject before = m_dialog->collectTaskDocument();
    ModalDriver driver;
    expectFailure(driver, u"INVALID_TASK: "_s + message);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->collectTaskDocument(), before);
}

void TestTaskDialogSave::answerThatTimesOutKeepsTheDialogAndItsInput()
{
    openForEdit();
    enterEverything();
    const QJsonObject before = m_dialog->collectTaskDocument();
    m_daemon->ignore(u"task.update"_s);
    ModalDriver driver;
    expectFailure(driver, u"TIMEOUT: Request timed out after 2000ms"_s);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->collectTaskDocument(), before);
}

void TestTaskDialogSave::connectionLostBeforeSave()
{
    openForEdit();
    enterEverything();
    const QJsonObject before = m_dialog->collectTaskDocument();
    m_client->disconnectFromDaemon();
    m_daemon->clearRequests();
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Connection Error"_s, u"Not connected to daemon. Please connect first."_s);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->collectTaskDocument(), before);
    QCOMPARE(m_daemon->commands(), QStringList());
}

void TestTaskDialogSave::connectionLostDuringSave()
{
    openForEdit();
    enterEverything();
    const QJsonObject before = m_dialog->collectTaskDocument();
    whileWaiting(u"task.update"_s, [this] { m_daemon->dropConnections(); });
    ModalDriver driver;
    expectFailure(driver, u"TIMEOUT: Request timed out after 2000ms"_s);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->collectTaskDocument(), before);
}

void TestTaskDialogSave::withoutAClientSaveStops()
{
    openForEdit();
    m_client.reset();
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Connection Error"_s, u"Not connected to daemon. Please connect first."_s);
    save();
    QVERIFY2(driver.finished(), driver.problems());
}

void TestTaskDialogSave::answerWithoutAnIdIsAFailure()
{
    m_daemon->answer(u"task.create"_s, {});
    openForCreate();
    enterEverything();
    ModalDriver driver;
    expectFailure(driver, QString());
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog->isVisible());
}

void TestTaskDialogSave::secondPressWhileSavingSendsNothing()
{
    openForCreate();
    enterEverything();
    whileWaiting(u"task.create"_s, [this] { save(); });
    saveSuccessfully();
    QCOMPARE(m_daemon->requests(u"task.create"_s).size(), 1);
}

void TestTaskDialogSave::dialogCancelledWhileSavingIsStillAccepted()
{
    openForCreate();
    enterEverything();
    whileWaiting(u"task.create"_s, [this] { click(button(QDialogButtonBox::Cancel)); });
    saveSuccessfully();
    QVERIFY(!m_dialog->isVisible());
}

void TestTaskDialogSave::dialogCancelledWhileAFailingSaveShowsNoBox()
{
    m_daemon->refuse(u"task.create"_s, u"X"_s, u"no"_s);
    openForCreate();
    enterEverything();
    whileWaiting(u"task.create"_s, [this] { click(button(QDialogButtonBox::Cancel)); });
    ModalDriver driver;
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
}

void TestTaskDialogSave::dialogDestroyedWhileSaving()
{
    openForCreate();
    enterEverything();
    whileWaiting(u"task.create"_s, [this] { m_dialog.reset(); });
    ModalDriver driver;
    button(QDialogButtonBox::Save)->click();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog == nullptr);
    QCOMPARE(settingsKeys(), QStringList());
}

void TestTaskDialogSave::dialogDestroyedUnderTheBoxOfSuccess()
{
    openForCreate();
    enterEverything();
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Success"_s, [this](QMessageBox *) { m_dialog.reset(); });
    button(QDialogButtonBox::Save)->click();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog == nullptr);
    // It was stored all the same.
    QCOMPARE(storedValues().value("fps"_L1).toInt(), 77);
}

void TestTaskDialogSave::saveMayBeRepeatedAfterAFailure()
{
    m_daemon->refuse(u"task.create"_s, u"X"_s, u"no"_s);
    openForCreate();
    enterEverything();
    {
        ModalDriver driver;
        expectFailure(driver, u"X: no"_s);
        save();
        QVERIFY2(driver.finished(), driver.problems());
    }
    m_daemon->answer(u"task.create"_s, {{u"taskId"_s, u"t9"_s}});
    saveSuccessfully();
    QCOMPARE(m_daemon->requests(u"task.create"_s).size(), 2);
}

void TestTaskDialogSave::savedValuesAreOfferedToTheNextTask()
{
    openForCreate();
    QCOMPARE(fps()->value(), 30);
    enterEverything();
    saveSuccessfully();
    openForCreate();
    QCOMPARE(fps()->value(), 77);
    // Nothing else comes back.
    QCOMPARE(widget<QLineEdit>("runProgramEdit")->text(), QString());
    QCOMPARE(m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject().value("displayMode"_L1).toString(),
             u"Show"_s);
    QCOMPARE(widget<QComboBox>("groupCombo")->currentIndex(), 0);
}

void TestTaskDialogSave::parameterFileBeatsTheLastValues()
{
    openForCreate();
    enterEverything();
    saveSuccessfully();
    openForCreate({}, u"{\"fps\": 24, \"other\": 1}"_s);
    QCOMPARE(fps()->value(), 24);
}

void TestTaskDialogSave::optionsInTheParameterFileBeatTheLastValuesToo()
{
    MCsLastTaskDefaults().saveDefaults(
        screenType, FormFields::object(R"({"paramsJson": {"dynamicParams": {"fps": 77, "format": "AVI"}}})"));
    openForCreate({}, u"{\"format\": {\"options\": [\"MKV\", \"AVI\"]}}"_s);
    QCOMPARE(m_dialog->findChild<MCsDynamicFormWidget *>()->findChild<QComboBox *>()->currentText(), u"MKV"_s);
    QCOMPARE(fps()->value(), 77);
}

void TestTaskDialogSave::malformedParameterFileExcludesNothing()
{
    MCsLastTaskDefaults().saveDefaults(screenType,
                                       FormFields::object(R"({"paramsJson": {"dynamicParams": {"fps": 77}}})"));
    openForCreate({}, u"{\"fps\": 24,"_s);
    QCOMPARE(fps()->value(), 77);
}

void TestTaskDialogSave::editTakesNoLastValuesButWritesThem()
{
    MCsLastTaskDefaults().saveDefaults(
        screenType, FormFields::object(R"({"paramsJson": {"dynamicParams": {"fps": 77, "gone": 1}}})"));
    openForEdit({{u"dynamicParams"_s, QJsonObject{{u"title"_s, u"old"_s}}}});
    QCOMPARE(fps()->value(), 30);
    widget<QCheckBox>("enabledCheck")->setChecked(false);
    saveSuccessfully();
    QCOMPARE(storedValues(), FormFields::object(R"({"fps": 30, "format": "MP4", "title": "old"})"));
}

void TestTaskDialogSave::failedSaveRemembersNothing()
{
    m_daemon->refuse(u"task.create"_s, u"X"_s, u"no"_s);
    openForCreate();
    enterEverything();
    ModalDriver driver;
    expectFailure(driver, u"X: no"_s);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(settingsKeys(), QStringList());
}

void TestTaskDialogSave::typesRememberApart()
{
    openForCreate();
    enterEverything();
    saveSuccessfully();
    setClientType(u"task_type.audio_record"_s);
    openForCreate();
    widget<QLineEdit>("nameEdit")->setText(u"Sound"_s);
    m_daemon->clearRequests();
    saveSuccessfully();
    QCOMPARE(storedValues().value("fps"_L1).toInt(), 77);
    // A type without fields stores no parameters.
    QVERIFY(!sentTask(u"task.create"_s).value("paramsJson"_L1).toObject().contains("dynamicParams"_L1));
    QCOMPARE(storedValues(u"task_type.audio_record"_s), QJsonObject());
    QVERIFY(settingsKeys().contains("LastTaskDefaults/task_type.audio_record/taskFields/displayMode"_L1));
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogSave)
#include "tst_taskdialogsave.moc"
