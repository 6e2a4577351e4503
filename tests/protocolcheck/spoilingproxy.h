#pragma once

#include "mcsframebuffer.h"

#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace TestSupport {

/// Stands between a client and a daemon, and makes a daemon with a defect of the two: requests that the daemon never
/// sees, and answers that it never gave.
class SpoilingProxy : public QObject {
    Q_OBJECT

public:
    struct Exchange {
        QByteArray frame;     ///< as the client sent it; for an answer without an id, the oldest that is no request
        QJsonObject request;  ///< empty when the frame is no request
        QJsonObject response; ///< empty before the daemon has answered
    };
    /// The frames to send in place of the daemon's answer; nothing to hang up.
    using Answer = std::optional<QList<QJsonObject>>;
    using Spoil = std::function<Answer(const Exchange &)>;

    SpoilingProxy(const QString &endpoint, const QString &daemonEndpoint, QObject *parent = nullptr);

    [[nodiscard]] bool listen();
    /// Requests for which the function returns true are answered with success, and do not reach the daemon.
    void swallow(const std::function<bool(const QJsonObject &request)> &condition);
    void spoil(const Spoil &spoil);

private:
    struct Line {
        QLocalSocket *client;
        QLocalSocket daemon;
        Scheduler::MCsFrameBuffer fromClient;
        Scheduler::MCsFrameBuffer fromDaemon;
        QHash<QString, QByteArray> requests; ///< by id, those that wait
        QByteArrayList otherFrames;          ///< what is no request, in order, and waits as well
    };

    void onNewConnection();
    void onClientBytes(Line &line);
    void onDaemonBytes(Line &line);
    static void send(QLocalSocket &socket, const QByteArray &bytes);

    QString m_endpoint;
    QString m_daemonEndpoint;
    QLocalServer m_server;
    std::function<bool(const QJsonObject &)> m_swallows = [](const QJsonObject &) { return false; };
    Spoil m_spoil = [](const Exchange &exchange) { return QList{exchange.response}; };
    std::vector<std::unique_ptr<Line>> m_lines;
};

} // namespace TestSupport
