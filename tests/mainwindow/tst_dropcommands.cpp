#include "dragfixture.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QApplication>
#include <QTableWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// Drops on a group as the user does.
void drop(TreeWindow &fixture, const QTreeWidgetItem *group, const QByteArray &payload)
{
    const QPoint position = fixture.on(group);
    Drag drag(fixture.tree, payload);
    drag.enter(position);
    drag.move(position);
    QCOMPARE(drag.drop(position), accepted);
}

/// The commands that follow a move: the table, the counts of the three groups, the log, and the counts once more.
QStringList refreshAfterAMove(const QString &listing)
{
    const QStringList counts(3, u"task.countByGroupAndType"_s);
    return QStringList{listing} + counts + QStringList{u"audit.list"_s} + counts;
}

QByteArray ids(int count)
{
    QStringList all;
    for (int i = 1; i <= count; ++i)
        all.append(u"t%1"_s.arg(i));
    return all.join(u',').toUtf8();
}

QTableWidget *table(const TreeWindow &fixture)
{
    return fixture.widget<QTableWidget>("taskTable");
}

} // namespace

/// What a drop sends to the daemon, and what comes of the answer.
class TestDropCommands : public QObject {
    Q_OBJECT

private slots:
    void oneTaskIsMovedByItselfAndSeveralInOneRequest_data();
    void oneTaskIsMovedByItselfAndSeveralInOneRequest();
    void aMoveIsFollowedByTheRefreshesAndNoMessage();
    void aSelectedGroupStaysTheScopeOfTheTable();
    void aTaskMovedOutOfTheScopeLeavesTheTable();
    void aFailureShowsABoxAndNothingElse_data();
    void aFailureShowsABoxAndNothingElse();
    void theBoxNamesTheGroupWithoutItsCount_data();
    void theBoxNamesTheGroupWithoutItsCount();
    void noTasksMeanNoMove();
    void theSingleTaskSlotMovesWithoutNamingTheGroup();
    void aConnectionLostDuringTheMoveReadsAsAFailure();
    void aConnectionLostAfterTheMoveBringsNoBox_data();
    void aConnectionLostAfterTheMoveBringsNoBox();
};

void TestDropCommands::oneTaskIsMovedByItselfAndSeveralInOneRequest_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QJsonObject>("request");
    const auto batch = [](const QJsonArray &taskIds) {
        return QJsonObject{{u"taskIds"_s, taskIds}, {u"groupId"_s, u"ungrouped"_s}};
    };
    QTest::newRow("one") << QByteArray("a") << u"task.moveToGroup"_s
                         << QJsonObject{{u"taskId"_s, u"a"_s}, {u"groupId"_s, u"ungrouped"_s}};
    QTest::newRow("two") << QByteArray("b,a") << u"task.batchMoveToGroup"_s << batch({u"b"_s, u"a"_s});
    QTest::newRow("three") << QByteArray("c,b,a") << u"task.batchMoveToGroup"_s << batch({u"c"_s, u"b"_s, u"a"_s});
}

void TestDropCommands::oneTaskIsMovedByItselfAndSeveralInOneRequest()
{
    QFETCH(QByteArray, payload);
    QFETCH(QString, command);
    QFETCH(QJsonObject, request);
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    drop(fixture, fixture.ungrouped(), payload);
    QCOMPARE(fixture.daemon.commands().value(0), command);
    QCOMPARE(fixture.daemon.requests().first().value("payload"_L1).toObject(), request);
    QCOMPARE(fixture.daemon.commands().filter(u"move"_s, Qt::CaseInsensitive).size(), 1);
}

void TestDropCommands::aMoveIsFollowedByTheRefreshesAndNoMessage()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    ModalDriver driver;
    for (const int count : {1, 2}) {
        fixture.daemon.clearRequests();
        drop(fixture, fixture.home(), ids(count));
        QCOMPARE(fixture.daemon.commands().mid(1), refreshAfterAMove(u"task.listByType"_s));
    }
    QVERIFY2(driver.finished(), driver.problems());
}

void TestDropCommands::aSelectedGroupStaysTheScopeOfTheTable()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    fixture.tree->setCurrentItem(fixture.work());
    fixture.daemon.clearRequests();
    drop(fixture, fixture.home(), "t1");
    QCOMPARE(fixture.daemon.commands().mid(1), refreshAfterAMove(u"task.listByGroupAndType"_s));
    QVERIFY(fixture.work()->isSelected());
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), u"Tasks: 2 (in Work)"_s);
}

void TestDropCommands::aTaskMovedOutOfTheScopeLeavesTheTable()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    fixture.tree->setCurrentItem(fixture.work());
    table(fixture)->selectRow(0);
    fixture.daemon.onRequest(u"task.moveToGroup"_s, [&fixture](const QJsonObject &) {
        fixture.setTasks({taskJson(u"t2"_s, u"Two"_s)});
        fixture.daemon.answer(u"task.countByGroupAndType"_s, {{u"count"_s, 1}});
    });
    drop(fixture, fixture.home(), "t1");
    QCOMPARE(table(fixture)->rowCount(), 1);
    QCOMPARE(table(fixture)->item(0, 0)->text(), u"Two"_s);
    QVERIFY(table(fixture)->item(0, 0)->isSelected()); // by its row number
    QCOMPARE(fixture.home()->text(0), u"Home (1)"_s);
}

