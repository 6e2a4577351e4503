#include "commandfixture.h"
#include "mcsschedulerclient.h"
#include "testmain.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QTextEdit>

#include <algorithm>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

const QString taskList = u"task.listByType"_s;
const QString taskCount = u"task.countByGroupAndType"_s;
const QString auditList = u"audit.list"_s;

QString statusOfFirstTask(const CommandFixture &fixture)
{
    return fixture.table()->item(0, 2)->text();
}

void disableFirstTask(CommandFixture &fixture)
{
    fixture.setTasks({taskJson(u"t1"_s, u"One"_s, {{u"enabled"_s, false}}), taskJson(u"t2"_s, u"Two"_s),
                      taskJson(u"t3"_s, u"Three"_s)});
}

/// From now on the daemon tells of so many tasks, in each group too, and of the last one's creation.
void tell(CommandFixture &fixture, int tasks)
{
    QList<QJsonObject> listed;
    for (int i = 1; i <= tasks; ++i)
        listed.append(taskJson(QString::number(i), u"Task"_s));
    fixture.setTasks(listed);
    fixture.daemon.answer(taskCount, {{u"count"_s, tasks}});
    const QJsonObject entry{{u"action"_s, u"task.created"_s},
                            {u"entityName"_s, QString::number(tasks)},
                            {u"createdAt"_s, u"2026-11-13T10:00:05Z"_s}};
    fixture.daemon.answer(auditList, {{u"logs"_s, QJsonArray{entry}}});
}

/// Rows, label, groups and log as the window shows them.
QStringList shown(const CommandFixture &fixture)
{
    QStringList result{QString::number(fixture.table()->rowCount()), fixture.widget<QLabel>("taskCountLabel")->text()};
    for (int i = 0; i < fixture.tree()->topLevelItemCount(); ++i)
        result.append(fixture.tree()->topLevelItem(i)->text(0));
    return result << fixture.widget<QTextEdit>("logView")->toPlainText();
}

QStringList shownOf(int tasks)
{
    const QString count = QString::number(tasks);
    return {count, u"Tasks: "_s + count, u"Work (%1)"_s.arg(count), u"Ungrouped (%1)"_s.arg(count),
            u"2026-11-13 10:00:05 Task '%1' created"_s.arg(count)};
}

} // namespace

/// What runs while a refresh waits for the daemon: other refreshes, ticks, commands and dialogs.
class TestOverlappingRefreshes : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theStatusesGoOnUnderADialogThatWasOpenedUnderATick_data();
    void theStatusesGoOnUnderADialogThatWasOpenedUnderATick();
    void aSilentDaemonHasNoTwoStatusRequestsWaiting_data();
    void aSilentDaemonHasNoTwoStatusRequestsWaiting();
    void aTicksOlderAnswerOverwritesNoNewerStatus_data();
    void aTicksOlderAnswerOverwritesNoNewerStatus();
    void theNewerOfTwoOverlappingCountsStays_data();
    void theNewerOfTwoOverlappingCountsStays();
    void aDialogOpenedUnderARefreshLeavesTheViewsInOrder_data();
    void aDialogOpenedUnderARefreshLeavesTheViewsInOrder();

private:
    std::unique_ptr<CommandFixture> m_fixture;
};

void TestOverlappingRefreshes::init()
{
    m_fixture = std::make_unique<CommandFixture>();
    QVERIFY(m_fixture->connectQuietly());
}

void TestOverlappingRefreshes::cleanup()
{
    m_fixture.reset();
    QCOMPARE(openWindows(), QStringList());
}

void TestOverlappingRefreshes::theStatusesGoOnUnderADialogThatWasOpenedUnderATick_data()
{
    QTest::addColumn<QString>("control");
    QTest::newRow("Create Task") << u"createButton"_s;
    QTest::newRow("Confirm Delete") << u"deleteButton"_s;
}

void TestOverlappingRefreshes::theStatusesGoOnUnderADialogThatWasOpenedUnderATick()
{
    QFETCH(QString, control);
    m_fixture->selectTask(0);
    ModalDriver driver;
    driver.expectDialog<QDialog>(QString::fromLatin1(QTest::currentDataTag()), [this](QDialog *dialog) {
        m_fixture->daemon.release(taskList);
        disableFirstTask(*m_fixture);
        QTRY_COMPARE_WITH_TIMEOUT(statusOfFirstTask(*m_fixture), u"Disabled"_s, 15000);
        dialog->reject();
    });
    m_fixture->daemon.whileWaiting(taskList, [&] { m_fixture->run(control); });
    m_fixture->timer("statusUpdateTimer")->start();
    m_fixture->window->onUpdateTaskStatus(); // returns when the dialog is closed
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(statusOfFirstTask(*m_fixture), u"Disabled"_s); // its own answer has been out of date for long
}

void TestOverlappingRefreshes::aSilentDaemonHasNoTwoStatusRequestsWaiting_data()
{
    QTest::addColumn<bool>("dialog");
    QTest::newRow("under the window") << false;
    QTest::newRow("under a dialog that was opened under a tick") << true;
}

