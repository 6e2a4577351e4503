#include "taskdialogfixture.h"
#include "testmain.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// Saving, and what comes of it when it fails.
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
    void withoutAClientSaveStops();
    void answerWithoutAnIdIsAFailure();
    void saveMayBeRepeatedAfterAFailure();
    void failedSaveRemembersNothing();
};

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

ORVEL_TEST_MAIN(QApplication, TestTaskDialogSave)
#include "tst_taskdialogsave.moc"
