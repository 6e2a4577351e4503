#include "logcapture.h"

#include "mcslogger.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>

namespace TestSupport {

namespace {

struct RawMessage {
    QtMsgType type;
    QString text;
};

QMutex mutex;
QList<RawMessage> messages;
QtMessageHandler previousHandler = nullptr;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    {
        const QMutexLocker lock(&mutex);
        messages.append({type, text});
    }
    if (type != QtDebugMsg && previousHandler != nullptr)
        previousHandler(type, context, text);
}

QString member(const QJsonArray &array, int index, const QString &key)
{
    return array.at(index).toObject().value(key).toString();
}

} // namespace

LogCapture::LogCapture(int minLevel)
{
    clear();
    Scheduler::MCsLogger::instance().setMinLevel(minLevel);
    previousHandler = qInstallMessageHandler(collect);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previousHandler);
    Scheduler::MCsLogger::instance().setMinLevel(1);
}

QList<LogCapture::Entry> LogCapture::entries(const QString &source) const
{
    const QMutexLocker lock(&mutex);
    QList<Entry> result;
    for (const RawMessage &message : std::as_const(messages)) {
        const QJsonDocument document = QJsonDocument::fromJson(message.text.toUtf8());
        if (message.type != QtDebugMsg || !document.isArray())
            continue;
        const QJsonArray array = document.array();
        const Entry entry{member(array, 0, QStringLiteral("level")), member(array, 2, QStringLiteral("source")),
                          member(array, 3, QStringLiteral("message"))};
        if (source.isEmpty() || entry.source == source)
            result.append(entry);
    }
    return result;
}

QStringList LogCapture::lines(const QString &source) const
{
    QStringList result;
    const QList<Entry> all = entries(source);
    for (const Entry &entry : all)
        result.append(entry.level + u' ' + entry.message);
    return result;
}

QStringList LogCapture::rawMessages() const
{
    const QMutexLocker lock(&mutex);
    QStringList result;
    for (const RawMessage &message : std::as_const(messages))
        result.append((message.type == QtDebugMsg ? QStringLiteral("debug: ") : QStringLiteral("warning: ")) +
                      message.text);
    return result;
}

void LogCapture::clear()
{
    const QMutexLocker lock(&mutex);
    messages.clear();
}

} // namespace TestSupport
