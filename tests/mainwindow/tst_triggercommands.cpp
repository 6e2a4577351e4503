#include "commandfixture.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QApplication>
#include <QElapsedTimer>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

/// Triggers, of one task and of all tasks of a group: a run takes its time to show, and so the views follow later.
class TestTriggerCommands : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theRefreshesComeHalfASecondLater_data();
    void theRefreshesComeHalfASecondLater();
    void eachTriggerIsFollowedByItsOwnRefreshes_data();
    void eachTriggerIsFollowedByItsOwnRefreshes();
    void aFailureShowsItsBoxAtOnceAndNoRefreshFollows_data();
    void aFailureShowsItsBoxAtOnceAndNoRefreshFollows();
    void aRefreshFindsTheScopeOfItsOwnTime();
    void aDelayedRefreshEndsWithItsWindow();
    void aDelayedRefreshOfALostConnectionIsLeftOut();

private:
    /// Rows for a trigger of the first task and of the first group's tasks.
    static void addTriggers();

    std::unique_ptr<CommandFixture> m_fixture;
};

void TestTriggerCommands::init()
{
    m_fixture = std::make_unique<CommandFixture>();
    QVERIFY(m_fixture->connectQuietly());
    m_fixture->selectGroup(0);
    m_fixture->selectTask(0);
}

void TestTriggerCommands::cleanup()
{
    m_fixture.reset();
}

void TestTriggerCommands::addTriggers()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QJsonObject>("payload");
    QTest::newRow("a task") << u"triggerButton"_s << u"task.trigger"_s << QJsonObject{{u"taskId"_s, u"t1"_s}};
    QTest::newRow("all tasks of a group")
        << u"onTriggerAllTasksInGroup"_s << u"group.triggerAllTasks"_s << QJsonObject{{u"groupId"_s, u"g1"_s}};
}

void TestTriggerCommands::theRefreshesComeHalfASecondLater_data()
{
    addTriggers();
}

void TestTriggerCommands::theRefreshesComeHalfASecondLater()
{
    QFETCH(QString, control);
    QFETCH(QString, command);
    QElapsedTimer clock;
    qint64 refreshedAfter = -1;
    ModalDriver driver;
    m_fixture->daemon.onRequest(command, [&clock](const QJsonObject &) { clock.start(); });
    m_fixture->daemon.onRequest(u"task.listByGroupAndType"_s,
                                [&](const QJsonObject &) { refreshedAfter = clock.elapsed(); });
    m_fixture->run(control);
    QCOMPARE(m_fixture->daemon.commands(), QStringList(command));
    QTEST(m_fixture->payloadOf(command), "payload");
    QTRY_COMPARE(m_fixture->daemon.commands(), QStringList(command) + bundleOfGroup());
    // Timers of this length may fire a twentieth early.
    QVERIFY2(refreshedAfter >= 450, qPrintable(QString::number(refreshedAfter)));
    QVERIFY2(driver.finished(), driver.problems());
}

void TestTriggerCommands::eachTriggerIsFollowedByItsOwnRefreshes_data()
{
    addTriggers();
}

void TestTriggerCommands::eachTriggerIsFollowedByItsOwnRefreshes()
{
    QFETCH(QString, control);
    QFETCH(QString, command);
    m_fixture->run(control);
    m_fixture->run(control);
    QCOMPARE(m_fixture->daemon.commands(), QStringList({command, command}));
    QTRY_COMPARE(m_fixture->daemon.requests(u"audit.list"_s).size(), 2);
    QCOMPARE(m_fixture->daemon.requests(u"task.listByGroupAndType"_s).size(), 2);
}

void TestTriggerCommands::aFailureShowsItsBoxAtOnceAndNoRefreshFollows_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("a task") << u"triggerButton"_s << u"task.trigger"_s << u"Trigger Error"_s
                            << u"Failed to trigger task."_s;
    QTest::newRow("all tasks of a group") << u"onTriggerAllTasksInGroup"_s << u"group.triggerAllTasks"_s << u"Error"_s
                                          << u"Failed to trigger all tasks in group."_s;
}

void TestTriggerCommands::aFailureShowsItsBoxAtOnceAndNoRefreshFollows()
{
    QFETCH(QString, control);
    QFETCH(QString, command);
    QFETCH(QString, title);
    QFETCH(QString, text);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, title, text);
    m_fixture->daemon.refuse(command, u"TASK_NOT_FOUND"_s, u"gone"_s);
    m_fixture->run(control);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->daemon.commands(), QStringList(command));
    // What a failure had set off would come before the refreshes of the success that follows it.
    m_fixture->daemon.answer(command, {});
    m_fixture->run(control);
    QTRY_COMPARE(m_fixture->daemon.commands(), QStringList({command, command}) + bundleOfGroup());
}

void TestTriggerCommands::aRefreshFindsTheScopeOfItsOwnTime()
{
    click(m_fixture->window.get(), "triggerButton");
    m_fixture->tree()->clearSelection();
    m_fixture->daemon.clearRequests();
    QTRY_COMPARE(m_fixture->daemon.commands(), bundle());
}

void TestTriggerCommands::aDelayedRefreshEndsWithItsWindow()
{
    click(m_fixture->window.get(), "triggerButton");
    m_fixture->close();
    m_fixture->daemon.clearRequests();
    QVERIFY(m_fixture->connectQuietly());
    m_fixture->selectTask(0);
    // The next window's refreshes come later than those of the first would have come.
    click(m_fixture->window.get(), "triggerButton");
    QTRY_COMPARE(m_fixture->daemon.commands(), QStringList(u"task.trigger"_s) + bundle());
}

void TestTriggerCommands::aDelayedRefreshOfALostConnectionIsLeftOut()
{
    ModalDriver driver; // no box
    click(m_fixture->window.get(), "triggerButton");
    m_fixture->window->onDisconnectFromDaemon();
    m_fixture->daemon.clearRequests();
    QTimer later; // than the refresh, which nothing else would tell
    later.setSingleShot(true);
    later.start(600);
    QTRY_VERIFY(!later.isActive());
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->daemon.commands(), QStringList());
    QCOMPARE(m_fixture->table()->rowCount(), 0);
}

ORVEL_TEST_MAIN(QApplication, TestTriggerCommands)
#include "tst_triggercommands.moc"
