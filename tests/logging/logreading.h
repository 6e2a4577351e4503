#pragma once

#include "logcapture.h"

#include <QFile>

namespace TestSupport {

/// The lines of a log file; none when there is no such file.
inline QStringList fileLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    lines.removeLast(); // what follows the last newline
    return lines;
}

/// The one entry that went to the debug output, as it was sent; empty when there were none or several.
inline QString debugText(const LogCapture &capture)
{
    const QString kind = QStringLiteral("debug: ");
    const QStringList messages = capture.rawMessages();
    return messages.size() == 1 && messages.first().startsWith(kind) ? messages.first().sliced(kind.size()) : QString();
}

} // namespace TestSupport
