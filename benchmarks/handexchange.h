#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QLocalSocket>
#include <QString>

namespace Bench {

/// The floor under every command: one request and its answer by hand, with a socket, compact JSON both ways and one
/// nested event loop with a timer.
class HandExchange {
public:
    HandExchange();

    /// The answer parsed.
    [[nodiscard]] QJsonObject ask(const QString &cmd, const QJsonObject &payload = {});
    /// The bytes of the answer, unparsed.
    [[nodiscard]] QByteArray fetch(const QString &cmd, const QJsonObject &payload = {});

private:
    QLocalSocket m_socket;
    int m_counter = 0;
};

} // namespace Bench
