#include "commandfixture.h"
#include "mcsgroupdialog.h"
#include "mcsgrouptreewidget.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QApplication>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

using Event = std::function<void(CommandFixture &)>;

const QString taskList = u"task.listByType"_s;
const QString groupList = u"group.listByTaskType"_s;
const QString count = u"task.countByGroupAndType"_s;
const QString auditList = u"audit.list"_s;

/// The table follows a selection that a rebuild of the tree clears.
const QStringList treeWithSelection{taskList, groupList};

/// A control's command, its question answered with Yes.
Event confirmed(const QString &control)
{
    return [control](CommandFixture &fixture) {
        ModalDriver driver;
        driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [](QMessageBox *box) { box->done(QMessageBox::Yes); });
        fixture.run(control);
        driver.verify();
    };
}

Event control(const QString &name)
{
    return [name](CommandFixture &fixture) { fixture.run(name); };
}

/// The group dialog behind the control accepted; what it asks the daemon for by itself does not count.
Event acceptedDialog(const QString &control, const QString &title)
{
    return [control, title](CommandFixture &fixture) {
        ModalDriver driver;
        driver.expectDialog<MCsGroupDialog>(title, [&fixture](MCsGroupDialog *dialog) {
            fixture.daemon.clearRequests();
            dialog->accept();
        });
        fixture.run(control);
        driver.verify();
    };
}

Event tick(const char *timer)
{
    return [timer](CommandFixture &fixture) {
        fixture.timer(timer)->start();
        WindowFixture::fire(fixture.timer(timer));
        QTRY_VERIFY(!fixture.daemon.commands().isEmpty());
        fixture.timer(timer)->stop();
    };
}

/// A trigger, and the refreshes that follow it after a while.
Event trigger(const QString &control)
{
    return [control](CommandFixture &fixture) {
        fixture.run(control);
        QCOMPARE(fixture.daemon.commands().size(), 1);
        QTRY_VERIFY(fixture.daemon.commands().contains(auditList));
    };
}

Event drop(const QStringList &taskIds)
{
    return [taskIds](CommandFixture &fixture) {
        emit fixture.widget<MCsGroupTreeWidget>("groupTree")->taskDropped(taskIds, u"g1"_s);
    };
}

/// What a connection loads at its beginning, which it does twice. The tree is empty the first time of all.
QStringList loadedAtBeginning(int groupsBefore)
{
    QStringList result{u"client.register"_s};
    for (const int groups : {groupsBefore, 2})
        result += QStringList({u"tasktype.list"_s, taskList}) + QStringList(groups, count) +
                  QStringList({auditList, groupList, auditList});
    return result;
}

} // namespace

/// What refreshes what: the exact requests that each event leads to.
class TestRefreshSequences : public QObject {
    Q_OBJECT

private slots:
    void anEventLeadsToExactlyTheseRequests_data();
    void anEventLeadsToExactlyTheseRequests();
    void connectingLoadsEverythingAndThenAsksForTheCount();
    void reconnectingLoadsEverythingAndAsksForNoCount();
    void disconnectingEmptiesTheViewsWithoutARequest();
};

