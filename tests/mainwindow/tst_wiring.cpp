#include "mcsgroupdialog.h"
#include "mcsgrouptreewidget.h"
#include "modaldriver.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// A connected window with its first task and its first group selected, and its own ticks off.
class SelectedWindow : public WindowFixture {
public:
    bool connect()
    {
        if (!connectWindow())
            return false;
        timer("statusUpdateTimer")->stop();
        auto *tree = widget<QTreeWidget>("groupTree");
        tree->setCurrentItem(tree->topLevelItem(0));
        widget<QTableWidget>("taskTable")->selectRow(0);
        daemon.clearRequests();
        return true;
    }
    /// Command and payload of the first request since.
    [[nodiscard]] QJsonObject firstRequest() const
    {
        const QJsonObject request = daemon.requests().value(0);
        return {{u"cmd"_s, request.value("cmd"_L1)}, {u"payload"_s, request.value("payload"_L1)}};
    }
};

QJsonObject requestOf(const QString &cmd, const QJsonObject &payload)
{
    return {{u"cmd"_s, cmd}, {u"payload"_s, payload}};
}

} // namespace

/// Each control does its own thing, and no other's.
class TestWiring : public QObject {
    Q_OBJECT

private slots:
    void buttonsSendTheirCommand_data();
    void buttonsSendTheirCommand();
    void buttonsAskTheirQuestion_data();
    void buttonsAskTheirQuestion();
    void groupButtonsOpenTheDialog_data();
    void groupButtonsOpenTheDialog();
    void menuActionsSendTheirCommand_data();
    void menuActionsSendTheirCommand();
    void aDropMovesTheTasks();
    void theAuditTimerRefreshesTheLog();
    void ofSeveralRowsTheFirstAloneIsMeant();
    void aTaskOfAnotherTypeInAGroupStopsFollowing();
};

void TestWiring::buttonsSendTheirCommand_data()
{
    QTest::addColumn<QJsonObject>("request");
    const QString type = u"task_type.screen_record"_s;
    const QJsonObject group{{u"groupId"_s, u"g1"_s}, {u"taskType"_s, type}};
    const QJsonObject newest{{u"taskType"_s, type}, {u"limit"_s, 100}, {u"ascending"_s, false}};
    QTest::newRow("triggerButton") << requestOf(u"task.trigger"_s, {{u"taskId"_s, u"t1"_s}});
    QTest::newRow("refreshButton") << requestOf(u"task.listByGroupAndType"_s, group);
    QTest::newRow("refreshLogButton") << requestOf(u"audit.list"_s, newest);
    // A rebuild clears the selection first, which the table follows.
    QTest::newRow("refreshGroupButton") << requestOf(u"task.listByType"_s, {{u"type"_s, u"task_type.all"_s}});
}

void TestWiring::buttonsSendTheirCommand()
{
    SelectedWindow fixture;
    QVERIFY(fixture.connect());
    click(fixture.window.get(), QTest::currentDataTag());
    QTEST(fixture.firstRequest(), "request");
}

void TestWiring::buttonsAskTheirQuestion_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QJsonObject>("request");
    QTest::newRow("deleteButton") << u"Are you sure you want to delete task 'One'?"_s
                                  << requestOf(u"task.delete"_s, {{u"taskId"_s, u"t1"_s}});
    QTest::newRow("deleteGroupButton")
        << u"Are you sure you want to delete group 'Work (0)'?\nTasks in this group will be moved to 'Ungrouped'."_s
        << requestOf(u"group.delete"_s, {{u"groupId"_s, u"g1"_s}, {u"deleteChildGroups"_s, false}});
}

void TestWiring::buttonsAskTheirQuestion()
{
    QFETCH(QString, text);
    SelectedWindow fixture;
    QVERIFY(fixture.connect());
    ModalDriver driver;
    for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
        driver.expectBox(QMessageBox::Question, u"Confirm Delete"_s, text, QMessageBox::Yes | QMessageBox::No, button);
        click(fixture.window.get(), QTest::currentDataTag());
        QVERIFY2(driver.finished(), driver.problems());
        if (button == QMessageBox::No)
            QCOMPARE(fixture.daemon.commands(), QStringList());
    }
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
    QTEST(fixture.firstRequest(), "request");
}

