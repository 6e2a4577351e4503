#include "stage.h"

#include "mcsschedulerclient.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProgressDialog>
#include <QTest>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

/// More than any good answer takes, on whatever machine; and less than a test waits for what it expects, for a command
/// may go out on a connection that is lost already, and waits in vain.
constexpr int answerMs = 4000;
constexpr int patientMs = 20000;
/// For a command that nothing comes before, so that no good answer has to hurry. The daemon has to have it by then.
constexpr int shortMs = 40 * PIPE_SLOWNESS;
/// For one that others come before, which have to be answered in this time, too.
constexpr int mediumMs = 100 * PIPE_SLOWNESS;
/// For a command under whose wait the next connection has to stand.
constexpr int reconnectionMs = 500;
/// Between two attempts while the daemon is gone: on a slow machine the window would else give up before the test is
/// done with what it looks at.
constexpr int heldMs = 60000;

bool awaitsAnswer(Outcome outcome)
{
    return outcome == Outcome::Answered || outcome == Outcome::Refused || outcome == Outcome::Hollow ||
           outcome == Outcome::OddElements || outcome == Outcome::AnsweredThenLost;
}

/// How long the command waits that the fault strikes.
int timeoutUnder(Outcome outcome, int withoutAnswer)
{
    if (outcome == Outcome::LostAndBack)
        return reconnectionMs;
    return awaitsAnswer(outcome) ? answerMs : withoutAnswer;
}

// Not by the means of the test library: they delete what is to be deleted later, and a socket is busy meanwhile.
void runUntil(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(patientMs);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

QJsonObject ok(const QJsonObject &data)
{
    return {{u"ok"_s, true}, {u"data"_s, data}};
}

QJsonArray oneOf(const QJsonObject &object)
{
    return {object};
}

} // namespace

Stage::Stage()
{
    QObject::connect(&m_pacer, &QTimer::timeout, &m_pacer, [this] { paceReconnection(); });
    QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] {
        if (m_mended || isReconnecting()) {
            m_watch.stop();
            mend();
        }
    });
}

bool Stage::setUp()
{
    const QJsonObject type{{u"type"_s, u"task_type.screen_record"_s}, {u"name"_s, u"Recorder"_s}};
    daemon.answer(u"tasktype.list"_s, {{u"taskTypes"_s, oneOf(type)}});
    if (!connectQuietly())
        return false;
    client = window->findChild<MCsSchedulerClient *>();
    client->setCommandTimeout(answerMs);
    script();
    window->onRefreshGroups();
    window->onRefreshTaskList();
    return client != nullptr && Views::of(*window).differences(newest()).isEmpty();
}

void Stage::script()
{
    const auto tasks = [this](const QJsonObject &) {
        QJsonArray all;
        for (const QList<Content::Task> now = content.tasks(); const Content::Task &task : now)
            all.append(taskJson(task.id, task.name, {{u"enabled"_s, task.enabled}}));
        return ok({{u"tasks"_s, all}});
    };
    daemon.respondWith(u"task.listByType"_s, tasks);
    daemon.respondWith(u"task.listByGroupAndType"_s, tasks);
    daemon.respondWith(u"group.listByTaskType"_s, [this](const QJsonObject &) {
        const auto group = [this](const QString &id, const QString &name) {
            return groupJson(id, name, {{u"taskCount"_s, content.countOf(id)}});
        };
        return ok({{u"groups"_s, QJsonArray{group(u"g1"_s, u"Work"_s), group(u"ungrouped"_s, u"Ungrouped"_s)}}});
    });
    daemon.respondWith(u"task.countByGroupAndType"_s, [this](const QJsonObject &payload) {
        return ok({{u"count"_s, content.countOf(payload.value("groupId"_L1).toString())}});
    });
    daemon.respondWith(u"audit.list"_s, [this](const QJsonObject &) {
        const QJsonObject entry{{u"action"_s, u"task.updated"_s},
                                {u"entityName"_s, content.logName()},
                                {u"createdAt"_s, u"2026-11-13T10:00:05Z"_s}};
        return ok({{u"logs"_s, oneOf(entry)}});
    });
    daemon.respondWith(u"task.get"_s, [](const QJsonObject &payload) {
        const QString id = payload.value("taskId"_L1).toString();
        return ok({{u"task"_s, taskJson(id, u"Stored "_s + id, {{u"groupId"_s, u"g1"_s}})}});
    });
    daemon.respondWith(u"group.get"_s, [](const QJsonObject &payload) {
        const QString id = payload.value("groupId"_L1).toString();
        const QJsonObject more{{u"taskType"_s, u"task_type.screen_record"_s}, {u"color"_s, u"#112233"_s}};
        return ok({{u"group"_s, groupJson(id, u"Stored "_s + id, more)}});
    });
    daemon.answer(u"task.create"_s, {{u"taskId"_s, u"t9"_s}});
    daemon.answer(u"group.create"_s, {{u"groupId"_s, u"g9"_s}});
    daemon.answer(u"task.countByType"_s, {{u"count"_s, 3}});
}

void Stage::renew()
{
    m_before = Views::of(*window);
    ++content.age;
    daemon.clearRequests();
}

