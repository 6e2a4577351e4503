#pragma once

#include <QObject>

namespace Scheduler::DevDaemon {

/// Turns the system's request to end the process (SIGINT, SIGTERM) into a signal in the event loop. There can be only
/// one at a time. On Windows it does nothing: the process is then ended from outside, and loses at most the changes
/// of the last moment.
class MCsTerminationWatcher : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsTerminationWatcher)

public:
    explicit MCsTerminationWatcher(QObject *parent = nullptr);
    ~MCsTerminationWatcher() override;

signals:
    void terminationRequested();

private:
    void watch();
};

} // namespace Scheduler::DevDaemon
