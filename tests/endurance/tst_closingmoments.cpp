#include "closingmoments.h"
#include "endurance.h"
#include "mcsschedulerclient.h"
#include "testmain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QTimer>
#include <QWindow>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// A closing that takes longer has waited for something.
constexpr int atOnceMs = 3000;

/// Titles of the dialogs that are shown, also of those that are gone again at once.
class ShownDialogs : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (const auto *dialog = qobject_cast<QDialog *>(watched); dialog != nullptr && event->type() == QEvent::Show)
            titles.append(dialog->windowTitle());
        return false;
    }

    QStringList titles;
};

void closeByProgram(WindowFixture &fixture)
{
    fixture.window->close();
}

/// As the window system does it. QWindow::close() would not be the user's doing but the program's own.
void askToClose(const QWidget *widget)
{
    QCloseEvent event;
    QCoreApplication::sendEvent(widget->windowHandle(), &event);
}

/// As a user who wants to be rid of the program: whatever is in front is closed by its title bar, or, where it is a
/// menu, by the Escape key, until the window itself can be closed.
void closeByTitleBar(WindowFixture &fixture)
{
    if (fixture.window == nullptr || !fixture.window->isVisible())
        return;
    if (QWidget *popup = QApplication::activePopupWidget()) {
        QTest::keyClick(popup, Qt::Key_Escape);
    } else if (const QWidget *modal = QApplication::activeModalWidget()) {
        askToClose(modal);
    } else {
        askToClose(fixture.window.get());
    }
    // Not as a posted event: those that post the next one keep timers and sockets from their turn.
    QTimer::singleShot(1, fixture.window.get(), [&fixture] { closeByTitleBar(fixture); });
}

void quit(WindowFixture & /*fixture*/)
{
    QCoreApplication::quit();
}

struct Way {
    const char *name;
    void (*end)(WindowFixture &fixture);
};

QList<Way> ways()
{
    return {{"closed by the program", closeByProgram}, {"closed by its title bar", closeByTitleBar}, {"quit", quit}};
}

QList<ClosingMoment> allMoments()
{
    return momentsOfConnecting() + momentsOfWaiting() + momentsOfDialogs();
}

/// The timers that would make a closed window do something.
QStringList runningTimers(const WindowFixture &fixture)
{
    QStringList names;
    for (const char *name : {"autoConnectTimer", "auditRefreshTimer", "reconnectTimer", "checkTimer"}) {
        if (const QTimer *timer = fixture.timer(name); timer != nullptr && timer->isActive())
            names.append(QString::fromLatin1(name));
    }
    return names;
}

} // namespace

/// The end of the program in every moment of its life, in every way.
class TestClosingMoments : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void theProgramEndsAtOnceAndSilently_data();
    void theProgramEndsAtOnceAndSilently();

private:
    static void endIn(const ClosingMoment &moment, void (*end)(WindowFixture &fixture));
};

// A program that has ended has no use for the end that it had arranged; the next one here would end at once.
void TestClosingMoments::cleanup()
{
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCOMPARE(QApplication::exec(), 0);
}

void TestClosingMoments::theProgramEndsAtOnceAndSilently_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<int>("way");
    const QList<ClosingMoment> moments = allMoments();
    for (int moment = 0; moment < moments.size(); ++moment) {
        for (int way = 0; way < ways().size(); ++way)
            QTest::addRow("%s, %s", moments.at(moment).name, ways().at(way).name) << moment << way;
    }
}

void TestClosingMoments::theProgramEndsAtOnceAndSilently()
{
    QFETCH(int, moment);
    QFETCH(int, way);
    endIn(allMoments().at(moment), ways().at(way).end);
}

void TestClosingMoments::endIn(const ClosingMoment &moment, void (*end)(WindowFixture &fixture))
{
    const QuietLog quiet;
    ClosingScene scene;
    if (moment.connected)
        scene.connect();
    QVERIFY(!QTest::currentTestFailed());
    ShownDialogs shown;
    QElapsedTimer clock;
    bool reached = false;
    moment.bringAbout(scene, [&] {
        reached = true;
        qApp->installEventFilter(&shown);
        scene.fixture.daemon.clearRequests();
        clock.start();
        end(scene.fixture);
    });
    QCOMPARE(runUntilQuit(10000), 0);
    QVERIFY(reached);
    QVERIFY2(clock.elapsed() < atOnceMs, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(shown.titles, QStringList());
    QCOMPARE(openWindows(), QStringList());
    QCOMPARE(scene.fixture.window->connectionState(), ConnectionState::Closing);
    QCOMPARE(runningTimers(scene.fixture), QStringList());
    QStringList commands = scene.fixture.daemon.commands();
    commands.removeAll(u"task.countByType"_s); // asked for once, a moment after a connection, whatever happens
    if (end != closeByTitleBar)                // where whatever is in front ends first, and may lead to a refresh
        QCOMPARE(commands, QStringList());
    scene.fixture.close();
    QVERIFY2(clock.elapsed() < atOnceMs, qPrintable(QString::number(clock.elapsed())));
    QTRY_COMPARE(scene.fixture.daemon.connectionCount(), 0);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

ORVEL_TEST_MAIN(QApplication, TestClosingMoments)
#include "tst_closingmoments.moc"
