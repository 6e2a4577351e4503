#include "commandfixture.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QApplication>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

void answerYes(const QMessageBox *box)
{
    box->button(QMessageBox::Yes)->click();
}

} // namespace

/// What happens between a command's question, its request and its answer, all of which run an event loop.
class TestInterruptedCommands : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aTaskWhoseRowVanishesUnderTheQuestionIsTheOneDeleted();
    void aTaskThatChangesItsRowUnderTheQuestionIsTheOneDeleted();
    void aGroupThatVanishesUnderTheQuestionIsTheOneDeleted();
    void anotherGroupSelectedUnderTheQuestionKeepsItsTasks();
    void aConnectionLostUnderTheQuestionReadsAsAFailure_data();
    void aConnectionLostUnderTheQuestionReadsAsAFailure();
    void aConnectionRestoredUnderTheQuestionCarriesTheCommand();
    void aConnectionLostUnderTheRequestReadsAsAFailure();
    void aSilentDaemonReadsAsAFailure();
    void theOwnTicksGoOnUnderTheQuestion();
    void aSecondPressWhileADialogIsMadeOpensNoOther_data();
    void aSecondPressWhileADialogIsMadeOpensNoOther();

private:
    std::unique_ptr<CommandFixture> m_fixture;
};

void TestInterruptedCommands::init()
{
    m_fixture = std::make_unique<CommandFixture>();
    QVERIFY(m_fixture->connectQuietly());
}

void TestInterruptedCommands::cleanup()
{
    m_fixture.reset();
    QCOMPARE(openWindows(), QStringList());
}

void TestInterruptedCommands::aTaskWhoseRowVanishesUnderTheQuestionIsTheOneDeleted()
{
    m_fixture->selectTask(2);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [this](QMessageBox *box) {
        m_fixture->setTasks({});
        m_fixture->window->onRefreshTaskList();
        QCOMPARE(m_fixture->table()->rowCount(), 0);
        answerYes(box);
    });
    click(m_fixture->window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->payloadOf(u"task.delete"_s), QJsonObject({{u"taskId"_s, u"t3"_s}}));
}

void TestInterruptedCommands::aTaskThatChangesItsRowUnderTheQuestionIsTheOneDeleted()
{
    m_fixture->selectTask(0);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [this](QMessageBox *box) {
        QCOMPARE(box->text(), u"Are you sure you want to delete task 'One'?"_s);
        m_fixture->setTasks({taskJson(u"t3"_s, u"Three"_s), taskJson(u"t1"_s, u"One"_s)});
        m_fixture->window->onRefreshTaskList();
        QVERIFY(m_fixture->table()->item(0, 0)->isSelected());
        answerYes(box);
    });
    click(m_fixture->window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->payloadOf(u"task.delete"_s), QJsonObject({{u"taskId"_s, u"t1"_s}}));
}

void TestInterruptedCommands::aGroupThatVanishesUnderTheQuestionIsTheOneDeleted()
{
    m_fixture->selectGroup(0);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [this](QMessageBox *box) {
        m_fixture->setGroups({});
        m_fixture->window->onRefreshGroups();
        QCOMPARE(m_fixture->tree()->topLevelItemCount(), 0);
        answerYes(box);
    });
    click(m_fixture->window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->payloadOf(u"group.delete"_s).value("groupId"_L1).toString(), u"g1"_s);
}

void TestInterruptedCommands::anotherGroupSelectedUnderTheQuestionKeepsItsTasks()
{
    m_fixture->selectGroup(0);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [this](QMessageBox *box) {
        m_fixture->selectGroup(1);
        answerYes(box);
    });
    m_fixture->run(u"onDeleteAllTasksInGroup"_s);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->payloadOf(u"group.deleteAllTasks"_s), QJsonObject({{u"groupId"_s, u"g1"_s}}));
}

void TestInterruptedCommands::aConnectionLostUnderTheQuestionReadsAsAFailure_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("task") << u"deleteButton"_s << u"Delete Error"_s << u"Failed to delete task."_s;
    QTest::newRow("group") << u"deleteGroupButton"_s << u"Delete Error"_s << u"Failed to delete group."_s;
    QTest::newRow("all tasks of a group")
        << u"onDeleteAllTasksInGroup"_s << u"Error"_s << u"Failed to delete all tasks in group."_s;
}

