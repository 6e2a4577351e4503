#include "mcsterminationwatcher.h"

namespace Scheduler::DevDaemon {

MCsTerminationWatcher::MCsTerminationWatcher(QObject *parent)
    : QObject(parent)
{
}

MCsTerminationWatcher::~MCsTerminationWatcher() = default;

} // namespace Scheduler::DevDaemon
