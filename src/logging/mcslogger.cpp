#include "mcslogger.h"

#include "redaction.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMutex>
#include <QStandardPaths>

namespace Scheduler {

using namespace Qt::StringLiterals;

namespace {

/// Held for a whole entry, so that lines never interleave and no write meets a rotation. Not recursive: nothing that
/// runs under it may log.
QMutex logMutex;

QString levelWord(int level)
{
    switch (LogLevel(level)) {
    case LogLevel::Debug:
        return u"DEBUG"_s;
    case LogLevel::Info:
        return u"INFO"_s;
    case LogLevel::Warn:
        return u"WARN"_s;
    case LogLevel::Error:
        return u"ERROR"_s;
    }
    return u""_s;
}

/// Local time to the second, without a zone. Worked out once for each second; called with logMutex held.
QString currentTimestamp()
{
    static qint64 second = -1;
    static QString text;
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    if (now != second) {
        text = QDateTime::currentDateTime().toString(Qt::ISODate);
        second = now;
    }
    return text;
}

/// Whether the text stands in JSON as it is, within quotes. Says no to surrogates, too, because a lone one does not,
/// and to the few characters beyond them.
bool isPlainJson(QStringView text)
{
    constexpr char16_t first = u' ';
    constexpr char16_t beyondLast = 0xD800;
    char16_t special = 0; // bits instead of a condition: many characters are looked at together
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        special |= char16_t((char16_t(unit - first) >= beyondLast - first) | (unit == u'"') | (unit == u'\\'));
    }
    return special == 0;
}

/// Appends the text as a JSON string. Most texts are plain, and printing a long one through a document would cost more
/// than writing it to the file.
void appendJsonString(QString &json, const QString &text)
{
    if (isPlainJson(text)) {
        json += u'"';
        json += text;
        json += u'"';
        return;
    }
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    json += QString::fromUtf8(QByteArrayView(array).sliced(1, array.size() - 2));
}

/// The entry as compact JSON: an array of objects with one key each, because an array keeps its order.
QString jsonForm(int level, const QString &timestamp, const QString &source, const QString &message,
                 const QJsonObject &context)
{
    constexpr qsizetype roomForTheRest = 128;
    QString json;
    json.reserve(message.size() + source.size() + roomForTheRest);
    json += uR"([{"level":"%1"},{"timestamp":"%2"},{"source":)"_s.arg(levelWord(level), timestamp);
    appendJsonString(json, source);
    json += uR"(},{"message":)"_s;
    appendJsonString(json, message);
    if (!context.isEmpty()) {
        json += uR"(},{"context":)"_s;
        json += QString::fromUtf8(QJsonDocument(context).toJson(QJsonDocument::Compact));
    }
    json += u"}]"_s;
    return json;
}

} // namespace

MCsLogger &MCsLogger::instance()
{
    static MCsLogger logger;
    return logger;
}

QString MCsLogger::defaultLogFilePath()
{
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    if (!directory.exists())
        directory.mkpath(u"."_s);
    return directory.filePath(u"gui_logs.log"_s);
}

void MCsLogger::setLogFilePath(const QString &path)
{
    m_file.logFilePath = path;
}

void MCsLogger::setMinLevel(int level)
{
    m_minLevel = level;
}

void MCsLogger::debug(const QString &source, const QString &message, const QJsonObject &context)
{
    log(int(LogLevel::Debug), source, message, context);
}

void MCsLogger::info(const QString &source, const QString &message, const QJsonObject &context)
{
    log(int(LogLevel::Info), source, message, context);
}

void MCsLogger::warn(const QString &source, const QString &message, const QJsonObject &context)
{
    log(int(LogLevel::Warn), source, message, context);
}

void MCsLogger::error(const QString &source, const QString &message, const QJsonObject &context)
{
    log(int(LogLevel::Error), source, message, context);
}

void MCsLogger::log(int level, const QString &source, const QString &message, const QJsonObject &context)
{
    if (level < m_minLevel)
        return;
    const QMutexLocker lock(&logMutex);
    const QString redacted = redactText(message);
    const QString timestamp = currentTimestamp();
    const QString json = jsonForm(level, timestamp, source, redacted, redactJson(context));
    if (!m_file.logFilePath.isEmpty())
        m_file.writeLine(u"[%1] : %2"_s.arg(timestamp, redacted));
    qDebug().noquote() << json;
}

} // namespace Scheduler
