#include "startup.h"

#include "mcslogger.h"
#include "mcsmainwindow.h"
#include "messagebox.h"
#include "resources.h"
#include "tasktypes.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

struct Arguments {
    QString taskType;
    QString language;
    QString programName;
    QString programPath;
    QString parametersFile;
};

// No translator is installed before the window stands, so these boxes are English whatever the language.
void showStartError(const QString &text)
{
    showMessage(nullptr, QMessageBox::Warning, QObject::tr("Error"), text);
}

Arguments parse(const QStringList &commandLine)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Tevari Scheduler Manager"_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({u"task-type"_s, u"task type"_s, u"type"_s});
    parser.addOption({u"language"_s, u"language"_s, u"language"_s});
    parser.addOption({u"program-name"_s, u"Program display name"_s, u"name"_s});
    parser.addOption({u"program-path"_s, u"Program executable path"_s, u"path"_s});
    parser.addOption({u"program-parameters-file"_s, u"Program parameter json path"_s, u"ppath"_s});
    parser.process(commandLine);
    const auto value = [&parser](const QString &option) { return parser.value(option).trimmed(); };
    return {value(u"task-type"_s), value(u"language"_s), value(u"program-name"_s), value(u"program-path"_s),
            value(u"program-parameters-file"_s)};
}

QStringList missingValues(const Arguments &arguments)
{
    QStringList missing;
    if (arguments.taskType.isEmpty())
        missing.append(QObject::tr("task type"));
    if (arguments.language.isEmpty())
        missing.append(QObject::tr("language"));
    if (arguments.programName.isEmpty())
        missing.append(QObject::tr("program name"));
    if (arguments.programPath.isEmpty())
        missing.append(QObject::tr("program path"));
    return missing;
}

void logArguments(const Arguments &arguments)
{
    MCsLogger &logger = MCsLogger::instance();
    const QString source = u"Main"_s;
    logger.info(source, u"Starting SchedulerManager..."_s);
    logger.info(source, u"Task Type: %1"_s.arg(arguments.taskType));
    logger.info(source, u"Program Name: %1"_s.arg(arguments.programName));
    logger.info(source, u"Program Path: %1"_s.arg(arguments.programPath));
    logger.info(source, u"Program Parameter JSON Path: %1"_s.arg(arguments.parametersFile));
}

/// The text of the parameter file, not parsed here; nothing after a box.
std::optional<QString> readParameters(const QString &path)
{
    if (path.isEmpty())
        return QString();
    QFile file(path);
    if (!file.exists()) {
        showStartError(QObject::tr("Program parameter JSON file not found!"));
        return std::nullopt;
    }
    // A pipe that nobody writes to would keep the start waiting without a word, and a device may never end.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        showStartError(QObject::tr("Failed to open program parameter JSON file!"));
        return std::nullopt;
    }
    const QString text = QString::fromUtf8(file.readAll());
    if (text.trimmed().isEmpty()) {
        showStartError(QObject::tr("Program parameter JSON file is empty!"));
        return std::nullopt;
    }
    return text;
}

} // namespace

void identifyApplication()
{
    QCoreApplication::setApplicationName(u"Orvel Task Scheduler"_s);
    QCoreApplication::setApplicationVersion(u"1.0.1"_s);
    // Desktops find the entry and the icon of the program's windows by this name.
    QGuiApplication::setDesktopFileName(u"com.tamrix.OrvelSchedulerManager"_s);
    QGuiApplication::setWindowIcon(QIcon(u":/images/Orvel_scheduler_logo.png"_s));
}

void startLogging()
{
    MCsLogger &logger = MCsLogger::instance();
    logger.setLogFilePath(MCsLogger::defaultLogFilePath());
    const bool debug = QFile::exists(QCoreApplication::applicationDirPath() + u"/debug.txt"_s);
    logger.setMinLevel(static_cast<int>(debug ? LogLevel::Debug : LogLevel::Info));
}

std::optional<StartValues> readCommandLine(const QStringList &commandLine)
{
    const Arguments arguments = parse(commandLine);
    if (const QStringList missing = missingValues(arguments); !missing.isEmpty()) {
        showStartError(QObject::tr("Missing required arguments: %1").arg(missing.join(u", "_s)));
        return std::nullopt;
    }
    logArguments(arguments);
    if (!allowedTaskTypes().contains(arguments.taskType)) {
        showStartError(QObject::tr("task type error!"));
        return std::nullopt;
    }
    const std::optional<QString> parameters = readParameters(arguments.parametersFile);
    if (!parameters)
        return std::nullopt;
    return StartValues{arguments.taskType, arguments.language, arguments.programName, arguments.programPath,
                       *parameters};
}

// Qt's own rule posts an event, which an event loop that starts before its delivery takes away; each wait for an answer
// of the daemon is one. Without its window the program would then go on, and keep its task type taken. A call is kept.
void quitWithLastWindow()
{
    QObject::connect(qApp, &QGuiApplication::lastWindowClosed, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

int runManager(int argc, char **argv)
{
    registerResources();
    const QApplication application(argc, argv);
    identifyApplication();
    quitWithLastWindow();
    startLogging();
    const std::optional<StartValues> values = readCommandLine(QCoreApplication::arguments());
    if (!values)
        return 1;
    MCsMainWindow window(values->language, values->taskType, values->programName, values->programPath,
                         values->programParametersJson);
    window.show();
    return QApplication::exec();
}

} // namespace Scheduler
