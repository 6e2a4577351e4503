#include "commandfixture.h"
#include "menuuser.h"
#include "testmain.h"

#include <QApplication>
#include <QMenu>
#include <QWindow>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

const QString question = u"Are you sure you want to delete all tasks in this group?"_s;

/// As the window system reports it, so that Qt makes the request for the menu by itself. The pointer moves there first,
/// as any pointer does: in the window of a later test newer Qt does not find the tree for the request otherwise.
void rightClick(const CommandFixture &fixture, const QPoint &inViewport)
{
    const QPoint position = fixture.tree()->viewport()->mapTo(fixture.window.get(), inViewport);
    QTest::mouseMove(fixture.window->windowHandle(), position - QPoint(1, 1));
    QTest::mouseClick(fixture.window->windowHandle(), Qt::RightButton, {}, position);
}

void rightClickGroup(const CommandFixture &fixture, int index)
{
    rightClick(fixture, fixture.tree()->visualItemRect(fixture.tree()->topLevelItem(index)).center());
}

} // namespace

/// The commands on all tasks of a group, from the tree's context menu to the daemon and back.
class TestGroupMenu : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aRightClickSelectsItsGroupAndShowsTheMenu();
    void theMenuOpensAtThePointer();
    void theMenuLeftWithoutAChoiceSendsNothing();
    void emptySpaceAndUngroupedHaveNoMenu_data();
    void emptySpaceAndUngroupedHaveNoMenu();
    void aChoiceIsCarriedOutAndFollowedByTheRefreshes_data();
    void aChoiceIsCarriedOutAndFollowedByTheRefreshes();
    void aFailureShowsABoxAndNothingElse_data();
    void aFailureShowsABoxAndNothingElse();
    void deletingAllTasksAnsweredNoSendsNothing();
    void afterARebuildTheRightClickSelectsAnew();
    void noMenuOpensOnAGroupThatIsSelectedNoMore_data();
    void noMenuOpensOnAGroupThatIsSelectedNoMore();
    void withoutASelectionTheCommandsDoNothing_data();
    void withoutASelectionTheCommandsDoNothing();

private:
    std::unique_ptr<CommandFixture> m_fixture;
};

void TestGroupMenu::init()
{
    m_fixture = std::make_unique<CommandFixture>();
    QVERIFY(m_fixture->connectQuietly());
    QVERIFY(QTest::qWaitForWindowExposed(m_fixture->window.get()));
}

void TestGroupMenu::cleanup()
{
    m_fixture.reset();
    QCOMPARE(openWindows(), QStringList());
}

void TestGroupMenu::aRightClickSelectsItsGroupAndShowsTheMenu()
{
    const MenuUser user;
    rightClickGroup(*m_fixture, 0);
    QCOMPARE(user.items(), QStringList({u"Enable All Tasks"_s, u"Disable All Tasks"_s, u"-"_s, u"Trigger All Tasks"_s,
                                        u"-"_s, u"Delete All Tasks"_s}));
    QVERIFY(m_fixture->tree()->topLevelItem(0)->isSelected());
    QCOMPARE(m_fixture->daemon.commands(), QStringList({u"task.listByGroupAndType"_s}));
}

void TestGroupMenu::theMenuOpensAtThePointer()
{
    const auto *menu = m_fixture->window->findChild<QMenu *>(u"groupContextMenu"_s);
    QVERIFY(menu != nullptr);
    const MenuUser user;
    const QPoint position = m_fixture->tree()->visualItemRect(m_fixture->tree()->topLevelItem(0)).center();
    rightClick(*m_fixture, position);
    QVERIFY(!user.items().isEmpty());
    QCOMPARE(menu->pos(), m_fixture->tree()->viewport()->mapToGlobal(position));
}

void TestGroupMenu::theMenuLeftWithoutAChoiceSendsNothing()
{
    m_fixture->selectGroup(0);
    const MenuUser user;
    rightClickGroup(*m_fixture, 0);
    QVERIFY(!user.items().isEmpty());
    QCOMPARE(m_fixture->daemon.commands(), QStringList());
}

