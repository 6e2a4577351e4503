#include "commandfixture.h"
#include "testmain.h"

#include <QApplication>
#include <QPushButton>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

QString question(const QString &itemText)
{
    return u"Are you sure you want to delete group '%1'?\nTasks in this group will be moved to 'Ungrouped'."_s.arg(
        itemText);
}

} // namespace

/// Deleting a group, and the groups that the buttons do not take. What the group dialog brings is tested elsewhere.
class TestGroupCommands : public QObject {
    Q_OBJECT

private slots:
    void withoutASelectionABoxTellsSo_data();
    void withoutASelectionABoxTellsSo();
    void theUngroupedGroupIsRefused_data();
    void theUngroupedGroupIsRefused();
    void aGroupOfLikeIdIsNotRefused();
    void theQuestionTellsTheNumberOfTasksBehindTheName();
    void theQuestionShowsTheNameAsItIs_data();
    void theQuestionShowsTheNameAsItIs();
    void theQuestionAnsweredNoSendsNothing();
    void theQuestionHasNoDefaultButton();
    void aDeletedGroupIsFollowedByTheTreeAndTheOtherRefreshes();
    void childGroupsAreLeftToTheDaemon();
    void aFailureShowsABoxAndNothingElse();
};

void TestGroupCommands::withoutASelectionABoxTellsSo_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("onEditGroup") << u"Please select a group to edit."_s;
    QTest::newRow("onDeleteGroup") << u"Please select a group to delete."_s;
}

void TestGroupCommands::withoutASelectionABoxTellsSo()
{
    QFETCH(QString, text);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"No Selection"_s, text);
    fixture.run(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestGroupCommands::theUngroupedGroupIsRefused_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("onEditGroup") << u"Cannot Edit"_s << u"The 'Ungrouped' group cannot be edited."_s;
    QTest::newRow("onDeleteGroup") << u"Cannot Delete"_s << u"The 'Ungrouped' group cannot be deleted."_s;
}

void TestGroupCommands::theUngroupedGroupIsRefused()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(1);
    QVERIFY(!fixture.widget<QPushButton>("editGroupButton")->isEnabled());
    QVERIFY(!fixture.widget<QPushButton>("deleteGroupButton")->isEnabled());
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, title, text);
    fixture.run(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestGroupCommands::aGroupOfLikeIdIsNotRefused()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.setGroups({groupJson(u"Ungrouped"_s, u"ungrouped"_s, {{u"taskCount"_s, 2}})});
    click(fixture.window.get(), "refreshGroupButton");
    fixture.selectGroup(0);
    ModalDriver driver;
    expectDeleteQuestion(driver, question(u"ungrouped (2)"_s));
    click(fixture.window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.payloadOf(u"group.delete"_s).value("groupId"_L1).toString(), u"Ungrouped"_s);
}

void TestGroupCommands::theQuestionTellsTheNumberOfTasksBehindTheName()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    ModalDriver driver;
    expectDeleteQuestion(driver, question(u"Work (3)"_s), QMessageBox::No);
    click(fixture.window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
}

void TestGroupCommands::theQuestionShowsTheNameAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << u"<i>x</i>"_s;
    QTest::newRow("place markers") << u"50% of %1 and %2"_s;
    QTest::newRow("brackets") << u"A (b)"_s;
}

void TestGroupCommands::theQuestionShowsTheNameAsItIs()
{
    QFETCH(QString, name);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.setGroups({groupJson(u"g1"_s, name, {{u"taskCount"_s, 3}})});
    click(fixture.window.get(), "refreshGroupButton");
    fixture.selectGroup(0);
    ModalDriver driver;
    expectDeleteQuestion(driver, question(name + u" (3)"_s), QMessageBox::No);
    click(fixture.window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
}

void TestGroupCommands::theQuestionAnsweredNoSendsNothing()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    ModalDriver driver;
    expectDeleteQuestion(driver, question(u"Work (3)"_s), QMessageBox::No);
    click(fixture.window.get(), "deleteGroupButton");
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s,
                                     [](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); });
    click(fixture.window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList());
    QVERIFY(fixture.tree()->topLevelItem(0)->isSelected());
}

void TestGroupCommands::theQuestionHasNoDefaultButton()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [](QMessageBox *box) {
        QVERIFY(box->defaultButton() == nullptr);
        box->reject();
    });
    click(fixture.window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
}

void TestGroupCommands::aDeletedGroupIsFollowedByTheTreeAndTheOtherRefreshes()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    fixture.daemon.onRequest(u"group.delete"_s, [&fixture](const QJsonObject &) {
        fixture.setGroups({groupJson(u"ungrouped"_s, u"Ungrouped"_s)});
    });
    ModalDriver driver;
    expectDeleteQuestion(driver, question(u"Work (3)"_s));
    click(fixture.window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    // The table follows the selection that the rebuilt tree has lost.
    QCOMPARE(fixture.daemon.commands(),
             QStringList({u"group.delete"_s, u"task.listByType"_s, u"group.listByTaskType"_s, u"task.listByType"_s,
                          u"task.countByGroupAndType"_s, u"audit.list"_s}));
    QCOMPARE(fixture.tree()->topLevelItemCount(), 1);
    QCOMPARE(fixture.tree()->topLevelItem(0)->text(0), u"Ungrouped (1)"_s);
    QVERIFY(fixture.tree()->selectedItems().isEmpty());
    QVERIFY(!fixture.widget<QPushButton>("deleteGroupButton")->isEnabled());
}

void TestGroupCommands::childGroupsAreLeftToTheDaemon()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.setGroups({groupJson(u"g1"_s, u"Work"_s), groupJson(u"g2"_s, u"Child"_s, {{u"parentId"_s, u"g1"_s}})});
    click(fixture.window.get(), "refreshGroupButton");
    fixture.selectGroup(0);
    ModalDriver driver;
    expectDeleteQuestion(driver, question(u"Work (0)"_s));
    click(fixture.window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.payloadOf(u"group.delete"_s),
             QJsonObject({{u"groupId"_s, u"g1"_s}, {u"deleteChildGroups"_s, false}}));
}

void TestGroupCommands::aFailureShowsABoxAndNothingElse()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    fixture.daemon.refuse(u"group.delete"_s, u"GROUP_HAS_CHILDREN"_s, u"a detail of the daemon"_s);
    ModalDriver driver;
    expectDeleteQuestion(driver, question(u"Work (3)"_s));
    driver.expectBox(QMessageBox::Critical, u"Delete Error"_s, u"Failed to delete group."_s);
    click(fixture.window.get(), "deleteGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList({u"group.delete"_s}));
    QVERIFY(fixture.tree()->topLevelItem(0)->isSelected());
    QVERIFY(fixture.widget<QPushButton>("deleteGroupButton")->isEnabled());
}

ORVEL_TEST_MAIN(QApplication, TestGroupCommands)
#include "tst_groupcommands.moc"
