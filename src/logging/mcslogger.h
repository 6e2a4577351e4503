#pragma once

#include "logfile.h"

#include <QJsonObject>
#include <QString>
#include <QtGlobal>

namespace Scheduler {

/// Severity of a log entry; the values are ordered.
enum class LogLevel : int { Debug = 0, Info = 1, Warn = 2, Error = 3 };

/// The process-wide logger.
///
/// Each entry goes to the log file as one short line of text, and to Qt's debug output as compact JSON. Secrets are
/// removed from message and context before either is made. The file is limited in size, with one rotated generation.
/// Entries may come from any thread; set path and level before a second thread exists. The logger never fails towards
/// its caller: its own troubles go to Qt's warning output.
class MCsLogger {
public:
    static MCsLogger &instance();

    /// Path of "gui_logs.log" in the application data location; makes the directory when it is missing.
    [[nodiscard]] static QString defaultLogFilePath();

    /// While the path is empty, entries reach only the debug output.
    void setLogFilePath(const QString &path);

    /// Entries below this level are dropped.
    void setMinLevel(int level);

    void debug(const QString &source, const QString &message, const QJsonObject &context = {});
    void info(const QString &source, const QString &message, const QJsonObject &context = {});
    void warn(const QString &source, const QString &message, const QJsonObject &context = {});
    void error(const QString &source, const QString &message, const QJsonObject &context = {});

    /// The general form; a level outside 0 to 3 is written with an empty level word.
    void log(int level, const QString &source, const QString &message, const QJsonObject &context = {});

private:
    MCsLogger() = default;

    qint32 m_minLevel = int(LogLevel::Info);
    LogFile m_file;
};

} // namespace Scheduler
