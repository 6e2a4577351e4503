#include "endpoint.h"

#include <QFileInfo>
#include <QLocalServer>

using namespace Qt::StringLiterals;

namespace Scheduler {

QString lockFileOf(const QString &endpoint)
{
    return endpoint + u".lock"_s;
}

bool removeRemains(const QString &endpoint)
{
    if (const QFileInfo remains(endpoint); remains.isFile() || remains.isDir())
        return false;
    QLocalServer::removeServer(endpoint);
    return true;
}

} // namespace Scheduler