void TestGroupMenu::emptySpaceAndUngroupedHaveNoMenu_data()
{
    QTest::addColumn<bool>("onItem");
    QTest::newRow("empty space") << false;
    QTest::newRow("ungrouped") << true;
}

void TestGroupMenu::emptySpaceAndUngroupedHaveNoMenu()
{
    QFETCH(bool, onItem);
    m_fixture->selectGroup(0);
    const MenuUser user;
    if (onItem)
        rightClickGroup(*m_fixture, 1);
    else
        rightClick(*m_fixture, m_fixture->tree()->viewport()->rect().bottomRight() - QPoint(5, 5));
    QCOMPARE(user.items(), QStringList());
    // The press itself may change the selection, which the table follows. Newer Qt keeps it in empty space.
    QCOMPARE(m_fixture->tree()->topLevelItem(1)->isSelected(), onItem);
    if (m_fixture->tree()->topLevelItem(0)->isSelected())
        QCOMPARE(m_fixture->daemon.commands(), QStringList());
    else
        QCOMPARE(m_fixture->daemon.commands(),
                 QStringList(onItem ? u"task.listByGroupAndType"_s : u"task.listByType"_s));
}

void TestGroupMenu::aChoiceIsCarriedOutAndFollowedByTheRefreshes_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("Enable All Tasks") << u"group.enableAllTasks"_s;
    QTest::newRow("Disable All Tasks") << u"group.disableAllTasks"_s;
    QTest::newRow("Trigger All Tasks") << u"group.triggerAllTasks"_s;
    QTest::newRow("Delete All Tasks") << u"group.deleteAllTasks"_s;
}

void TestGroupMenu::aChoiceIsCarriedOutAndFollowedByTheRefreshes()
{
    QFETCH(QString, command);
    ModalDriver driver;
    if (command == "group.deleteAllTasks"_L1)
        expectDeleteQuestion(driver, question);
    const MenuUser user(QString::fromLatin1(QTest::currentDataTag()));
    rightClickGroup(*m_fixture, 0);
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(user.hasChosen());
    QCOMPARE(m_fixture->payloadOf(command), QJsonObject({{u"groupId"_s, u"g1"_s}}));
    const QStringList selectionAndCommand{u"task.listByGroupAndType"_s, command};
    if (command == "group.triggerAllTasks"_L1)
        QCOMPARE(m_fixture->daemon.commands(), selectionAndCommand);
    QTRY_COMPARE(m_fixture->daemon.commands(), selectionAndCommand + bundleOfGroup());
}

void TestGroupMenu::aFailureShowsABoxAndNothingElse_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("text");
    QTest::newRow("Enable All Tasks") << u"group.enableAllTasks"_s << u"Failed to enable all tasks in group."_s;
    QTest::newRow("Disable All Tasks") << u"group.disableAllTasks"_s << u"Failed to disable all tasks in group."_s;
    QTest::newRow("Trigger All Tasks") << u"group.triggerAllTasks"_s << u"Failed to trigger all tasks in group."_s;
    QTest::newRow("Delete All Tasks") << u"group.deleteAllTasks"_s << u"Failed to delete all tasks in group."_s;
}

void TestGroupMenu::aFailureShowsABoxAndNothingElse()
{
    QFETCH(QString, command);
    QFETCH(QString, text);
    m_fixture->selectGroup(0);
    m_fixture->daemon.refuse(command, u"INTERNAL"_s, u"a detail of the daemon"_s);
    ModalDriver driver;
    if (command == "group.deleteAllTasks"_L1)
        expectDeleteQuestion(driver, question);
    driver.expectBox(QMessageBox::Critical, u"Error"_s, text);
    const MenuUser user(QString::fromLatin1(QTest::currentDataTag()));
    rightClickGroup(*m_fixture, 0);
    QVERIFY(user.hasChosen());
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_fixture->daemon.commands(), QStringList(command));
    QVERIFY(m_fixture->tree()->topLevelItem(0)->isSelected());
    QCOMPARE(m_fixture->table()->rowCount(), 3);
}

