#pragma once

#include "daemonoptions.h"
#include "daemonrecords.h"
#include "mcsnamedpipeserver.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

namespace Scheduler::DevDaemon {

class MCsDaemonEngine;
class MCsDaemonSessions;

/// The whole daemon: listens, keeps its state in a file, and lets the simulated runs go on.
///
/// Changes are saved a moment after they are made, several at once, since clients send commands in bursts.
class MCsDevDaemon : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsDevDaemon)

public:
    explicit MCsDevDaemon(const DaemonOptions &options, QObject *parent = nullptr);
    ~MCsDevDaemon() override;

    /// Listens and reads or makes the state. False, after a message that says why, when the daemon cannot run; a
    /// state file that cannot be read is left as it is.
    [[nodiscard]] bool start();

    /// Saves the state and frees the endpoint. False, after a message, when the state could not be saved.
    bool stop();

signals:
    /// A line for whoever runs the daemon.
    void message(const QString &text);

private slots:
    void onTick();
    void onSaveTimeout();

private:
    [[nodiscard]] bool listen();
    [[nodiscard]] std::optional<State> initialState();
    void reportClients();
    void scheduleSave();
    bool save();

    DaemonOptions m_options;
    MCsNamedPipeServer m_server;
    std::unique_ptr<MCsDaemonEngine> m_engine;
    std::unique_ptr<MCsDaemonSessions> m_sessions;
    QTimer m_tickTimer;
    QTimer m_saveTimer;
    qint64 m_lastSaveMs = 0;
    QString m_saveError;                    ///< of the last save, empty when it went well
    std::optional<quint64> m_savedRevision; ///< nothing as long as the state is not in the file
};

} // namespace Scheduler::DevDaemon
