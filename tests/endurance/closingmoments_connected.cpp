#include "closingmoments.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

using Action = std::function<void(CommandFixture &fixture)>;

/// A control of the window, or a slot without one.
Action running(const QString &control)
{
    return [control](CommandFixture &fixture) { fixture.run(control); };
}

/// The action waits for the answer to this request.
ClosingMoment waiting(const char *name, const QString &cmd, const Action &action)
{
    const auto bringAbout = [cmd, action](ClosingScene &scene, const MomentReached &reached) {
        scene.fixture.daemon.hold(cmd);
        when([&scene] { return scene.fixture.daemon.heldCount() > 0; }, reached);
        QTimer::singleShot(0, scene.fixture.window.get(), [&scene, action] { action(scene.fixture); });
    };
    return {name, true, bringAbout};
}

/// The connection is lost. Then the first attempt to get it back runs into this.
ClosingMoment reconnecting(const char *name, const QString &heldCmd)
{
    const auto bringAbout = [heldCmd](ClosingScene &scene, const MomentReached &reached) {
        scene.fixture.daemon.dropConnections();
        if (!heldCmd.isEmpty())
            scene.fixture.daemon.hold(heldCmd);
        when([] { return isUp(u"Connection Lost"_s); },
             [&scene, heldCmd, reached] {
                 if (heldCmd.isEmpty()) {
                     reached();
                     return;
                 }
                 when([&scene] { return scene.fixture.daemon.heldCount() > 0; }, reached);
                 // On a slow machine the attempt may be under way by now.
                 if (QTimer *pause = scene.fixture.timer("reconnectTimer"); pause->isActive())
                     WindowFixture::fire(pause);
             });
    };
    return {name, true, bringAbout};
}

/// The action brings up a box or a dialog of this title, in which, once it is up, more may be done.
ClosingMoment showing(const char *name, const QString &title, const Action &action,
                      const std::function<void(ClosingScene &, const MomentReached &)> &within = {})
{
    const auto bringAbout = [title, action, within](ClosingScene &scene, const MomentReached &reached) {
        when([title] { return isUp(title); },
             [&scene, within, reached] {
                 if (within)
                     within(scene, reached);
                 else
                     reached();
             });
        QTimer::singleShot(0, scene.fixture.window.get(), [&scene, action] { action(scene.fixture); });
    };
    return {name, true, bringAbout};
}

QAbstractButton *saveButton(const QWidget *dialog)
{
    return dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save);
}

/// Names what the dialog makes and presses Save, which waits for the answer to this request.
auto saving(const QString &cmd)
{
    return [cmd](ClosingScene &scene, const MomentReached &reached) {
        scene.fixture.daemon.hold(cmd);
        when([&scene] { return scene.fixture.daemon.heldCount() > 0; }, reached);
        QWidget *dialog = QApplication::activeModalWidget();
        require<QLineEdit>(dialog, "nameEdit")->setText(u"New"_s);
        click(saveButton(dialog));
    };
}

/// Presses Save, after which a box of this title is over the dialog. Without a name that is an error.
auto savingUntilBox(const QString &taskName, const QString &title)
{
    return [taskName, title](ClosingScene &scene, const MomentReached &reached) {
        scene.fixture.daemon.answer(u"task.create"_s, {{u"taskId"_s, u"t9"_s}});
        when([title] { return isUp(title); }, reached);
        QWidget *dialog = QApplication::activeModalWidget();
        require<QLineEdit>(dialog, "nameEdit")->setText(taskName);
        click(saveButton(dialog));
    };
}

/// A press in a dialog brings up another one over it.
auto pressing(const QString &button, const QString &title)
{
    return [button, title](ClosingScene &, const MomentReached &reached) {
        when([title] { return isUp(title); }, reached);
        click(QApplication::activeModalWidget(), button.toLatin1().constData());
    };
}

