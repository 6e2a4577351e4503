#include "commandfixture.h"
#include "testmain.h"

#include <QApplication>
#include <QPushButton>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

QString question(const QString &name)
{
    return u"Are you sure you want to delete task '%1'?"_s.arg(name);
}

} // namespace

/// The commands on one task, from the buttons to the daemon and back.
class TestTaskCommands : public QObject {
    Q_OBJECT

private slots:
    void withoutASelectionABoxTellsSo_data();
    void withoutASelectionABoxTellsSo();
    void togglingWithoutASelectionDoesNothing();
    void aSuccessIsFollowedByTheRefreshes_data();
    void aSuccessIsFollowedByTheRefreshes();
    void togglingFollowsTheStatusInEveryLanguage_data();
    void togglingFollowsTheStatusInEveryLanguage();
    void theRefreshesKeepToTheSelectedGroup();
    void aFailureShowsABoxAndNothingElse_data();
    void aFailureShowsABoxAndNothingElse();
    void theQuestionAnsweredNoSendsNothing_data();
    void theQuestionAnsweredNoSendsNothing();
    void theQuestionHasNoDefaultButton();
    void theQuestionShowsTheNameAsItIs_data();
    void theQuestionShowsTheNameAsItIs();
    void ofThreeSelectedRowsOnlyTheFirstItemsTaskIsDeleted_data();
    void ofThreeSelectedRowsOnlyTheFirstItemsTaskIsDeleted();
};

void TestTaskCommands::withoutASelectionABoxTellsSo_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("onEditTask") << u"Please select a task to edit."_s;
    QTest::newRow("onDeleteTask") << u"Please select a task to delete."_s;
    QTest::newRow("onTriggerTask") << u"Please select a task to trigger."_s;
}

void TestTaskCommands::withoutASelectionABoxTellsSo()
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

void TestTaskCommands::togglingWithoutASelectionDoesNothing()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    ModalDriver driver;
    fixture.run(u"onToggleTaskEnabled"_s);
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(driver.seen().isEmpty());
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestTaskCommands::aSuccessIsFollowedByTheRefreshes_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("id");
    QTest::newRow("delete") << u"deleteButton"_s << 0 << u"task.delete"_s << u"t1"_s;
    QTest::newRow("toggle an enabled task") << u"onToggleTaskEnabled"_s << 0 << u"task.disable"_s << u"t1"_s;
    QTest::newRow("toggle a disabled task") << u"onToggleTaskEnabled"_s << 1 << u"task.enable"_s << u"t2"_s;
}

void TestTaskCommands::aSuccessIsFollowedByTheRefreshes()
{
    QFETCH(QString, control);
    QFETCH(int, row);
    QFETCH(QString, command);
    QFETCH(QString, id);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectTask(row);
    ModalDriver driver;
    if (control == "deleteButton"_L1)
        expectDeleteQuestion(driver, question(u"One"_s));
    fixture.run(control);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList(command) + bundle());
    QCOMPARE(fixture.payloadOf(command), QJsonObject({{u"taskId"_s, id}}));
}

void TestTaskCommands::togglingFollowsTheStatusInEveryLanguage_data()
{
    QTest::addColumn<QString>("statuses");
    QTest::newRow("en") << u"Enabled, Disabled"_s;
    QTest::newRow("de") << u"Aktiviert, Deaktiviert"_s;
}

void TestTaskCommands::togglingFollowsTheStatusInEveryLanguage()
{
    QFETCH(QString, statuses);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly(u"task_type.screen_record"_s, QString::fromLatin1(QTest::currentDataTag())));
    QCOMPARE(fixture.table()->item(0, 2)->text() + u", "_s + fixture.table()->item(1, 2)->text(), statuses);
    fixture.selectTask(0);
    fixture.run(u"onToggleTaskEnabled"_s);
    QCOMPARE(fixture.daemon.commands().value(0), u"task.disable"_s);
    fixture.selectTask(1);
    fixture.run(u"onToggleTaskEnabled"_s);
    QCOMPARE(fixture.daemon.commands().value(0), u"task.enable"_s);
}

void TestTaskCommands::theRefreshesKeepToTheSelectedGroup()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    fixture.selectTask(0);
    ModalDriver driver;
    expectDeleteQuestion(driver, question(u"One"_s));
    click(fixture.window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList(u"task.delete"_s) + bundleOfGroup());
}

