#include "moments.h"

#include "dragfixture.h"
#include "mcsgrouptreewidget.h"
#include "menuuser.h"

#include <QTest>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

using Act = std::function<void(Stage &)>;

struct Command {
    QByteArray name; ///< of the command on the wire
    Act prepare;
    Act start;
    std::function<QString(const Stage &)> question; ///< that is answered with Yes; none for a command that asks nothing
    QString failureTitle;
    QString failureText;
    bool ofGroup = false;      ///< a group is selected
    bool rebuildsTree = false; ///< by a success, which ends the selection of the group
    bool pauses = false;       ///< for half a second before the refresh
};

void expectSuccess(const Stage &stage, const Command &command)
{
    Views expected = stage.newest();
    if (command.ofGroup && !command.rebuildsTree)
        expected.count += u" (in Work)"_s;
    if (command.pauses) {
        QTRY_COMPARE(Views::of(*stage.window).differences(expected), QStringList());
    }
    stage.expect(expected);
}

void expectFailure(const Stage &stage, const Command &command)
{
    if (stage.fault().outcome == Outcome::LostAndBack) {
        stage.expect(stage.newest());
        return;
    }
    stage.expect(stage.before());
    // No refresh follows.
    const QStringList sent = stage.daemon.commands();
    QCOMPARE(sent, stage.fault().stopsReading ? QStringList() : QStringList{QString::fromLatin1(command.name)});
}

void meet(Stage &stage, const Command &command)
{
    const Outcome outcome = stage.fault().outcome;
    ModalDriver driver;
    if (command.question)
        expectDeleteQuestion(driver, command.question(stage));
    if (isFailure(outcome))
        driver.expectBox(QMessageBox::Critical, command.failureTitle, command.failureText);
    command.start(stage);
    QVERIFY2(driver.finished(), driver.problems());
    if (isFailure(outcome))
        expectFailure(stage, command);
    else if (outcome != Outcome::AnsweredThenLost) // whether the refresh has still been answered is a matter of luck
        expectSuccess(stage, command);
}

Moment momentOf(const Command &command)
{
    Moment moment{command.name, QString::fromLatin1(command.name)};
    moment.pauses = command.pauses;
    moment.prepare = command.prepare;
    moment.meet = [command](Stage &stage) { meet(stage, command); };
    return moment;
}

Act pressing(const QString &control)
{
    return [control](Stage &stage) { stage.run(control); };
}

void selectFirstTask(Stage &stage)
{
    stage.selectTask(0);
}

void selectWork(Stage &stage)
{
    stage.selectGroup(0);
}

Act selectTaskThatIs(const QString &status)
{
    return [status](Stage &stage) {
        int row = 0;
        while (stage.table()->item(row, 2)->text() != status)
            ++row;
        stage.selectTask(row);
    };
}

Act choosing(const QString &item)
{
    return [item](Stage &stage) {
        const MenuUser user(item);
        QTreeWidget *tree = stage.tree();
        const QPoint position = tree->visualItemRect(tree->topLevelItem(0)).center();
        // A menu that comes up under the pointer may take a click without a move for the one that brought it up.
        QTest::mouseMove(tree->viewport(), position);
        emit tree->customContextMenuRequested(position);
        QVERIFY2(user.hasChosen(), qPrintable(user.items().join(u',')));
    };
}

Act dropping(const QByteArray &ids)
{
    return [ids](Stage &stage) {
        auto *tree = stage.widget<MCsGroupTreeWidget>("groupTree");
        const QPoint position = tree->visualItemRect(tree->topLevelItem(0)).center();
        Drag drag(tree, ids);
        drag.enter(position);
        drag.move(position);
        QCOMPARE(drag.drop(position), accepted);
    };
}

QString taskQuestion(const Stage &stage)
{
    return u"Are you sure you want to delete task '%1'?"_s.arg(stage.table()->item(0, 0)->text());
}

QString groupQuestion(const Stage &stage)
{
    return u"Are you sure you want to delete group '%1'?\nTasks in this group will be moved to 'Ungrouped'."_s.arg(
        stage.tree()->topLevelItem(0)->text(0));
}

QString tasksQuestion(const Stage & /*stage*/)
{
    return u"Are you sure you want to delete all tasks in this group?"_s;
}

QList<Command> taskCommands()
{
    const QString toggle = u"onToggleTaskEnabled"_s;
    const QString toggleText = u"Failed to toggle task status."_s;
    return {
        {"task.delete", selectFirstTask, pressing(u"deleteButton"_s), taskQuestion, u"Delete Error"_s,
         u"Failed to delete task."_s},
        {"task.enable", selectTaskThatIs(u"Disabled"_s), pressing(toggle), {}, u"Toggle Error"_s, toggleText},
        {"task.disable", selectTaskThatIs(u"Enabled"_s), pressing(toggle), {}, u"Toggle Error"_s, toggleText},
        {"task.trigger",
         selectFirstTask,
         pressing(u"triggerButton"_s),
         {},
         u"Trigger Error"_s,
         u"Failed to trigger task."_s,
         false,
         false,
         true},
        {"task.moveToGroup", {}, dropping("t1"), {}, u"Error"_s, u"Failed to move task to group 'Work'."_s},
        {"task.batchMoveToGroup", {}, dropping("t1,t3"), {}, u"Error"_s, u"Failed to move 2 tasks to group 'Work'."_s}};
}

QList<Command> groupCommands()
{
    return {{"group.delete", selectWork, pressing(u"deleteGroupButton"_s), groupQuestion, u"Delete Error"_s,
             u"Failed to delete group."_s, true, true},
            {"group.enableAllTasks",
             selectWork,
             choosing(u"Enable All Tasks"_s),
             {},
             u"Error"_s,
             u"Failed to enable all tasks in group."_s,
             true},
            {"group.disableAllTasks",
             selectWork,
             choosing(u"Disable All Tasks"_s),
             {},
             u"Error"_s,
             u"Failed to disable all tasks in group."_s,
             true},
            {"group.triggerAllTasks",
             selectWork,
             choosing(u"Trigger All Tasks"_s),
             {},
             u"Error"_s,
             u"Failed to trigger all tasks in group."_s,
             true,
             false,
             true},
            {"group.deleteAllTasks", selectWork, choosing(u"Delete All Tasks"_s), tasksQuestion, u"Error"_s,
             u"Failed to delete all tasks in group."_s, true}};
}

} // namespace

QList<Moment> commandMoments()
{
    QList<Moment> moments;
    for (const QList<Command> all = taskCommands() + groupCommands(); const Command &command : all)
        moments.append(momentOf(command));
    return moments;
}

} // namespace TestSupport
