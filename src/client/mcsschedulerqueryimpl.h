#pragma once

#include <QObject>

/// The client's connection signals under names of their own, for a host that forwards them across its own boundary.
/// The manager listens to Scheduler::MCsSchedulerClient directly and makes no object of this class.
class MCsSchedulerQueryImpl : public QObject {
    Q_OBJECT

signals:
    void sig_connected();
    void sig_disconnected();
    void sig_error(const QString &message);
    void sig_reconnecting(int attempt, int maxAttempts);
    void sig_reconnected();
    void sig_reconnectFailed();
};
