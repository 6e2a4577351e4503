#include "servicecontrol.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Scheduler::ServiceControl {

namespace {

constexpr int queryTimeoutMs = 3000;
constexpr int startTimeoutMs = 5000;

#ifdef Q_OS_WIN
const QString queryTool = u"sc"_s;
const QStringList queryArguments{u"query"_s, u"SchedulerService"_s};
const QByteArray runningMark = "RUNNING";
const QByteArray installedMark = "SchedulerService";
const QString startTool = u"net"_s;
const QStringList startArguments{u"start"_s, u"SchedulerService"_s};
#else
const QString queryTool = u"systemctl"_s;
const QStringList queryArguments{u"--user"_s, u"show"_s, u"SchedulerService.service"_s,
                                 u"--property=LoadState,ActiveState"_s};
const QByteArray runningMark = "ActiveState=active";
const QByteArray installedMark = "LoadState=loaded";
const QString startTool = u"systemctl"_s;
const QStringList startArguments{u"--user"_s, u"start"_s, u"SchedulerService.service"_s};
#endif

/// Ends a tool that is still running; destroying its QProcess would do the same with a warning.
void end(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.kill();
    process.waitForFinished();
}

bool queryShows(const QByteArray &mark)
{
    QProcess process;
    process.start(queryTool, queryArguments);
    process.waitForFinished(queryTimeoutMs);
    const bool shown = process.readAllStandardOutput().contains(mark);
    end(process);
    return shown;
}

} // namespace

bool isServiceRunning()
{
    return queryShows(runningMark);
}

bool isServiceInstalled()
{
    return queryShows(installedMark);
}

bool startService()
{
    QProcess process;
    process.start(startTool, startArguments);
    const bool finished = process.waitForFinished(startTimeoutMs);
    // Platforms differ in the exit code of a program that could not be started.
    const bool succeeded = !finished || process.exitCode() == 0;
    end(process);
    return succeeded;
}

} // namespace Scheduler::ServiceControl