void TestDropCommands::aFailureShowsABoxAndNothingElse_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("one task") << 1 << u"Failed to move task to group 'Home'."_s;
    QTest::newRow("two tasks") << 2 << u"Failed to move 2 tasks to group 'Home'."_s;
    QTest::newRow("eleven tasks") << 11 << u"Failed to move 11 tasks to group 'Home'."_s;
}

void TestDropCommands::aFailureShowsABoxAndNothingElse()
{
    QFETCH(int, count);
    QFETCH(QString, text);
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    for (const QString &command : {u"task.moveToGroup"_s, u"task.batchMoveToGroup"_s})
        fixture.daemon.refuse(command, u"TASK_NOT_FOUND"_s, u"t1 is not known"_s);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Error"_s, text);
    drop(fixture, fixture.home(), ids(count));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
    QCOMPARE(fixture.daemon.commands().size(), 1);
    QVERIFY(isBare(fixture.home()));
}

void TestDropCommands::theBoxNamesTheGroupWithoutItsCount_data()
{
    QTest::addColumn<QString>("listed"); // what the group is called that is shown
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("name");
    QTest::newRow("a name with a bracket") << u"A (b)"_s << u"g1"_s << u"A (b)"_s;
    QTest::newRow("place markers and markup") << u"%1 %2 <b>"_s << u"g1"_s << u"%1 %2 <b>"_s;
    QTest::newRow("no name") << QString() << u"g1"_s << QString();
    QTest::newRow("a group that is not shown") << u"Work"_s << u"g9"_s << u"g9"_s;
}

void TestDropCommands::theBoxNamesTheGroupWithoutItsCount()
{
    QFETCH(QString, listed);
    QFETCH(QString, group);
    QFETCH(QString, name);
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    for (const QString &command : {u"task.moveToGroup"_s, u"task.batchMoveToGroup"_s})
        fixture.daemon.refuse(command, u"NO"_s, u"no"_s);
    fixture.setGroups({groupJson(u"g1"_s, listed, {{u"taskCount"_s, 4}})});
    click(fixture.window.get(), "refreshGroupButton");
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Error"_s, u"Failed to move task to group '"_s + name + u"'."_s);
    driver.expectBox(QMessageBox::Critical, u"Error"_s, u"Failed to move 2 tasks to group '"_s + name + u"'."_s);
    fixture.window->onTasksDroppedOnGroup({u"t1"_s}, group);
    fixture.window->onTasksDroppedOnGroup({u"t1"_s, u"t2"_s}, group);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestDropCommands::noTasksMeanNoMove()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    ModalDriver driver;
    fixture.window->onTasksDroppedOnGroup({}, u"g1"_s);
    QCOMPARE(fixture.daemon.commands(), QStringList());
    QVERIFY2(driver.finished(), driver.problems());
}

void TestDropCommands::theSingleTaskSlotMovesWithoutNamingTheGroup()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    ModalDriver driver;
    fixture.window->onTaskDroppedOnGroup(u"t1"_s, u"g2"_s);
    QCOMPARE(fixture.daemon.requests().first().value("payload"_L1).toObject(),
             QJsonObject({{u"taskId"_s, u"t1"_s}, {u"groupId"_s, u"g2"_s}}));
    QCOMPARE(fixture.daemon.commands(), QStringList({u"task.moveToGroup"_s}) + refreshAfterAMove(u"task.listByType"_s));
    fixture.daemon.clearRequests();
    fixture.daemon.refuse(u"task.moveToGroup"_s, u"NO"_s, u"no"_s);
    driver.expectBox(QMessageBox::Critical, u"Error"_s, u"Failed to move task to group."_s);
    fixture.window->onTaskDroppedOnGroup(u"t1"_s, u"g2"_s);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList({u"task.moveToGroup"_s}));
}

void TestDropCommands::aConnectionLostDuringTheMoveReadsAsAFailure()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.onRequest(u"task.batchMoveToGroup"_s, [&fixture](const QJsonObject &) { fixture.daemon.stop(); });
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Error"_s, u"Failed to move 2 tasks to group 'Home'."_s);
    drop(fixture, fixture.home(), ids(2));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    QCOMPARE(fixture.daemon.commands(), QStringList({u"task.batchMoveToGroup"_s}));
    QCOMPARE(table(fixture)->rowCount(), 2); // what stood stays
    QCOMPARE(fixture.home()->text(0), u"Home (0)"_s);
}

void TestDropCommands::aConnectionLostAfterTheMoveBringsNoBox_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command : {"task.listByType", "task.countByGroupAndType", "audit.list"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void TestDropCommands::aConnectionLostAfterTheMoveBringsNoBox()
{
    QFETCH(QString, command);
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.onRequest(command, [&fixture](const QJsonObject &) { fixture.daemon.stop(); });
    ModalDriver driver;
    drop(fixture, fixture.home(), "t1");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    QCOMPARE(fixture.daemon.commands().last(), command);
    QCOMPARE(table(fixture)->rowCount(), 2);
    QCOMPARE(fixture.home()->text(0), u"Home (0)"_s);
}

ORVEL_TEST_MAIN(QApplication, TestDropCommands)
#include "tst_dropcommands.moc"