void TestGroupMenu::deletingAllTasksAnsweredNoSendsNothing()
{
    m_fixture->selectGroup(0);
    ModalDriver driver;
    expectDeleteQuestion(driver, question, QMessageBox::No);
    const MenuUser user(u"Delete All Tasks"_s);
    rightClickGroup(*m_fixture, 0);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
    QCOMPARE(m_fixture->daemon.commands(), QStringList());
}

void TestGroupMenu::afterARebuildTheRightClickSelectsAnew()
{
    m_fixture->selectGroup(1);
    click(m_fixture->window.get(), "refreshGroupButton");
    QVERIFY(m_fixture->tree()->selectedItems().isEmpty());
    m_fixture->daemon.clearRequests();
    const MenuUser user(u"Disable All Tasks"_s);
    rightClickGroup(*m_fixture, 0);
    QCOMPARE(m_fixture->daemon.commands(),
             QStringList({u"task.listByGroupAndType"_s, u"group.disableAllTasks"_s}) + bundleOfGroup());
    QCOMPARE(m_fixture->payloadOf(u"group.disableAllTasks"_s), QJsonObject({{u"groupId"_s, u"g1"_s}}));
}

void TestGroupMenu::noMenuOpensOnAGroupThatIsSelectedNoMore_data()
{
    QTest::addColumn<bool>("rebuilt");
    QTest::addColumn<QString>("selected");
    QTest::newRow("another is selected meanwhile") << false << u"g2"_s;
    QTest::newRow("the tree is rebuilt meanwhile") << true << QString();
}

// The press selects the group, and the table that follows the selection waits for the daemon before the menu's turn.
void TestGroupMenu::noMenuOpensOnAGroupThatIsSelectedNoMore()
{
    QFETCH(bool, rebuilt);
    QFETCH(QString, selected);
    QTreeWidget *tree = m_fixture->tree();
    m_fixture->setGroups({groupJson(u"g1"_s, u"Work"_s), groupJson(u"g2"_s, u"Home"_s)});
    m_fixture->window->onRefreshGroups();
    QString pressed;
    m_fixture->daemon.whileWaiting(u"task.listByGroupAndType"_s, [&] {
        pressed = tree->selectedItems().value(0)->data(0, Qt::UserRole).toString();
        m_fixture->daemon.release(u"task.listByGroupAndType"_s); // for what is asked for meanwhile
        if (rebuilt)
            m_fixture->window->onRefreshGroups();
        else
            tree->setCurrentItem(tree->topLevelItem(1));
    });
    const MenuUser user(u"Disable All Tasks"_s);
    rightClickGroup(*m_fixture, 0);
    QCOMPARE(pressed, u"g1"_s);
    QCOMPARE(user.items(), QStringList());
    QVERIFY(!m_fixture->daemon.commands().contains(u"group.disableAllTasks"_s));
    const QList<QTreeWidgetItem *> items = tree->selectedItems();
    QCOMPARE(items.isEmpty() ? QString() : items.first()->data(0, Qt::UserRole).toString(), selected);
}

void TestGroupMenu::withoutASelectionTheCommandsDoNothing_data()
{
    QTest::addColumn<QString>("slot");
    for (const char *slot :
         {"onEnableAllTasksInGroup", "onDisableAllTasksInGroup", "onTriggerAllTasksInGroup", "onDeleteAllTasksInGroup"})
        QTest::newRow(slot) << QString::fromLatin1(slot);
}

void TestGroupMenu::withoutASelectionTheCommandsDoNothing()
{
    QFETCH(QString, slot);
    ModalDriver driver;
    m_fixture->run(slot);
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(driver.seen().isEmpty());
    QCOMPARE(m_fixture->daemon.commands(), QStringList());
}

ORVEL_TEST_MAIN(QApplication, TestGroupMenu)
#include "tst_groupmenu.moc"
