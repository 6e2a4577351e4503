#include "logfile.h"

#include "mcssecurityutils.h"

#include <QBuffer>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace Scheduler {

using namespace Qt::StringLiterals;

namespace {

/// The bytes with the line ends that text files have on this system. A file that is opened as text would write each of
/// these by itself.
QByteArray withLineEnds(const QByteArray &bytes)
{
    QByteArray text;
    QBuffer buffer(&text);
    buffer.open(QIODevice::WriteOnly | QIODevice::Text);
    buffer.write(bytes);
    return text;
}

} // namespace

void LogFile::writeLine(const QString &line) const
{
    // Without a buffer the line is one write: it cannot be torn by a second manager process that logs to the same
    // file, and a full disk shows at once.
    constexpr QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;
    const QByteArray bytes = line.toUtf8().append('\n');
    const QByteArray text = withLineEnds(bytes);
    QFile file(logFilePath);

    // Nearly always the file is there and has room, and then one open tells both.
    bool existed = file.open(mode | QIODevice::ExistingOnly);
    if (!existed || !hasRoom(file.size(), bytes.size())) {
        file.close();
        existed = rotateIfNeeded(bytes.size());
        if (!file.open(mode)) {
            qWarning() << "Failed to open log file:" << logFilePath;
            return;
        }
    }
    if (file.write(text) != text.size()) {
        qWarning() << "Failed to write log file:" << logFilePath;
        return;
    }
    file.close();

    // Under the logger's lock: see the warning at MCsSecurityUtils::setFilePermissions().
    if (!existed && !MCsSecurityUtils::setFilePermissions(logFilePath))
        qWarning() << "Failed to set log file permissions to 0640";
}

bool LogFile::hasRoom(qint64 size, qint64 upcomingBytes) const
{
    return maxFileSize < 1 || size + upcomingBytes <= maxFileSize;
}

bool LogFile::rotateIfNeeded(qint64 upcomingBytes) const
{
    const QFileInfo info(logFilePath);
    if (!info.exists())
        return false;
    if (hasRoom(info.size(), upcomingBytes))
        return true;

    const QString rotatedPath = logFilePath + ".1"_L1;
    if (QFile::exists(rotatedPath) && !QFile::remove(rotatedPath))
        qWarning() << "Failed to remove rotated log file:" << rotatedPath;
    if (QFile::rename(logFilePath, rotatedPath))
        return false;

    qWarning() << "Failed to rotate log file:" << logFilePath << "->" << rotatedPath
               << ", fallback to truncate current log file.";
    QFile file(logFilePath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        qWarning() << "Failed to truncate oversized log file:" << logFilePath;
    return true;
}

} // namespace Scheduler