ClosingMoment contextMenu()
{
    const auto bringAbout = [](ClosingScene &scene, const MomentReached &reached) {
        when([] { return qobject_cast<QMenu *>(QApplication::activePopupWidget()) != nullptr; }, reached);
        QTimer::singleShot(0, scene.fixture.window.get(), [&scene] {
            QTreeWidget *tree = scene.fixture.tree();
            emit tree->customContextMenuRequested(tree->visualItemRect(tree->topLevelItem(0)).center());
        });
    };
    return {"context menu of a group", true, bringAbout};
}

} // namespace

QList<ClosingMoment> momentsOfWaiting()
{
    const QString tasks = u"task.listByGroupAndType"_s; // a group is selected
    const auto drop = [](const QStringList &ids) {
        return [ids](CommandFixture &fixture) { fixture.window->onTasksDroppedOnGroup(ids, u"g1"_s); };
    };
    return {
        waiting("refresh of the table", tasks, running(u"refreshButton"_s)),
        waiting("refresh of the counts", u"task.countByGroupAndType"_s, running(u"refreshButton"_s)),
        waiting("refresh of the log", u"audit.list"_s, running(u"refreshLogButton"_s)),
        waiting("refresh of the tree", u"group.listByTaskType"_s, running(u"refreshGroupButton"_s)),
        waiting("tick of the one-second update", u"task.listByType"_s, running(u"onUpdateTaskStatus"_s)),
        waiting("selection of a group", tasks,
                [](CommandFixture &fixture) { fixture.tree()->setCurrentItem(fixture.tree()->topLevelItem(1)); }),
        waiting("command", u"task.trigger"_s, running(u"triggerButton"_s)),
        waiting("refresh after a command", tasks, running(u"onToggleTaskEnabled"_s)),
        waiting("drop of a task", u"task.moveToGroup"_s, drop({u"t1"_s})),
        waiting("drop of two tasks", u"task.batchMoveToGroup"_s, drop({u"t1"_s, u"t2"_s})),
        waiting("refresh after a drop", tasks, drop({u"t1"_s})),
        waiting("loading of a task dialog", u"task.get"_s, running(u"editButton"_s)),
        waiting("loading of a group dialog", u"group.get"_s, running(u"editGroupButton"_s)),
        reconnecting("reconnect dialog", {}),
        reconnecting("registration of a reconnection", u"client.register"_s),
        reconnecting("first reading after a reconnection", u"tasktype.list"_s),
    };
}

QList<ClosingMoment> momentsOfDialogs()
{
    const auto failingTrigger = [](CommandFixture &fixture) {
        fixture.daemon.refuse(u"task.trigger"_s, u"NO"_s, u"no"_s);
        fixture.run(u"triggerButton"_s);
    };
    return {
        showing("question before a deletion", u"Confirm Delete"_s, running(u"deleteButton"_s)),
        showing("question before a group's deletion", u"Confirm Delete"_s, running(u"deleteGroupButton"_s)),
        showing("box of a failed command", u"Trigger Error"_s, failingTrigger),
        showing("information box", u"Export Logs"_s, running(u"onExportLogs"_s)),
        showing("task dialog", u"Create Task"_s, running(u"createButton"_s)),
        showing("task dialog that saves", u"Create Task"_s, running(u"createButton"_s), saving(u"task.create"_s)),
        showing("box over a task dialog", u"Create Task"_s, running(u"createButton"_s),
                savingUntilBox({}, u"Validation Error"_s)),
        showing("box of a saved task", u"Create Task"_s, running(u"createButton"_s),
                savingUntilBox(u"New"_s, u"Success"_s)),
        showing("group dialog", u"Create Group"_s, running(u"createGroupButton"_s)),
        showing("group dialog that saves", u"Create Group"_s, running(u"createGroupButton"_s),
                saving(u"group.create"_s)),
        showing("colours of a group dialog", u"Create Group"_s, running(u"createGroupButton"_s),
                pressing(u"colorButton"_s, u"Select Group Color"_s)),
        contextMenu(),
    };
}

} // namespace TestSupport
