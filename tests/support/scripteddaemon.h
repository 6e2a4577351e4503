#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QLocalSocket>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

class QLocalServer;

namespace TestSupport {

/// A daemon on a real socket that does what the test scripts: answers, refuses, stays silent, holds answers back, sends
/// raw bytes, closes. It records every request. By default every command is answered with "ok" true and an empty data
/// object.
class ScriptedDaemon : public QObject {
    Q_OBJECT

public:
    /// Runs when a request of its command arrives, before the answer is made.
    using Hook = std::function<void(const QJsonObject &request)>;
    /// Makes the response object without its id.
    using Responder = std::function<QJsonObject(const QJsonObject &payload)>;
    /// Gets the whole response of a request and does with it what it likes.
    using Delivery = std::function<void(const QJsonObject &response)>;

    /// The endpoint is the one that the client asks for, unless a name is given.
    explicit ScriptedDaemon(const QString &serverName = {}, QObject *parent = nullptr);
    ~ScriptedDaemon() override;

    [[nodiscard]] bool listen();
    /// Stops listening and closes all connections, as a daemon that ends.
    void stop();
    /// Closes the established connections and goes on listening.
    void dropConnections();

    // What to answer; the last call for a command holds. Each returns to immediate answering.
    void answer(const QString &cmd, const QJsonObject &data);
    void refuse(const QString &cmd, const QString &code, const QString &message);
    /// The whole response but for its id.
    void respond(const QString &cmd, const QJsonObject &response);
    void respondWith(const QString &cmd, const Responder &responder);
    /// Never answers the command.
    void ignore(const QString &cmd);
    /// Keeps the answers of the command back until release().
    void hold(const QString &cmd);
    /// Sends the answers held back for the command, oldest first, and returns to immediate answering.
    void release(const QString &cmd);
    /// Sends the answer of the newest held request only, of whatever command, and keeps holding.
    void releaseNewest();
    [[nodiscard]] qsizetype heldCount() const;
    void onRequest(const QString &cmd, const Hook &hook);
    /// Runs an action once, while the next request of the command waits for its answer, which comes after it.
    void whileWaiting(const QString &cmd, const std::function<void()> &action);

    /// Answers of the command go to the function instead of to the client, whatever else is scripted for it; an empty
    /// one ends that.
    void deliverWith(const QString &cmd, const Delivery &delivery);
    /// Stops reading from the connections, so that what the client writes backs up, or goes on with what has come.
    void pauseReading(bool paused);

    /// Requests so far, in order, optionally of one command.
    [[nodiscard]] QList<QJsonObject> requests(const QString &cmd = {}) const;
    /// Commands of the requests so far.
    [[nodiscard]] QStringList commands() const;
    void clearRequests();

    /// Writes bytes as they are to every connection.
    void sendRaw(const QByteArray &bytes);
    /// Sends a response object, with the id as given in it.
    void sendResponse(const QJsonObject &response);
    /// The bytes received so far, unframed.
    [[nodiscard]] QByteArray receivedBytes() const;
    [[nodiscard]] qsizetype connectionCount() const;
    /// Connections accepted in all.
    [[nodiscard]] int acceptedCount() const;

private:
    struct HeldAnswer {
        QString cmd;
        QJsonObject response;
    };

    void onNewConnection();
    void onReadyRead(QLocalSocket *socket);
    void handle(const QJsonObject &request);
    void forget(const QString &cmd);

    QString m_serverName;
    QLocalServer *m_server = nullptr;
    QList<QLocalSocket *> m_sockets;
    QHash<QLocalSocket *, QByteArray> m_buffers;
    QHash<QString, Responder> m_responders;
    QHash<QString, Hook> m_hooks;
    QHash<QString, Delivery> m_deliveries;
    QSet<QString> m_ignored;
    QSet<QString> m_held;
    QList<HeldAnswer> m_heldAnswers;
    QList<QJsonObject> m_requests;
    QByteArray m_received;
    bool m_paused = false;
    int m_accepted = 0;
};

} // namespace TestSupport