void TestInterruptedCommands::aConnectionLostUnderTheQuestionReadsAsAFailure()
{
    QFETCH(QString, control);
    QFETCH(QString, title);
    QFETCH(QString, text);
    m_fixture->selectGroup(0);
    m_fixture->selectTask(0);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [this](QMessageBox *box) {
        m_fixture->daemon.stop();
        QTRY_COMPARE(m_fixture->window->connectionState(), ConnectionState::Reconnecting);
        m_fixture->daemon.clearRequests();
        answerYes(box);
    });
    driver.expectBox(QMessageBox::Critical, title, text);
    m_fixture->run(control);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->daemon.commands(), QStringList());
    QCOMPARE(m_fixture->table()->rowCount(), 3);
    QCOMPARE(m_fixture->tree()->topLevelItemCount(), 2);
    QVERIFY(m_fixture->tree()->topLevelItem(0)->isSelected());
}

void TestInterruptedCommands::aConnectionRestoredUnderTheQuestionCarriesTheCommand()
{
    m_fixture->selectTask(0);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [this](QMessageBox *box) {
        m_fixture->daemon.dropConnections();
        QTRY_COMPARE(m_fixture->daemon.acceptedCount(), 2);
        // Both times that a connection's beginning is loaded end with the log.
        QTRY_COMPARE(m_fixture->daemon.requests(u"audit.list"_s).size(), 4);
        QTRY_COMPARE(m_fixture->window->connectionState(), ConnectionState::Connected);
        answerYes(box);
    });
    click(m_fixture->window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->payloadOf(u"task.delete"_s), QJsonObject({{u"taskId"_s, u"t1"_s}}));
}

void TestInterruptedCommands::aConnectionLostUnderTheRequestReadsAsAFailure()
{
    m_fixture->selectTask(0);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, &answerYes);
    driver.expectBox(QMessageBox::Critical, u"Delete Error"_s, u"Failed to delete task."_s);
    m_fixture->daemon.whileWaiting(u"task.delete"_s, [this] { m_fixture->daemon.stop(); });
    click(m_fixture->window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->daemon.commands(), QStringList({u"task.delete"_s}));
    QCOMPARE(m_fixture->table()->rowCount(), 3);
}

void TestInterruptedCommands::aSilentDaemonReadsAsAFailure()
{
    m_fixture->selectTask(0);
    m_fixture->daemon.ignore(u"task.disable"_s);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Toggle Error"_s, u"Failed to toggle task status."_s);
    m_fixture->run(u"onToggleTaskEnabled"_s); // returns after the two seconds that a command waits
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->daemon.commands(), QStringList({u"task.disable"_s}));
}

void TestInterruptedCommands::theOwnTicksGoOnUnderTheQuestion()
{
    m_fixture->selectTask(0);
    m_fixture->timer("statusUpdateTimer")->start();
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [this](QMessageBox *box) {
        WindowFixture::fire(m_fixture->timer("statusUpdateTimer"));
        WindowFixture::fire(m_fixture->timer("auditRefreshTimer"));
        QTRY_VERIFY(m_fixture->daemon.commands().contains(u"task.listByType"_s));
        QTRY_VERIFY(m_fixture->daemon.commands().contains(u"audit.list"_s));
        box->reject();
    });
    click(m_fixture->window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(!m_fixture->daemon.commands().contains(u"task.delete"_s));
}

void TestInterruptedCommands::aSecondPressWhileADialogIsMadeOpensNoOther_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("createButton") << u"Create Task"_s;
    QTest::newRow("createGroupButton") << u"Create Group"_s;
}

void TestInterruptedCommands::aSecondPressWhileADialogIsMadeOpensNoOther()
{
    QFETCH(QString, title);
    ModalDriver driver;
    driver.expectDialog<QDialog>(title, [](QDialog *dialog) { dialog->reject(); });
    m_fixture->daemon.whileWaiting(u"group.listByTaskType"_s, [this] {
        click(m_fixture->window.get(), "createButton");
        click(m_fixture->window.get(), "createGroupButton");
    });
    click(m_fixture->window.get(), QTest::currentDataTag());
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->daemon.requests(u"group.listByTaskType"_s).size(), 1);
}

ORVEL_TEST_MAIN(QApplication, TestInterruptedCommands)
#include "tst_interruptedcommands.moc"