void TestOverlappingRefreshes::aSilentDaemonHasNoTwoStatusRequestsWaiting()
{
    QFETCH(bool, dialog);
    ModalDriver driver;
    const auto sent = [this] { return m_fixture->daemon.requests(taskList).size(); };
    // More when the end of a wait is noticed late.
    const auto threeAreSent = [&] { QTRY_VERIFY_WITH_TIMEOUT(sent() >= 3, 20000); };
    // Well inside the time that a request waits, so that a slow machine makes no difference.
    constexpr int surelyWaitingMs = MCsSchedulerClient::commandTimeoutMs * 3 / 4;
    QList<QDeadlineTimer> waits;
    qsizetype mostWaiting = 0;
    QTimer often;
    m_fixture->daemon.ignore(taskList);
    m_fixture->daemon.onRequest(taskList, [&](const QJsonObject &) {
        waits.append(QDeadlineTimer(surelyWaitingMs));
        mostWaiting = qMax<qsizetype>(mostWaiting, std::count_if(waits.cbegin(), waits.cend(),
                                                                 [](const auto &wait) { return !wait.hasExpired(); }));
        if (mostWaiting > 1)
            often.stop(); // enough is known, and the stack is not without end
        if (dialog && sent() == 1)
            QTimer::singleShot(0, m_fixture->window.get(), &MCsMainWindow::onCreateTask);
    });
    QTimer *ticks = m_fixture->timer("statusUpdateTimer");
    ticks->start();
    connect(&often, &QTimer::timeout, ticks, [ticks] { WindowFixture::fire(ticks); });
    if (dialog)
        driver.expectDialog<QDialog>(u"Create Task"_s, [&](QDialog *opened) {
            threeAreSent();
            often.stop();
            ticks->stop();
            opened->reject();
        });
    often.start(20);
    threeAreSent();
    often.stop();
    ticks->stop();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(mostWaiting, 1);
}

void TestOverlappingRefreshes::aTicksOlderAnswerOverwritesNoNewerStatus_data()
{
    QTest::addColumn<QString>("control");
    QTest::newRow("a refresh") << u"refreshButton"_s;
    QTest::newRow("a command with its refreshes") << u"onToggleTaskEnabled"_s;
}

void TestOverlappingRefreshes::aTicksOlderAnswerOverwritesNoNewerStatus()
{
    QFETCH(QString, control);
    m_fixture->selectTask(0);
    QString newer;
    m_fixture->daemon.whileWaiting(taskList, [&] {
        disableFirstTask(*m_fixture); // the tick's answer is made already
        m_fixture->run(control);
        newer = statusOfFirstTask(*m_fixture);
        QCOMPARE(m_fixture->daemon.heldCount(), 1);
    });
    m_fixture->window->onUpdateTaskStatus();
    QCOMPARE(newer, u"Disabled"_s);
    QCOMPARE(m_fixture->daemon.heldCount(), 0);
    QCOMPARE(statusOfFirstTask(*m_fixture), u"Disabled"_s);
    m_fixture->window->onUpdateTaskStatus(); // the next tick is none the worse
    QCOMPARE(m_fixture->daemon.requests(taskList).size(), 3);
}

void TestOverlappingRefreshes::theNewerOfTwoOverlappingCountsStays_data()
{
    QTest::addColumn<bool>("newestFirst");
    QTest::newRow("answered in their order") << false;
    QTest::newRow("answered the other way round") << true;
}

void TestOverlappingRefreshes::theNewerOfTwoOverlappingCountsStays()
{
    QFETCH(bool, newestFirst);
    ScriptedDaemon &daemon = m_fixture->daemon;
    int count = 5;
    daemon.respondWith(taskCount, [&count](const QJsonObject &) {
        return QJsonObject{{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"count"_s, count}}}};
    });
    qsizetype waitingAtOnce = 0;
    daemon.hold(taskCount);
    daemon.onRequest(taskCount, [&](const QJsonObject &) {
        if (daemon.requests(taskCount).size() == 1) {
            QTimer::singleShot(0, m_fixture->window.get(), &MCsMainWindow::onRefreshTaskList);
            return;
        }
        count = 6;
        QTimer::singleShot(0, &daemon, [&] {
            if (waitingAtOnce > 0)
                return;
            waitingAtOnce = daemon.heldCount();
            if (newestFirst)
                daemon.releaseNewest();
            daemon.release(taskCount);
        });
    });
    m_fixture->window->onRefreshTaskList();
    QCOMPARE(waitingAtOnce, 2);
    QCOMPARE(m_fixture->tree()->topLevelItem(0)->text(0), u"Work (6)"_s);
    QCOMPARE(m_fixture->tree()->topLevelItem(1)->text(0), u"Ungrouped (6)"_s);
    QCOMPARE(daemon.requests(taskCount).size(), 3); // the older asks no further
}

void TestOverlappingRefreshes::aDialogOpenedUnderARefreshLeavesTheViewsInOrder_data()
{
    QTest::addColumn<QString>("waiting");
    QTest::addColumn<bool>("accepted");
    for (const QString &waiting : {taskList, taskCount, auditList}) {
        QTest::addRow("%s, cancelled", qPrintable(waiting)) << waiting << false;
        QTest::addRow("%s, accepted", qPrintable(waiting)) << waiting << true;
    }
}

void TestOverlappingRefreshes::aDialogOpenedUnderARefreshLeavesTheViewsInOrder()
{
    QFETCH(QString, waiting);
    QFETCH(bool, accepted);
    tell(*m_fixture, 2);
    ModalDriver driver;
    driver.expectDialog<QDialog>(u"Create Group"_s, [&](QDialog *dialog) {
        if (accepted)
            tell(*m_fixture, 4);
        QCOMPARE(m_fixture->daemon.heldCount(), 1);
        m_fixture->daemon.release(waiting); // the answer from before
        dialog->done(accepted ? QDialog::Accepted : QDialog::Rejected);
    });
    m_fixture->daemon.whileWaiting(waiting, [this] { click(m_fixture->window.get(), "createGroupButton"); });
    click(m_fixture->window.get(), "refreshButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(shown(*m_fixture), shownOf(accepted ? 4 : 2));
}

ORVEL_TEST_MAIN(QApplication, TestOverlappingRefreshes)
#include "tst_overlappingrefreshes.moc"
