#pragma once

#include "mcsipcconnection.h"
#include "scripteddaemon.h"
#include "wireprotocol.h"

#include <QPointer>
#include <QSignalSpy>
#include <QStringList>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace TestSupport {

/// A connection and the scripted daemon at its other end.
class ConnectedPair {
protected:
    ConnectedPair() = default;
    ~ConnectedPair()
    {
        disconnectPair();
    }
    Q_DISABLE_COPY_MOVE(ConnectedPair)

    void connectPair()
    {
        m_daemon = std::make_unique<ScriptedDaemon>();
        m_connection = new Scheduler::MCsIPCConnection(Scheduler::defaultPipeName());
        QVERIFY(m_daemon->listen());
        QVERIFY(m_connection->connectToServer(1, 0));
        QTRY_COMPARE(m_daemon->connectionCount(), 1);
    }
    void disconnectPair()
    {
        delete m_connection;
        m_daemon.reset();
    }

    /// Runs the action once the daemon has received the command: from the event loop and not from the daemon's own
    /// slot, which has to return before the daemon can read on.
    void once(const QString &cmd, const std::function<void()> &action)
    {
        m_daemon->onRequest(cmd,
                            [this, action](const QJsonObject &) { QTimer::singleShot(0, m_daemon.get(), action); });
    }

    QJsonObject send(const QString &cmd, int ms = 20000)
    {
        return m_connection->sendRequest(cmd, {}, ms);
    }

    [[nodiscard]] static bool isOk(const QJsonObject &response)
    {
        return response.value(QLatin1StringView("ok")).toBool();
    }

    [[nodiscard]] static QJsonObject timedOut(int ms)
    {
        return Scheduler::errorResponse(QStringLiteral("TIMEOUT"),
                                        QStringLiteral("Request timed out after %1ms").arg(ms));
    }

    /// Request ids of the delivered responses.
    [[nodiscard]] static QStringList idsOf(const QSignalSpy &responses)
    {
        QStringList result;
        for (const QList<QVariant> &arguments : responses)
            result.append(arguments.constFirst().toString());
        return result;
    }

    std::unique_ptr<ScriptedDaemon> m_daemon;
    QPointer<Scheduler::MCsIPCConnection> m_connection;
};

} // namespace TestSupport