void TestRefreshSequences::anEventLeadsToExactlyTheseRequests_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QStringList>("requests");
    const QStringList grouped = bundleOfGroup();
    const QStringList afterRebuild = treeWithSelection + bundle();

    QTest::newRow("refresh of the tasks") << control(u"refreshButton"_s) << grouped;
    QTest::newRow("refresh of the groups") << control(u"refreshGroupButton"_s) << treeWithSelection;
    QTest::newRow("refresh of the log") << control(u"refreshLogButton"_s) << QStringList(auditList);
    QTest::newRow("another group selected")
        << Event([](CommandFixture &fixture) { fixture.tree()->setCurrentItem(fixture.tree()->topLevelItem(1)); })
        << QStringList(u"task.listByGroupAndType"_s);
    QTest::newRow("no group selected any more")
        << Event([](CommandFixture &fixture) { fixture.tree()->clearSelection(); }) << QStringList(taskList);
    QTest::newRow("tick of the second") << tick("statusUpdateTimer") << QStringList(taskList);
    QTest::newRow("tick of the log") << tick("auditRefreshTimer") << QStringList(auditList);
    QTest::newRow("group created") << acceptedDialog(u"createGroupButton"_s, u"Create Group"_s) << afterRebuild;
    QTest::newRow("group edited") << acceptedDialog(u"editGroupButton"_s, u"Edit Group"_s) << afterRebuild;
    QTest::newRow("group deleted") << confirmed(u"deleteGroupButton"_s)
                                   << QStringList(u"group.delete"_s) + afterRebuild;
    QTest::newRow("task deleted") << confirmed(u"deleteButton"_s) << QStringList(u"task.delete"_s) + grouped;
    QTest::newRow("task toggled") << control(u"onToggleTaskEnabled"_s) << QStringList(u"task.disable"_s) + grouped;
    QTest::newRow("task triggered") << trigger(u"triggerButton"_s) << QStringList(u"task.trigger"_s) + grouped;
    QTest::newRow("all tasks triggered") << trigger(u"onTriggerAllTasksInGroup"_s)
                                         << QStringList(u"group.triggerAllTasks"_s) + grouped;
    QTest::newRow("all tasks enabled") << control(u"onEnableAllTasksInGroup"_s)
                                       << QStringList(u"group.enableAllTasks"_s) + grouped;
    QTest::newRow("all tasks disabled") << control(u"onDisableAllTasksInGroup"_s)
                                        << QStringList(u"group.disableAllTasks"_s) + grouped;
    QTest::newRow("all tasks deleted") << confirmed(u"onDeleteAllTasksInGroup"_s)
                                       << QStringList(u"group.deleteAllTasks"_s) + grouped;
    QTest::newRow("a task dropped") << drop({u"t1"_s})
                                    << QStringList(u"task.moveToGroup"_s) + grouped + QStringList({count, count});
    QTest::newRow("tasks dropped") << drop({u"t1"_s, u"t2"_s})
                                   << QStringList(u"task.batchMoveToGroup"_s) + grouped + QStringList({count, count});
}

void TestRefreshSequences::anEventLeadsToExactlyTheseRequests()
{
    QFETCH(Event, event);
    QFETCH(QStringList, requests);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    fixture.selectTask(0);
    event(fixture);
    QCOMPARE(fixture.daemon.commands(), requests);
}

void TestRefreshSequences::connectingLoadsEverythingAndThenAsksForTheCount()
{
    CommandFixture fixture;
    QVERIFY(fixture.startDaemon());
    fixture.setGroups({groupJson(u"g1"_s, u"Work"_s), groupJson(u"ungrouped"_s, u"Ungrouped"_s)});
    fixture.open();
    fixture.timer("statusUpdateTimer")->stop();
    const QString taskCount = u"task.countByType"_s;
    QTRY_COMPARE(fixture.daemon.requests(taskCount).size(), 1);
    // On a slow machine its time comes while the rest is still loaded.
    QTRY_COMPARE(fixture.daemon.requests(auditList).size(), 4);
    QStringList commands = fixture.daemon.commands();
    QVERIFY(commands.indexOf(taskCount) > commands.indexOf(groupList));
    commands.removeOne(taskCount);
    QCOMPARE(commands, loadedAtBeginning(0));
    QTRY_VERIFY(fixture.timer("auditRefreshTimer")->isActive());
    QCOMPARE(fixture.timer("auditRefreshTimer")->interval(), 100000);
}

void TestRefreshSequences::reconnectingLoadsEverythingAndAsksForNoCount()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.daemon.dropConnections();
    QTRY_COMPARE(fixture.daemon.commands(), loadedAtBeginning(2));
    // The count would be asked for 300 ms later, before the refreshes of a trigger.
    fixture.selectGroup(0);
    fixture.run(u"onTriggerAllTasksInGroup"_s);
    QTRY_COMPARE(fixture.daemon.commands(), QStringList(u"group.triggerAllTasks"_s) + bundleOfGroup());
}

void TestRefreshSequences::disconnectingEmptiesTheViewsWithoutARequest()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    fixture.selectTask(0);
    ModalDriver driver; // no box
    fixture.window->onDisconnectFromDaemon();
    QTRY_COMPARE(fixture.daemon.connectionCount(), 0); // what had been sent would have been read by now
    QCOMPARE(fixture.daemon.commands(), QStringList());
    QCOMPARE(fixture.table()->rowCount(), 0);
    QCOMPARE(fixture.tree()->topLevelItemCount(), 0);
    QVERIFY2(driver.finished(), driver.problems());
}

ORVEL_TEST_MAIN(QApplication, TestRefreshSequences)
#include "tst_refreshsequences.moc"
