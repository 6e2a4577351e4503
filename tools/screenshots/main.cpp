// Paints the main window and the task dialog in one language into PNG files, with the sample data of the stand-in
// daemon, which runs in the same process.
//
//   orvel-screenshots <language shortcut> <directory>
//
// Files are <directory>/main-<shortcut>.png and <directory>/task-dialog-<shortcut>.png. Needs no screen; the scale is
// that of QT_SCALE_FACTOR.

#include "mcsdevdaemon.h"
#include "mcsmainwindow.h"
#include "mcstaskdialog.h"
#include "resources.h"
#include "startup.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>

#include <cstdio>
#include <functional>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace {

constexpr int patienceMs = 10000;
constexpr int settleMs = 300;

/// Settings, log and endpoint of this process alone, so that no user's are read or written.
void isolate(const QTemporaryDir &home)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char *variable : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "HOME"})
        qputenv(variable, QFile::encodeName(home.path()));
}

bool waitFor(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(patienceMs);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    return condition();
}

/// Lets what is still under way come to its end: repaints, and the daemon's calls of the last refresh.
void settle()
{
    const QDeadlineTimer deadline(settleMs);
    (void)waitFor([&deadline] { return deadline.hasExpired(); });
}

bool save(QWidget *window, const QString &directory, const QString &name)
{
    settle();
    const QString path = QDir(directory).filePath(name + ".png"_L1);
    if (window->grab().save(path))
        return true;
    std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    return false;
}

bool takeMainWindow(MCsMainWindow &window, const QString &directory, const QString &language)
{
    const auto *table = window.findChild<QTableWidget *>("taskTable"_L1);
    const auto *log = window.findChild<QTextEdit *>("logView"_L1);
    if (!waitFor([table, log] { return table->rowCount() > 0 && !log->toPlainText().isEmpty(); })) {
        std::fprintf(stderr, "the window did not connect\n");
        return false;
    }
    return save(&window, directory, "main-"_L1 + language);
}

bool takeTaskDialog(MCsMainWindow &window, const QString &directory, const QString &language)
{
    bool saved = false;
    // The button's slot returns when the dialog is closed.
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &window, [&] {
        auto *dialog = qobject_cast<MCsTaskDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        poll.stop();
        dialog->findChild<QLineEdit *>("nameEdit"_L1)->setText(u"Nightly build 🎬"_s);
        saved = save(dialog, directory, "task-dialog-"_L1 + language);
        dialog->reject();
    });
    poll.start(10);
    window.findChild<QPushButton *>("createButton"_L1)->click();
    return saved;
}

int takeAll(const QString &language, const QString &directory, const QString &home)
{
    DevDaemon::DaemonOptions options;
    options.statePath = QDir(home).filePath(u"state.json"_s);
    DevDaemon::MCsDevDaemon daemon(options);
    if (!daemon.start()) {
        std::fprintf(stderr, "the daemon did not start\n");
        return 1;
    }
    MCsMainWindow window(language, u"task_type.screen_record"_s, u"Screen Recorder"_s, u"/usr/bin/recorder"_s, {});
    window.show();
    const bool ok = takeMainWindow(window, directory, language) && takeTaskDialog(window, directory, language);
    window.close();
    return ok ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s <language shortcut> <directory>\n", argv[0]);
        return 2;
    }
    const QTemporaryDir home;
    isolate(home);
    registerResources();
    const QApplication application(argc, argv);
    identifyApplication();
    return takeAll(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]), home.path());
}
