#pragma once

#include "mcsframebuffer.h"

#include <QJsonObject>
#include <QLocalSocket>
#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

namespace Scheduler::ProtocolCheck {

/// A connection to the daemon that can send anything, be it a request or not, and that notes what a well-behaved daemon
/// never sends. Waiting keeps the event loop running.
class MCsCheckLink : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsCheckLink)

public:
    using Frame = std::optional<QJsonObject>; ///< nothing when none came in time

    /// Each wait ends early once the given function returns true.
    explicit MCsCheckLink(const std::function<bool()> &interrupted, QObject *parent = nullptr);
    ~MCsCheckLink() override;

    /// Why there is no connection; nothing when there is one. A daemon that another user runs is turned away.
    [[nodiscard]] std::optional<QString> open(const QString &endpoint);
    void close();
    [[nodiscard]] bool isOpen() const;

    void send(const QByteArray &bytes);
    /// The answer to a request, each of which can be taken once.
    [[nodiscard]] Frame answerTo(const QJsonValue &id, int timeoutMs);
    /// The oldest frame without an id.
    [[nodiscard]] Frame frameWithoutId(int timeoutMs);

    /// Frames that came and were not taken, late answers apart.
    [[nodiscard]] QStringList strays() const;
    /// Frames that are no answers in the form in which the manager reads them, each with what is wrong about it.
    [[nodiscard]] QStringList malformed() const;

private:
    using Wanted = std::function<bool(const QJsonObject &)>;

    void onReadyRead();
    [[nodiscard]] Frame take(const Wanted &wanted, int timeoutMs);
    [[nodiscard]] Frame takeReceived(const Wanted &wanted);

    std::function<bool()> m_interrupted;
    QLocalSocket m_socket;
    MCsFrameBuffer m_buffer;
    QList<QJsonObject> m_received;
    QList<QJsonValue> m_overdue; ///< ids whose answers nobody waits for any more
    QStringList m_malformed;
};

} // namespace Scheduler::ProtocolCheck