void TestWiring::groupButtonsOpenTheDialog_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("createGroupButton") << u"Create Group"_s;
    QTest::newRow("editGroupButton") << u"Edit Group"_s;
}

void TestWiring::groupButtonsOpenTheDialog()
{
    QFETCH(QString, title);
    SelectedWindow fixture;
    QVERIFY(fixture.connect());
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(title, [](MCsGroupDialog *dialog) { dialog->reject(); });
    click(fixture.window.get(), QTest::currentDataTag());
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(fixture.daemon.requests(u"task.listByType"_s).isEmpty()); // nothing follows a rejected dialog
}

void TestWiring::menuActionsSendTheirCommand_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("Enable All Tasks") << u"group.enableAllTasks"_s;
    QTest::newRow("Disable All Tasks") << u"group.disableAllTasks"_s;
    QTest::newRow("Trigger All Tasks") << u"group.triggerAllTasks"_s;
    QTest::newRow("Delete All Tasks") << u"group.deleteAllTasks"_s;
}

void TestWiring::menuActionsSendTheirCommand()
{
    QFETCH(QString, command);
    SelectedWindow fixture;
    QVERIFY(fixture.connect());
    ModalDriver driver;
    if (command == "group.deleteAllTasks"_L1)
        driver.expectBox(QMessageBox::Question, u"Confirm Delete"_s,
                         u"Are you sure you want to delete all tasks in this group?"_s,
                         QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    const auto *menu = fixture.window->findChild<QMenu *>(u"groupContextMenu"_s);
    for (QAction *action : menu->actions()) {
        if (action->text() == QString::fromLatin1(QTest::currentDataTag()))
            action->trigger();
    }
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.firstRequest(), requestOf(command, {{u"groupId"_s, u"g1"_s}}));
}

void TestWiring::aDropMovesTheTasks()
{
    SelectedWindow fixture;
    QVERIFY(fixture.connect());
    emit fixture.widget<MCsGroupTreeWidget>("groupTree")->taskDropped({u"a"_s, u"b"_s}, u"g1"_s);
    QCOMPARE(fixture.firstRequest(), requestOf(u"task.batchMoveToGroup"_s,
                                               {{u"taskIds"_s, QJsonArray{u"a"_s, u"b"_s}}, {u"groupId"_s, u"g1"_s}}));
}

void TestWiring::theAuditTimerRefreshesTheLog()
{
    SelectedWindow fixture;
    QVERIFY(fixture.connect());
    WindowFixture::fire(fixture.timer("auditRefreshTimer"));
    QTRY_COMPARE(fixture.daemon.commands(), QStringList({u"audit.list"_s}));
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    ModalDriver driver; // no box
    fixture.window->onAuditLogAutoRefresh();
    QVERIFY2(driver.finished(), driver.problems());
}

void TestWiring::ofSeveralRowsTheFirstAloneIsMeant()
{
    SelectedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.widget<QTableWidget>("taskTable")->selectAll();
    click(fixture.window.get(), "triggerButton");
    QCOMPARE(fixture.daemon.requests(u"task.trigger"_s).size(), 1);
    QCOMPARE(fixture.firstRequest(), requestOf(u"task.trigger"_s, {{u"taskId"_s, u"t1"_s}}));
}

void TestWiring::aTaskOfAnotherTypeInAGroupStopsFollowing()
{
    SelectedWindow fixture;
    QVERIFY(fixture.connect());
    const auto other = taskJson(u"x"_s, u"Other"_s, {{u"type"_s, u"task_type.test"_s}});
    fixture.daemon.answer(u"task.listByGroupAndType"_s, {{u"tasks"_s, toArray({other, taskJson(u"t1"_s, u"One"_s)})}});
    click(fixture.window.get(), "refreshButton");
    // The list of each second covers the client's own type.
    const auto own = taskJson(u"t1"_s, u"One"_s, {{u"enabled"_s, false}});
    fixture.daemon.answer(u"task.listByType"_s, {{u"tasks"_s, toArray({own})}});
    fixture.window->onUpdateTaskStatus();
    const auto *table = fixture.widget<QTableWidget>("taskTable");
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->item(0, 2)->text(), u"Enabled"_s);
    QCOMPARE(table->item(1, 2)->text(), u"Disabled"_s);
}

ORVEL_TEST_MAIN(QApplication, TestWiring)
#include "tst_wiring.moc"
