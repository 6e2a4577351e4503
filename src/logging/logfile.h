#pragma once

#include <QString>
#include <QtGlobal>

namespace Scheduler {

/// A text file that grows by whole lines and is limited in size, with one rotated generation beside it (".1").
///
/// It is opened and closed for every line, so nothing is held between two. It does not lock; the logger does. Failures
/// go to Qt's warning output and nowhere else.
struct LogFile {
    QString logFilePath;
    /// In bytes; a file may come to exactly this size. Values below 1 turn rotation off.
    qint64 maxFileSize = qint64{5} * 1024 * 1024;

    /// Appends the line and a newline, in UTF-8, and rotates first if the file would outgrow its limit. A line that is
    /// longer than the limit is written whole all the same. The path must not be empty.
    void writeLine(const QString &line) const;

private:
    [[nodiscard]] bool hasRoom(qint64 size, qint64 upcomingBytes) const;
    /// Makes room for so many bytes more; returns whether the file exists then. Where the old file can not be moved
    /// away, its entries are lost.
    [[nodiscard]] bool rotateIfNeeded(qint64 upcomingBytes) const;
};

} // namespace Scheduler
