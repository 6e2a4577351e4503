#include "endpoint.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace Scheduler {

// Pipes are no files, and several processes may serve one name. So the lock is elsewhere.
QString lockFileOf(const QString &endpoint)
{
    return QDir::temp().filePath(endpoint.sliced(endpoint.lastIndexOf(u'\\') + 1) + u".lock"_s);
}

// A pipe ends with its process.
bool removeRemains(const QString & /*endpoint*/)
{
    return true;
}

} // namespace Scheduler
