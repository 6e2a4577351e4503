#pragma once

#include "wireprotocol.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <csignal>
#include <functional>

/// Programs that start beside other tests, perhaps under a sanitizer, may take their time.
#define QTRY_VERIFY_PATIENT(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)

namespace TestSupport {

/// What an end may take. It takes a few hundredths of a second, but not on a busy machine.
inline constexpr int endsAtOnceMs = 3000;

/// A program of its own, which listens to the remote control on its standard input, and ends with this object.
class Program {
public:
    explicit Program(const char *program, const QStringList &arguments = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("RemoteControl"));
        environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(TEST_PLUGINS));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        // A suite that was started in the background hands on that it ignores some signals.
        m_process.setChildProcessModifier([] {
            for (const int number : {SIGINT, SIGHUP, SIGTERM})
                std::signal(number, SIG_DFL);
        });
        m_process.start(QString::fromLocal8Bit(program), arguments);
        m_process.waitForStarted();
    }
    ~Program()
    {
        m_process.kill(); // a stopped one, too
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Program)

    QProcess *operator->()
    {
        return &m_process;
    }
    void signal(int number) const
    {
        ::kill(static_cast<pid_t>(m_process.processId()), number);
    }
    /// Milliseconds that the program takes to end after the action; a very long time when it does not.
    int timeToEnd(const std::function<void(Program &)> &action)
    {
        QElapsedTimer clock;
        clock.start();
        action(*this);
        m_process.waitForFinished(10 * endsAtOnceMs);
        return static_cast<int>(clock.elapsed());
    }

private:
    QProcess m_process;
};

inline QStringList managerArguments()
{
    return {QStringLiteral("--task-type"),    QStringLiteral("task_type.test"),
            QStringLiteral("--language"),     QStringLiteral("en"),
            QStringLiteral("--program-name"), QStringLiteral("Foo"),
            QStringLiteral("--program-path"), QStringLiteral("/opt/foo")};
}

inline QString managerLogPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Orvel Task Scheduler/gui_logs.log");
}

inline QString managerLog()
{
    QFile file(managerLogPath());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// How often the manager has connected, by its log.
inline qsizetype timesRegistered()
{
    return managerLog().count(QStringLiteral("Connected and registered as task_type.test"));
}

/// Whether a request of the manager was not answered, by its log.
inline bool hasTimedOut()
{
    return managerLog().contains(QStringLiteral("TIMEOUT: Request timed out"));
}

inline bool daemonAnswers()
{
    QLocalSocket probe;
    probe.connectToServer(Scheduler::defaultPipeName());
    return probe.waitForConnected(100);
}

} // namespace TestSupport
