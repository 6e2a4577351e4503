#include "processbench.h"

#include "benchtable.h"
#include "benchwindow.h"
#include "canneddaemon.h"
#include "handexchange.h"
#include "resources.h"
#include "startup.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QMainWindow>
#include <QProcess>
#include <QTableWidget>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

constexpr int memoryTasks = 10000;
/// The manager waits as long between its first show and its first attempt.
constexpr double connectDelayMs = 100;
constexpr int connectedTasks = 1000;
constexpr int connectedGroups = 50;

/// Ends the process at once, without the cost of taking everything down.
[[noreturn]] void end()
{
    std::fflush(nullptr);
    std::_Exit(0);
}

/// Ends the process when the widget has painted for the first time.
class EndAtFirstPaint : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                this, [] { end(); }, Qt::QueuedConnection); // when all of it is painted
        return QObject::eventFilter(watched, event);
    }
};

std::unique_ptr<QMainWindow> bareWindow(int rows)
{
    auto window = std::make_unique<QMainWindow>();
    auto *table = new QTableWidget(rows, 5, window.get());
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < 5; ++column)
            table->setItem(row, column, new QTableWidgetItem(u"some ready text %1"_s.arg(row)));
    }
    window->setCentralWidget(table);
    window->resize(983, 700);
    return window;
}

std::unique_ptr<Scheduler::MCsMainWindow> managerWindow()
{
    Scheduler::identifyApplication();
    Scheduler::startLogging();
    return std::make_unique<Scheduler::MCsMainWindow>(u"en"_s, benchTaskType, u"Bench"_s, u"/usr/bin/true"_s,
                                                      QString());
}

/// Proportional set size in KB: what the process has for itself, and its share of what it shares.
long memoryKb()
{
    QFile file(u"/proc/self/smaps_rollup"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("Pss:"))
            return line.mid(4).simplified().split(' ').first().toLong();
    }
    return 0;
}

void playFirstPaint(QWidget &window)
{
    auto *filter = new EndAtFirstPaint(&window);
    for (QWidget *view : window.findChildren<QWidget *>("qt_scrollarea_viewport"_L1))
        view->installEventFilter(filter);
    window.show();
    QApplication::exec();
}

/// What the manager asks until its window is filled: it reads everything twice, and the second time there are groups to
/// count.
void askByHand()
{
    HandExchange hand;
    const auto ask = [&hand](const QStringList &commands) {
        for (const QString &cmd : commands)
            (void)hand.ask(cmd);
    };
    ask({u"client.register"_s, u"tasktype.list"_s, u"task.listByType"_s, u"audit.list"_s, u"group.listByTaskType"_s,
         u"audit.list"_s, u"tasktype.list"_s, u"task.listByType"_s});
    ask(QStringList(connectedGroups, u"task.countByGroupAndType"_s));
    ask({u"audit.list"_s, u"group.listByTaskType"_s, u"audit.list"_s});
}

double childSeconds(const QString &role)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(QCoreApplication::applicationFilePath(), {u"--child"_s, role});
    process.waitForFinished(60000);
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

double childMemory(const QString &role)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {u"--child"_s, role});
    process.waitForFinished(60000);
    return process.readAllStandardOutput().trimmed().toDouble() / 1024;
}

Measured start()
{
    const QTemporaryDir nobody;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(nobody.path()));
    return timePairManually([] { return childSeconds(u"bare-paint"_s); },
                            [] { return childSeconds(u"manager-paint"_s); });
}

Measured connected()
{
    const DaemonProcess daemon({.tasks = connectedTasks, .groups = connectedGroups, .auditEntries = 100});
    Measured measured = timePairManually([] { return childSeconds(u"manager-asking"_s); },
                                         [] { return childSeconds(u"manager-connected"_s); });
    measured.ours -= connectDelayMs;
    return measured;
}

Measured memory()
{
    const DaemonProcess daemon({.tasks = memoryTasks});
    return {childMemory(u"bare-memory"_s), childMemory(u"manager-memory"_s), u"MB"_s};
}

} // namespace

int runChild(int argc, char **argv)
{
    const QByteArray role = argc > 2 ? argv[2] : "";
    Scheduler::registerResources();
    QApplication application(argc, argv);
    std::unique_ptr<QMainWindow> window;
    if (role.startsWith("bare"))
        window = bareWindow(role == "bare-memory" ? memoryTasks : 0);
    else
        window = managerWindow();
    if (role.endsWith("-paint")) {
        playFirstPaint(*window);
        return 1;
    }
    window->show();
    QApplication::processEvents();
    if (role == "manager-asking")
        askByHand();
    else if (auto *manager = qobject_cast<Scheduler::MCsMainWindow *>(window.get()); manager != nullptr)
        (void)waitUntilLoaded(*manager);
    if (role.endsWith("-memory"))
        std::printf("%ld\n", memoryKb());
    end();
}

QList<Row> processRows()
{
    return {{u"Process start to first paint, no daemon"_s, u"a program with a bare QMainWindow and QTableWidget"_s, 1.5,
             start},
            {u"Start to connected and read, 1,000 tasks, 50 groups, less 100 ms"_s,
             u"the manager's start above plus its exchanges by hand"_s, 1.4, connected},
            {u"Memory with 10,000 tasks shown"_s, u"the bare program with 10,000 x 5 items"_s, 1.25, memory}};
}

} // namespace Bench
