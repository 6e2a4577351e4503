#pragma once

#include "records.h"

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QTimer;

namespace Scheduler {

class MCsIPCConnection;

/// The one object through which the rest of the manager speaks to the daemon: it connects and registers, watches the
/// connection, reconnects with growing delays, and offers every command as a typed operation.
///
/// It owns at most one MCsIPCConnection at a time and makes a new one for each attempt. Every operation that asks the
/// daemon waits up to commandTimeout() in a nested event loop: when it returns, other slots may have run, and the
/// connection may have gone or be another one. Failures are values: an operation returns false, 0, an empty string, an
/// empty list or a default record, and lastErrorCode and lastError tell why. A success clears neither.
class MCsSchedulerClient : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsSchedulerClient)

public:
    static constexpr int MaxReconnectAttempts = 8;
    static constexpr int commandTimeoutMs = 2000;
    static constexpr int connectionCheckIntervalMs = 2000;

    explicit MCsSchedulerClient(QObject *parent = nullptr);
    ~MCsSchedulerClient() override;

    /// One attempt without a delay. Returns true when connected and registered, at once if it was so already.
    bool connectToDaemon();
    /// The delay, in milliseconds, doubles from attempt to attempt and blocks the thread.
    bool connectToDaemon(int maxRetries, int retryDelayMs);
    /// Always emits disconnected(); leaves automatic reconnection as it is.
    void disconnectFromDaemon();
    [[nodiscard]] bool isConnected() const;

    /// Watches the connection and reconnects after a loss. Enabling it while disconnected starts nothing.
    void enableAutoReconnect(bool enable);
    /// Stops a running reconnect sequence too.
    void disableAutoReconnect();

    /// The type under which this client registers, and the task type of the operations that take none.
    [[nodiscard]] QString clientType() const;
    void setClientType(const QString &type);
    /// True when the client type is empty or means all types.
    [[nodiscard]] bool isAllTypesClient() const;

    /// How long a command waits for its answer, in milliseconds; commandTimeoutMs unless set. A command that waits
    /// already is not affected.
    [[nodiscard]] int commandTimeout() const;
    void setCommandTimeout(int timeoutMs);

    [[nodiscard]] QString lastError() const;
    [[nodiscard]] QString lastErrorCode() const;

    /// Delay in milliseconds before the attempt that follows the given number of failed ones.
    [[nodiscard]] static int reconnectDelayMs(int failedAttempts);

    // Tasks
    /// The new task's id; empty on failure.
    [[nodiscard]] QString createTask(const QJsonObject &task);
    [[nodiscard]] bool updateTask(const QString &taskId, const QJsonObject &task);
    [[nodiscard]] bool deleteTask(const QString &taskId);
    [[nodiscard]] bool enableTask(const QString &taskId);
    [[nodiscard]] bool disableTask(const QString &taskId);
    [[nodiscard]] bool triggerTask(const QString &taskId);
    [[nodiscard]] bool moveTaskToGroup(const QString &taskId, const QString &groupId);
    [[nodiscard]] bool batchMoveTasksToGroup(const QStringList &taskIds, const QString &groupId);
    [[nodiscard]] TaskInfo getTask(const QString &taskId);
    [[nodiscard]] QList<TaskInfo> listTasks();
    [[nodiscard]] QList<TaskInfo> listTasksByType(const QString &type);
    [[nodiscard]] QList<TaskInfo> listTasksByGroup(const QString &groupId);
    [[nodiscard]] QList<TaskInfo> listTasksByGroupAndType(const QString &groupId, const QString &taskType);
    [[nodiscard]] int getTaskCount();
    [[nodiscard]] int getTaskCountByType(const QString &type);
    [[nodiscard]] int getTaskCountByGroup(const QString &groupId);
    [[nodiscard]] int getTaskCountByGroupAndType(const QString &groupId, const QString &taskType);

    // Groups
    /// The new group's id; empty on failure.
    [[nodiscard]] QString createGroup(const QJsonObject &group);
    [[nodiscard]] bool updateGroup(const QString &groupId, const QJsonObject &group);
    [[nodiscard]] bool deleteGroup(const QString &groupId, bool deleteChildGroups);
    [[nodiscard]] bool enableAllTasksInGroup(const QString &groupId);
    [[nodiscard]] bool disableAllTasksInGroup(const QString &groupId);
    [[nodiscard]] bool triggerAllTasksInGroup(const QString &groupId);
    [[nodiscard]] bool deleteAllTasksInGroup(const QString &groupId);
    [[nodiscard]] GroupInfo getGroup(const QString &groupId);
    [[nodiscard]] QList<GroupInfo> listGroups();
    [[nodiscard]] QList<GroupInfo> listGroupsByTaskType(const QString &taskType);

    // Task types and activity log
    [[nodiscard]] QList<TaskTypeInfo> listTaskTypes();
    /// An invalid date leaves that bound open.
    [[nodiscard]] QList<AuditLogEntry> getAuditLogs(int limit, bool ascending, const QDateTime &from,
                                                    const QDateTime &to);
    [[nodiscard]] QList<AuditLogEntry> getAuditLogs(const QString &taskType, int limit, bool ascending,
                                                    const QDateTime &from, const QDateTime &to);

signals:
    void connected();
    void disconnected();
    /// A socket error on a live connection.
    void error(const QString &message);
    void connectionLost();
    void reconnecting(int attempt, int maxAttempts);
    /// Follows connected() when the reconnection came from a reconnect sequence.
    void reconnected();
    void reconnectFailed();

private slots:
    void onConnectionLost();
    void checkConnection();
    void onReconnectTimerTimeout();

private:
    QJsonObject sendRequest(const QString &cmd, const QJsonObject &payload, int timeoutMs);
    bool succeeds(const QString &cmd, const QJsonObject &payload);
    QJsonObject requestData(const QString &cmd, const QJsonObject &payload);

    bool registerClient();
    void watchConnection();
    void setLastError(const QString &code, const QString &message);
    void scheduleReconnect();
    void startConnectionCheck();
    void stopTimers();
    void releaseConnection();

    MCsIPCConnection *m_connection = nullptr;
    QString m_lastErrorCode;
    QString m_lastError;
    QString m_pipeName;
    QString m_clientType;
    int m_commandTimeout = commandTimeoutMs;
    bool m_autoReconnect = false;
    bool m_reconnecting = false;
    QTimer *m_checkTimer = nullptr;
    QTimer *m_reconnectTimer = nullptr;
    int m_reconnectAttempts = 0;
};

} // namespace Scheduler
