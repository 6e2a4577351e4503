#pragma once

#include "daemoncommand.h"

#include <QHash>

#include <functional>

namespace Scheduler::DevDaemon {

/// The daemon without sockets, timers and files: a command goes in, its response comes out, and the state changes.
///
/// Time comes from the clock that it is given, so that a test can let hours pass at once.
class MCsDaemonEngine {
public:
    /// Returns the present time in UTC.
    using Clock = std::function<QDateTime()>;

    MCsDaemonEngine(const State &state, const EngineSettings &settings,
                    const Clock &clock = &QDateTime::currentDateTimeUtc);

    /// The response of a command, without the request's id. The actor is the type of the client that sent it.
    [[nodiscard]] QJsonObject execute(const QString &name, const QJsonValue &payload, const QString &actor);

    /// Lets the simulated runs catch up with the clock; to be called a few times a second.
    void advance();

    [[nodiscard]] const State &state() const;
    /// Another number after each change of the state.
    [[nodiscard]] quint64 revision() const;

private:
    EngineSettings m_settings;
    Clock m_clock;
    MCsDaemonStore m_store;
    QHash<QString, Command> m_commands;
};

} // namespace Scheduler::DevDaemon
