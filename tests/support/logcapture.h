#pragma once

#include <QJsonArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace TestSupport {

/// Collects what goes to Qt's message output while it lives: the logger's entries, decoded, and everything else as
/// plain messages. Only one may live at a time.
class LogCapture {
public:
    struct Entry {
        QString level; ///< "DEBUG", "INFO", "WARN" or "ERROR"
        QString source;
        QString message;
    };

    /// Sets the logger's level, too (0 Debug to 3 Error), and back to Info at the end.
    explicit LogCapture(int minLevel = 0);
    ~LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    /// The logger's entries so far, optionally of one source.
    [[nodiscard]] QList<Entry> entries(const QString &source = {}) const;
    /// "LEVEL message" of each entry, optionally of one source: handy for comparisons.
    [[nodiscard]] QStringList lines(const QString &source = {}) const;
    /// The raw texts sent with qDebug and qWarning, in order, each with its kind in front: "debug: ..." or
    /// "warning: ...".
    [[nodiscard]] QStringList rawMessages() const;
    void clear();
};

} // namespace TestSupport
