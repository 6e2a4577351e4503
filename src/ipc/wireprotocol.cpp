#include "wireprotocol.h"

#include <QJsonDocument>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Scheduler {

QString defaultPipeName()
{
#ifdef Q_OS_WIN
    return u"\\\\.\\pipe\\SchedulerDaemonPipe"_s;
#else
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return directory.isEmpty() ? QString() : directory + u"/SchedulerDaemonPipe"_s;
#endif
}

QByteArray encodeFrame(const QJsonObject &message)
{
    QByteArray frame = QJsonDocument(message).toJson(QJsonDocument::Compact);
    frame.append('\n');
    return frame;
}

QJsonObject errorResponse(const QString &code, const QString &message)
{
    return {{u"ok"_s, false}, {u"error"_s, QJsonObject{{u"code"_s, code}, {u"message"_s, message}}}};
}

} // namespace Scheduler
