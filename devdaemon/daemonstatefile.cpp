#include "daemonstatefile.h"

#include "daemonstatejson.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

LoadedState loadStateFile(const QString &path)
{
    QFile file(path);
    // A dangling link counts as a file, too: the state that it pointed to may come back.
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return {};
    if (!file.open(QIODevice::ReadOnly))
        return {std::nullopt, file.errorString()};

    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return {std::nullopt, parseError.errorString()};
    LoadedState loaded;
    loaded.state = stateFromJson(document.object(), &loaded.error);
    return loaded;
}

QString saveStateFile(const QString &path, const State &state)
{
    const QString directory = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(directory))
        return u"cannot make the directory %1"_s.arg(directory);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.write(QJsonDocument(stateToJson(state)).toJson(QJsonDocument::Compact));
    return file.commit() ? QString() : file.errorString();
}

} // namespace Scheduler::DevDaemon
