#include "mcsmainwindow.h"

#include "mcslogger.h"

#include <QApplication>
#include <QHash>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

void logInfo(const QString &message)
{
    MCsLogger::instance().info(mainWindowLogSource, message);
}

void applyLayoutDirection(const QString &code)
{
    const bool rightToLeft = code.startsWith("ar"_L1);
    QGuiApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    logInfo(rightToLeft ? u"LayoutDirection set to RightToLeft"_s : u"LayoutDirection set to LeftToRight"_s);
}

} // namespace

QString MCsMainWindow::mapLanguageShortcut(const QString &shortcut)
{
    // "zh" is traditional Chinese; hosts ask for the simplified script with "cn".
    static const QHash<QString, QString> codes{
        {u"en"_s, u"en"_s},    {u"ja"_s, u"ja"_s},       {u"ko"_s, u"ko"_s},    {u"de"_s, u"de"_s},
        {u"fr"_s, u"fr"_s},    {u"es"_s, u"es"_s},       {u"it"_s, u"it"_s},    {u"nl"_s, u"nl"_s},
        {u"ru"_s, u"ru"_s},    {u"pl"_s, u"pl"_s},       {u"ar"_s, u"ar"_s},    {u"cn"_s, u"zh_CN"_s},
        {u"zh"_s, u"zh_TW"_s}, {u"zh_TW"_s, u"zh_TW"_s}, {u"pt"_s, u"pt_BR"_s},
    };
    return codes.value(shortcut, u"en"_s);
}

void MCsMainWindow::applyLanguage(const QString &shortcut)
{
    static QTranslator translator;
    logInfo(u"Language shortcut: %1"_s.arg(shortcut));
    const QString code = mapLanguageShortcut(shortcut);
    logInfo(u"Mapped Qt language: %1"_s.arg(code));
    const QString path = u":/i18n/Brelvix_%1.qm"_s.arg(code);
    QCoreApplication::removeTranslator(&translator);
    if (translator.load(path, QString(), QString(), QString())) {
        // Installing an empty catalogue reports false, and is none the worse for it.
        QCoreApplication::installTranslator(&translator);
        logInfo(u"Loaded translation: %1"_s.arg(path));
    } else {
        MCsLogger::instance().warn(mainWindowLogSource, u"Failed to load translation: %1"_s.arg(path));
    }
    applyLayoutDirection(code);
}

} // namespace Scheduler
