#include "managercommand.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString managerPath()
{
    const QString named = qEnvironmentVariable("ORVEL_MANAGER");
    if (!named.isEmpty())
        return named;
    const QString name = u"orvel-scheduler-manager"_s;
    const QString beside = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

QString managerLanguage(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::Arabic:
        return u"ar"_s;
    case QLocale::Chinese: // "zh" is the traditional one
        return locale.script() == QLocale::SimplifiedHanScript ? u"cn"_s : u"zh"_s;
    case QLocale::French:
        return u"fr"_s;
    case QLocale::German:
        return u"de"_s;
    case QLocale::Italian:
        return u"it"_s;
    case QLocale::Japanese:
        return u"ja"_s;
    case QLocale::Portuguese:
        return u"pt"_s;
    case QLocale::Spanish:
        return u"es"_s;
    default:
        return u"en"_s;
    }
}

QString writeParameterFile()
{
    // A key that stands here starts each new task with this value. What is left out starts with the user's last one.
    const QJsonObject parameters{
        {u"frameRate"_s, 25},
        {u"watermark"_s, u"Recorded by Example Recorder"_s},
        {u"outputFormat"_s,
         QJsonObject{{u"defaultValue"_s, u"MKV"_s}, {u"options"_s, QJsonArray{u"MP4"_s, u"MKV"_s, u"GIF"_s}}}},
    };
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    QSaveFile file(directory.filePath(u"scheduler-parameters.json"_s));
    const bool written = directory.mkpath(u"."_s) && file.open(QIODevice::WriteOnly) &&
                         file.write(QJsonDocument(parameters).toJson()) > 0 && file.commit();
    return written ? file.fileName() : QString();
}

QStringList managerArguments(const QString &language, const QString &parameterFile)
{
    return {
        u"--task-type"_s,
        u"task_type.screen_record"_s,
        u"--language"_s,
        language,
        u"--program-name"_s,
        u"Example Recorder"_s, // as the user knows it
        u"--program-path"_s,
        QCoreApplication::applicationFilePath(),
        u"--program-parameters-file"_s,
        parameterFile, // an empty one is the same as none
    };
}