void Stage::arm(const Fault &fault, const QString &command, int number, bool comesFirst)
{
    m_fault = fault;
    m_command = command;
    m_countdown = number;
    m_struck.reset();
    m_mended = m_settled = false;
    m_timeout = timeoutUnder(fault.outcome, comesFirst ? shortMs : mediumMs);
    client->setCommandTimeout(m_timeout);
    if (fault.outcome == Outcome::LostAndBack)
        setPace(0);
    if (fault.stopsReading) {
        daemon.pauseReading(true);
        m_struck = QJsonObject();
        return;
    }
    daemon.deliverWith(command, [this](const QJsonObject &answer) {
        if (--m_countdown > 0)
            daemon.sendResponse(answer);
        else
            strike(answer);
    });
}

void Stage::strike(const QJsonObject &answer)
{
    daemon.deliverWith(m_command, {});
    // What is asked from now on gets its answer. The command that is struck waits already.
    const bool stands = m_fault.outcome != Outcome::Lost && m_fault.outcome != Outcome::AnsweredThenLost;
    client->setCommandTimeout(stands ? answerMs : shortMs);
    if (!stands)
        setPace(heldMs);
    m_struck = answer;
    m_fault.strike({daemon, *window, answer});
    awaitLoss();
}

// A slow machine would else end the wait of the command first, and show what follows before the loss.
void Stage::awaitLoss() const
{
    if (m_fault.outcome == Outcome::Lost)
        runUntil([this] { return !client->isConnected(); });
}

void Stage::hasten()
{
    m_timeout = qMin(m_timeout, timeoutUnder(m_fault.outcome, shortMs));
    client->setCommandTimeout(m_timeout);
}

bool Stage::hasStruck() const
{
    return m_struck.has_value();
}

void Stage::mend()
{
    if (m_mended)
        return;
    m_mended = true;
    m_watch.stop();
    daemon.deliverWith(m_command, {});
    const bool gone = m_fault.outcome == Outcome::Lost || m_fault.outcome == Outcome::AnsweredThenLost;
    if (gone && !m_settled)
        expectLoss();
    client->setCommandTimeout(answerMs);
    if (m_fault.stopsReading)
        daemon.pauseReading(false);
    if (m_fault.afterwards && hasStruck())
        m_fault.afterwards({daemon, *window, *m_struck});
    settle();
}

void Stage::mendWhenCovered()
{
    if (m_fault.outcome == Outcome::AnsweredThenLost)
        m_watch.start(1);
}

void Stage::expectLoss() const
{
    QTRY_COMPARE(window->connectionState(), ConnectionState::Reconnecting);
    QVERIFY2(isReconnecting(), "no dialog tells of the loss");
    QVERIFY2(status() == "Disconnected"_L1 || status().startsWith("Reconnecting ("_L1), qPrintable(status()));
    QCOMPARE(widget<QLabel>("statusLabel")->styleSheet(), u"color: red;"_s);
    for (const char *name : {"createButton", "editButton", "deleteButton", "triggerButton", "refreshButton",
                             "createGroupButton", "editGroupButton", "deleteGroupButton", "refreshGroupButton"})
        QVERIFY2(!widget<QWidget>(name)->isEnabled(), name);
}

bool Stage::isReconnecting() const
{
    const QList<QProgressDialog *> dialogs = window->findChildren<QProgressDialog *>(u"reconnectDialog"_s);
    return std::ranges::any_of(dialogs, [](const QProgressDialog *dialog) {
        return dialog->isVisible() && dialog->windowTitle() == "Connection Lost"_L1;
    });
}

// However late the loss is noticed, and with whatever else: it is there to be seen.
void Stage::loseConnection()
{
    m_wasPaced = m_pacer.isActive();
    m_formerPause = m_pause;
    setPace(heldMs);
    daemon.dropConnections();
    QTRY_COMPARE(window->connectionState(), ConnectionState::Reconnecting);
}

void Stage::seekConnection()
{
    if (m_wasPaced)
        setPace(m_formerPause);
    else
        m_pacer.stop();
    fire(timer("reconnectTimer"));
}

void Stage::settle()
{
    QVERIFY(daemon.listen());
    client->setCommandTimeout(answerMs);
    setPace(0);
    QTRY_VERIFY_WITH_TIMEOUT(window->connectionState() == ConnectionState::Connected && client->isConnected(),
                             patientMs);
    m_pacer.stop();
    QVERIFY2(!isReconnecting(), "the dialog stays after the reconnection");
    QCOMPARE(status(), u"Connected"_s);
    QCOMPARE(widget<QLabel>("statusLabel")->styleSheet(), u"color: green; font-weight: bold;"_s);
    m_settled = true;
}

// The client pauses for half a second and more before an attempt.
void Stage::setPace(int pauseMs)
{
    m_pause = pauseMs;
    m_pacer.start(1);
}

void Stage::paceReconnection()
{
    for (const char *name : {"reconnectTimer", "autoConnectTimer"}) {
        if (QTimer *pause = timer(name); pause != nullptr && pause->isActive() && pause->interval() != m_pause)
            pause->start(m_pause);
    }
}

void Stage::expect(const Views &expected, const std::source_location &where) const
{
    if (const QStringList differences = Views::of(*window).differences(expected); !differences.isEmpty())
        fail(differences.join(u'\n'), where);
}

Views Stage::before() const
{
    Views views = m_before;
    if (m_fault.readsLog)
        views.log = newest().log;
    return views;
}

Views Stage::newest() const
{
    return content.views();
}

QString Stage::reason() const
{
    if (m_fault.outcome == Outcome::Refused)
        return m_fault.reason;
    return u"TIMEOUT: Request timed out after %1ms"_s.arg(m_timeout);
}

const Fault &Stage::fault() const
{
    return m_fault;
}

} // namespace TestSupport
