#pragma once

#include "mcsipcserver.h"

#include <QLockFile>
#include <QString>

#include <memory>

class QLocalServer;

namespace Scheduler {

/// The server end over a QLocalServer, reachable by the own user alone.
class MCsNamedPipeServer : public MCsIPCServer {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsNamedPipeServer)

public:
    explicit MCsNamedPipeServer(QObject *parent = nullptr);
    ~MCsNamedPipeServer() override;

    /// Listens on defaultPipeName(). A socket file that a dead process left behind is taken over, the endpoint of a
    /// living one never. Returns false when listening failed; errorString() then says why.
    [[nodiscard]] bool listen();
    [[nodiscard]] bool listen(const QString &serverName);

    /// Stops listening; established connections go on.
    void close();
    [[nodiscard]] bool isListening() const;
    [[nodiscard]] QString serverName() const;
    [[nodiscard]] QString errorString() const;

private slots:
    void onNewConnection();

private:
    bool claim(const QString &serverName);

    QLocalServer *m_server = nullptr;
    std::unique_ptr<QLockFile> m_lock;
    QString m_errorString;
};

} // namespace Scheduler
