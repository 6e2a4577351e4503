#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace Scheduler {

// The wire protocol between manager and daemon: requests and responses as JSON objects, one compact object a line, in
// UTF-8, each ended by a line feed. docs/protocol.md tells it in full.

/// Server name of the local socket, the same for both ends: on Windows a pipe name, elsewhere a path in the user's
/// own runtime directory, which keeps other users out. Empty when there is no such directory.
[[nodiscard]] QString defaultPipeName();

/// One frame: the object in compact form and its terminator.
[[nodiscard]] QByteArray encodeFrame(const QJsonObject &message);

/// A response object with "ok" false, also used for failures that never were on the wire.
[[nodiscard]] QJsonObject errorResponse(const QString &code, const QString &message);

} // namespace Scheduler
