#include "mcsdevdaemon.h"
#include "mcslogger.h"
#include "mcsterminationwatcher.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace Scheduler::DevDaemon;

void print(std::FILE *stream, const QString &text)
{
    // Who cannot be told cannot be told of that either.
    (void)std::fprintf(stream, "%s\n", qUtf8Printable(text));
    (void)std::fflush(stream);
}

int runDaemon(const DaemonOptions &options)
{
    // The server half logs each response as a warning; without --verbose no level passes.
    MCsLogger::instance().setMinLevel(options.verbose ? 0 : 4);

    const MCsTerminationWatcher watcher;
    MCsDevDaemon daemon(options);
    QObject::connect(&daemon, &MCsDevDaemon::message, &daemon,
                     [](const QString &text) { print(stderr, u"orvel-dev-daemon: "_s + text); });
    QObject::connect(&watcher, &MCsTerminationWatcher::terminationRequested, qApp, &QCoreApplication::quit);
    if (!daemon.start())
        return 1;
    QCoreApplication::exec();
    return daemon.stop() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"orvel-dev-daemon"_s);
    QCoreApplication::setApplicationVersion(QLatin1StringView(ORVEL_VERSION));

    const CommandLine commandLine = parseCommandLine(QCoreApplication::arguments());
    if (commandLine.options)
        return runDaemon(*commandLine.options);
    print(commandLine.exitStatus == 0 ? stdout : stderr, commandLine.text);
    return commandLine.exitStatus;
}
