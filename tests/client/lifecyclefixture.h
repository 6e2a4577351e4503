#pragma once

#include "mcsipcconnection.h"
#include "mcsschedulerclient.h"
#include "platform.h"
#include "scripteddaemon.h"

#include <QPointer>
#include <QStringList>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace TestSupport {

/// A client, the scripted daemon at its other end, and the client's signals in order.
class LifecycleFixture {
protected:
    LifecycleFixture() = default;
    ~LifecycleFixture()
    {
        tearDown();
    }
    Q_DISABLE_COPY_MOVE(LifecycleFixture)

    void setUp()
    {
        m_daemon = std::make_unique<ScriptedDaemon>();
        QVERIFY(m_daemon->listen());
        m_client = std::make_unique<Scheduler::MCsSchedulerClient>();
        m_client->setClientType(QStringLiteral("task_type.screen_record"));
        record();
    }
    void tearDown()
    {
        m_client.reset();
        m_daemon.reset();
        m_signals.clear();
    }

    /// A client that has connected, and the record of its signals empty again.
    void setUpConnected(bool autoReconnect)
    {
        setUp();
        QVERIFY(m_client->connectToDaemon());
        m_client->enableAutoReconnect(autoReconnect);
        m_signals.clear();
        m_daemon->clearRequests();
    }

    /// Runs the action once the daemon has received the command: from the event loop and not from the daemon's own
    /// slot, which has to return before the daemon can read on.
    void once(const QString &cmd, const std::function<void()> &action)
    {
        m_daemon->onRequest(cmd, [this, cmd, action](const QJsonObject &) {
            m_daemon->onRequest(cmd, {});
            QTimer::singleShot(0, m_daemon.get(), action);
        });
    }

    [[nodiscard]] QTimer *reconnectTimer() const
    {
        return timer(QStringLiteral("reconnectTimer"));
    }
    [[nodiscard]] QTimer *checkTimer() const
    {
        return timer(QStringLiteral("checkTimer"));
    }
    /// The interval of a running timer; -1 for one that is missing or stands still.
    [[nodiscard]] static int running(const QTimer *timer)
    {
        return timer != nullptr && timer->isActive() ? timer->interval() : -1;
    }
    /// Spares the test the wait for the next attempt.
    void hurryReconnect() const
    {
        QVERIFY(running(reconnectTimer()) > 0);
        reconnectTimer()->start(0);
    }

    /// Ends the daemon and waits until the client has noticed.
    void loseDaemon()
    {
        m_daemon->stop();
        QTRY_VERIFY(!m_client->isConnected());
    }
    /// Lets the next attempt run at once, and to its end.
    void failAttempt()
    {
        const QString name = QStringLiteral("reconnecting");
        const qsizetype before = m_signals.filter(name).size();
        hurryReconnect();
        QTRY_COMPARE(m_signals.filter(name).size(), before + 1);
    }
    /// Loses the connection, though not the daemon, and lets the first attempt run at once.
    void startReconnect()
    {
        m_daemon->dropConnections();
        QTRY_VERIFY(!m_client->isConnected());
        m_signals.clear();
        hurryReconnect();
    }

    [[nodiscard]] Scheduler::MCsIPCConnection *connection() const
    {
        return m_client->findChild<Scheduler::MCsIPCConnection *>();
    }

    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<Scheduler::MCsSchedulerClient> m_client;
    /// Names of the emitted signals, with their arguments.
    QStringList m_signals;

private:
    [[nodiscard]] QTimer *timer(const QString &name) const
    {
        return m_client->findChild<QTimer *>(name);
    }

    void record()
    {
        using Scheduler::MCsSchedulerClient;
        MCsSchedulerClient *client = m_client.get();
        const auto note = [this](const QString &name) { return [this, name] { m_signals.append(name); }; };
        QObject::connect(client, &MCsSchedulerClient::connected, client, note(QStringLiteral("connected")));
        QObject::connect(client, &MCsSchedulerClient::disconnected, client, note(QStringLiteral("disconnected")));
        QObject::connect(client, &MCsSchedulerClient::connectionLost, client, note(QStringLiteral("connectionLost")));
        QObject::connect(client, &MCsSchedulerClient::reconnected, client, note(QStringLiteral("reconnected")));
        QObject::connect(client, &MCsSchedulerClient::reconnectFailed, client, note(QStringLiteral("reconnectFailed")));
        QObject::connect(client, &MCsSchedulerClient::error, client,
                         [this](const QString &message) { m_signals.append(QStringLiteral("error: ") + message); });
        QObject::connect(client, &MCsSchedulerClient::reconnecting, client, [this](int attempt, int maxAttempts) {
            m_signals.append(QStringLiteral("reconnecting %1 of %2").arg(attempt).arg(maxAttempts));
        });
    }
};

/// What a client tells when its daemon goes.
inline QStringList lossSignals()
{
    return toldOfLoss(QStringLiteral("error: ")) +
           QStringList{QStringLiteral("disconnected"), QStringLiteral("connectionLost")};
}

} // namespace TestSupport
