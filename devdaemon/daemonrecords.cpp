#include "daemonrecords.h"

#include <QUuid>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

QString startMode(const QJsonObject &paramsJson)
{
    return paramsJson.value("startRecordingOn"_L1).toObject().value("mode"_L1).toString();
}

QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

bool typeCovers(const QString &askedType, const QString &type)
{
    return askedType.isEmpty() || askedType == allTypesId || askedType == type;
}

} // namespace Scheduler::DevDaemon
