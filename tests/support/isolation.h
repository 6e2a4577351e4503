#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace TestSupport {

/// Gives the process home, runtime, data and config directories of its own, and no display.
inline void isolateProcess(const QTemporaryDir &home)
{
    const auto directory = [&home](const char *variable, const QString &name) {
        QDir(home.path()).mkpath(name);
        const QString path = home.filePath(name);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(variable, QFile::encodeName(path));
    };
    directory("HOME", QStringLiteral("home"));
    directory("XDG_RUNTIME_DIR", QStringLiteral("run"));
    directory("XDG_DATA_HOME", QStringLiteral("data"));
    directory("XDG_CONFIG_HOME", QStringLiteral("config"));
    directory("XDG_CACHE_HOME", QStringLiteral("cache"));
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace TestSupport
