#include "closingmoments.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

constexpr int lookEveryMs = 2;

/// A connecting window whose dialog says that. What follows within the same step has been done by then.
ClosingMoment connectingText(const char *name, const QByteArray &serviceState, const QString &text)
{
    const auto bringAbout = [serviceState, text](ClosingScene &scene, const MomentReached &reached) {
        scene.tools.setQueryOutput(serviceState);
        scene.fixture.open();
        when(
            [&scene, text] {
                const auto *dialog = scene.fixture.window->findChild<QProgressDialog *>(u"connectDialog"_s);
                if (dialog == nullptr || dialog->labelText() == text)
                    return dialog != nullptr;
                // On to the next step.
                if (QTimer *timer = scene.fixture.timer("autoConnectTimer"); timer != nullptr && timer->isActive())
                    timer->start(0);
                return false;
            },
            reached);
    };
    return {name, false, bringAbout};
}

/// A connecting window whose daemon does not answer this request.
ClosingMoment unansweredRequest(const char *name, const QString &cmd)
{
    const auto bringAbout = [cmd](ClosingScene &scene, const MomentReached &reached) {
        QVERIFY(scene.fixture.startDaemon());
        scene.fixture.daemon.hold(cmd);
        scene.fixture.open();
        when([&scene] { return scene.fixture.daemon.heldCount() > 0; }, reached);
    };
    return {name, false, bringAbout};
}

/// A connecting window that shows this box.
ClosingMoment connectingBox(const char *name, const QString &title, const std::function<void(ScriptedDaemon &)> &script)
{
    const auto bringAbout = [title, script](ClosingScene &scene, const MomentReached &reached) {
        QVERIFY(scene.fixture.startDaemon());
        script(scene.fixture.daemon);
        scene.fixture.open();
        when([title] { return isUp(title); }, reached);
    };
    return {name, false, bringAbout};
}

} // namespace

void ClosingScene::connect()
{
    const QJsonObject type{{u"type"_s, u"task_type.screen_record"_s}, {u"name"_s, u"Screen"_s}};
    fixture.daemon.answer(u"tasktype.list"_s, {{u"taskTypes"_s, QJsonArray{type}}});
    QVERIFY(fixture.startDaemon());
    fixture.setGroups({groupJson(u"g1"_s, u"Work"_s), groupJson(u"ungrouped"_s, u"Ungrouped"_s)});
    fixture.open();
    fixture.window->autoConnectToDaemon();
    // Everything is read twice, the log last.
    QTRY_COMPARE(fixture.daemon.requests(u"audit.list"_s).size(), 4);
    QTRY_COMPARE(fixture.table()->rowCount(), 2);
    QTRY_VERIFY(fixture.timer("auditRefreshTimer")->isActive());
    fixture.timer("statusUpdateTimer")->stop();
    fixture.selectGroup(0);
    fixture.selectTask(0);
}

void when(const std::function<bool()> &condition, const std::function<void()> &action)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, condition, action] {
        if (!condition())
            return;
        timer->stop();
        timer->deleteLater();
        // A timer does not fire within its own slot, and the action may run event loops.
        QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
    });
    timer->start(lookEveryMs);
}

bool isUp(const QString &title)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->isVisible() && modal->windowTitle() == title;
}

QList<ClosingMoment> momentsOfConnecting()
{
    return {
        connectingText("between two attempts", FakeServiceTools::missing,
                       u"Connecting to scheduler service (attempt 1 of 3)..."_s),
        connectingText("waiting for the started service", FakeServiceTools::running,
                       u"Waiting for service to start..."_s),
        connectingText("between two attempts after the start", FakeServiceTools::running,
                       u"Reconnecting to scheduler service (attempt 1 of 3)..."_s),
        unansweredRequest("registration waits", u"client.register"_s),
        unansweredRequest("first reading of the types", u"tasktype.list"_s),
        unansweredRequest("first reading of the tasks", u"task.listByType"_s),
        unansweredRequest("first reading of the log", u"audit.list"_s),
        unansweredRequest("first reading of the groups", u"group.listByTaskType"_s),
        unansweredRequest("counting before the first question", u"task.countByType"_s),
        connectingBox("fatal box", u"Service Error"_s,
                      [](ScriptedDaemon &daemon) {
                          daemon.refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"taken"_s);
                      }),
        connectingBox("question whether to create a task", u"No Tasks Found"_s,
                      [](ScriptedDaemon &daemon) {
                          daemon.answer(u"task.countByType"_s, {{u"count"_s, 0}});
                      }),
    };
}

} // namespace TestSupport