void TestTaskCommands::aFailureShowsABoxAndNothingElse_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    const QString toggle = u"Failed to toggle task status."_s;
    QTest::newRow("delete") << u"deleteButton"_s << 0 << u"task.delete"_s << u"Delete Error"_s
                            << u"Failed to delete task."_s;
    QTest::newRow("disable") << u"onToggleTaskEnabled"_s << 0 << u"task.disable"_s << u"Toggle Error"_s << toggle;
    QTest::newRow("enable") << u"onToggleTaskEnabled"_s << 1 << u"task.enable"_s << u"Toggle Error"_s << toggle;
    QTest::newRow("trigger") << u"triggerButton"_s << 0 << u"task.trigger"_s << u"Trigger Error"_s
                             << u"Failed to trigger task."_s;
}

void TestTaskCommands::aFailureShowsABoxAndNothingElse()
{
    QFETCH(QString, control);
    QFETCH(int, row);
    QFETCH(QString, command);
    QFETCH(QString, title);
    QFETCH(QString, text);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectTask(row);
    fixture.daemon.refuse(command, u"INTERNAL"_s, u"a detail of the daemon"_s);
    ModalDriver driver;
    if (control == "deleteButton"_L1)
        expectDeleteQuestion(driver, question(u"One"_s));
    driver.expectBox(QMessageBox::Critical, title, text);
    fixture.run(control);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().last().informativeText, QString());
    QCOMPARE(fixture.daemon.commands(), QStringList(command));
    QCOMPARE(fixture.table()->selectedItems().value(0), fixture.table()->item(row, 0));
    QVERIFY(fixture.widget<QPushButton>("deleteButton")->isEnabled());
    QCOMPARE(fixture.table()->rowCount(), 3);
}

void TestTaskCommands::theQuestionAnsweredNoSendsNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("No") << false;
    QTest::newRow("the Escape key") << true;
}

void TestTaskCommands::theQuestionAnsweredNoSendsNothing()
{
    QFETCH(bool, escape);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectTask(0);
    ModalDriver driver;
    if (escape)
        driver.expectDialog<QMessageBox>(u"Confirm Delete"_s,
                                         [](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); });
    else
        expectDeleteQuestion(driver, question(u"One"_s), QMessageBox::No);
    click(fixture.window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList());
    QCOMPARE(fixture.table()->selectedItems().value(0), fixture.table()->item(0, 0));
}

void TestTaskCommands::theQuestionHasNoDefaultButton()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectTask(0);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [](QMessageBox *box) {
        QVERIFY(box->defaultButton() == nullptr);
        box->reject();
    });
    click(fixture.window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
}

void TestTaskCommands::theQuestionShowsTheNameAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << u"<b>x</b>"_s;
    QTest::newRow("place markers") << u"100% of %1 and %2"_s;
    QTest::newRow("empty") << QString();
}

void TestTaskCommands::theQuestionShowsTheNameAsItIs()
{
    QFETCH(QString, name);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.setTasks({taskJson(u"t1"_s, name)});
    click(fixture.window.get(), "refreshButton");
    fixture.selectTask(0);
    ModalDriver driver;
    expectDeleteQuestion(driver, question(name), QMessageBox::No);
    click(fixture.window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
}

void TestTaskCommands::ofThreeSelectedRowsOnlyTheFirstItemsTaskIsDeleted_data()
{
    QTest::addColumn<QList<int>>("order");
    QTest::newRow("selected downwards") << QList<int>({0, 1, 2});
    QTest::newRow("selected upwards") << QList<int>({2, 1, 0});
}

void TestTaskCommands::ofThreeSelectedRowsOnlyTheFirstItemsTaskIsDeleted()
{
    QFETCH(QList<int>, order);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    QTableWidget *table = fixture.table();
    for (const int row : order)
        table->setRangeSelected({row, 0, row, table->columnCount() - 1}, true);
    const QTableWidgetItem *target = table->item(table->selectedItems().constFirst()->row(), 0);
    const QString id = target->data(Qt::UserRole).toString();
    QList<QJsonObject> others{taskJson(u"t1"_s, u"One"_s), taskJson(u"t2"_s, u"Two"_s), taskJson(u"t3"_s, u"Three"_s)};
    others.removeIf([&id](const QJsonObject &task) { return task.value("id"_L1).toString() == id; });
    fixture.daemon.onRequest(u"task.delete"_s, [&](const QJsonObject &) { fixture.setTasks(others); });
    ModalDriver driver;
    expectDeleteQuestion(driver, question(target->text()));
    click(fixture.window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.payloadOf(u"task.delete"_s), QJsonObject({{u"taskId"_s, id}}));
    QCOMPARE(table->rowCount(), 2);
    for (int row = 0; row < 2; ++row)
        QCOMPARE(table->item(row, 0)->data(Qt::UserRole).toString(), others.at(row).value("id"_L1).toString());
}

ORVEL_TEST_MAIN(QApplication, TestTaskCommands)
#include "tst_taskcommands.moc"
