#include "resources.h"

#include <QDir>

// Outside of any namespace, since the macro declares functions of the global one.
static void registerBundles()
{
    Q_INIT_RESOURCE(images);
    Q_INIT_RESOURCE(translations);
}

namespace Scheduler {

void registerResources()
{
    registerBundles();
}

} // namespace Scheduler
