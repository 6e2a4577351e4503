#include "mcsgrouptreewidget.h"
#include "mcsmainwindow.h"
#include "mcstaskdialog.h"
#include "modaldriver.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidgetItemIterator>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

/// Programs that start beside other tests, perhaps under a sanitizer, may take their time.
#define QTRY_VERIFY_PATIENT(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)

/// The stand-in daemon as a process that is killed outright, and another one with other data in its place.
class TestFaultsRestart : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void anotherDaemonsDataReplacesWhatWasShown();
    void aTypedTaskOutlivesTheDaemonAndIsSavedByItsSuccessor();
    void aKilledDaemonThatKeptItsDataShowsTheSame();
    void aQuestionOutlivesTheDaemonAndItsAnswerGoesToTheSuccessor();

private:
    /// Starts a daemon that makes up so many tasks and groups, unless the state of this name has some already.
    void startDaemon(const QString &state, int tasks, int groups);
    void killDaemon();
    void hurryReconnection();
    [[nodiscard]] QTableWidget *table() const;
    [[nodiscard]] int groupCount() const;
    [[nodiscard]] QStringList taskIds() const;
    [[nodiscard]] bool isConnected() const;

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<QProcess> m_daemon;
    std::unique_ptr<WindowFixture> m_fixture;
};

void TestFaultsRestart::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    startDaemon(u"first"_s, 7, 2);
    m_fixture = std::make_unique<WindowFixture>();
    m_fixture->open();
    QTRY_VERIFY_PATIENT(isConnected());
    QTRY_COMPARE(groupCount(), 3);
    QCOMPARE(table()->rowCount(), 7);
}

void TestFaultsRestart::cleanup()
{
    m_fixture.reset();
    m_daemon->kill();
    m_daemon->waitForFinished();
    m_daemon.reset();
    QCOMPARE(openWindows(), QStringList());
}

void TestFaultsRestart::startDaemon(const QString &state, int tasks, int groups)
{
    m_daemon = std::make_unique<QProcess>();
    m_daemon->start(QStringLiteral(DAEMON_PROGRAM), {u"--state"_s, m_directory->filePath(state), u"--tasks"_s,
                                                     QString::number(tasks), u"--groups"_s, QString::number(groups)});
    QByteArray said;
    QTRY_VERIFY_PATIENT((said += m_daemon->readAllStandardError()).contains("listening on "));
}

void TestFaultsRestart::killDaemon()
{
    m_daemon->kill();
    QVERIFY(m_daemon->waitForFinished());
    QCOMPARE(m_daemon->exitStatus(), QProcess::CrashExit);
    QTRY_COMPARE(m_fixture->window->connectionState(), ConnectionState::Reconnecting);
}

void TestFaultsRestart::hurryReconnection()
{
    if (QTimer *pause = m_fixture->timer("reconnectTimer"); pause != nullptr && pause->isActive())
        pause->start(0);
    QTRY_VERIFY_PATIENT(isConnected());
}

QTableWidget *TestFaultsRestart::table() const
{
    return m_fixture->widget<QTableWidget>("taskTable");
}

int TestFaultsRestart::groupCount() const
{
    int count = 0;
    for (QTreeWidgetItemIterator item(m_fixture->widget<MCsGroupTreeWidget>("groupTree")); *item != nullptr; ++item)
        ++count;
    return count;
}

QStringList TestFaultsRestart::taskIds() const
{
    QStringList ids;
    for (int row = 0; row < table()->rowCount(); ++row)
        ids.append(table()->item(row, 0)->data(Qt::UserRole).toString());
    return ids;
}

bool TestFaultsRestart::isConnected() const
{
    return m_fixture->window->connectionState() == ConnectionState::Connected && m_fixture->status() == "Connected"_L1;
}

void TestFaultsRestart::anotherDaemonsDataReplacesWhatWasShown()
{
    const ModalDriver driver; // no box comes
    killDaemon();
    QCOMPARE(table()->rowCount(), 7);
    QCOMPARE(groupCount(), 3);
    startDaemon(u"second"_s, 4, 3);
    hurryReconnection();
    QTRY_COMPARE(groupCount(), 4);
    QCOMPARE(taskIds(), QStringList({u"task-1"_s, u"task-2"_s, u"task-3"_s, u"task-4"_s}));
    QCOMPARE(m_fixture->widget<QLabel>("taskCountLabel")->text(), u"Tasks: 4"_s);
}

void TestFaultsRestart::aKilledDaemonThatKeptItsDataShowsTheSame()
{
    const ModalDriver driver;
    const QStringList before = taskIds();
    killDaemon();
    startDaemon(u"first"_s, 1, 1);
    hurryReconnection();
    QTRY_COMPARE(groupCount(), 3);
    QCOMPARE(taskIds(), before);
}

void TestFaultsRestart::aTypedTaskOutlivesTheDaemonAndIsSavedByItsSuccessor()
{
    ModalDriver driver;
    driver.expectDialog<MCsTaskDialog>(u"Create Task"_s, [this](MCsTaskDialog *dialog) {
        auto *name = require<QLineEdit>(dialog, "nameEdit");
        QAbstractButton *save = require<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Save);
        name->setText(u"Typed"_s);
        killDaemon();
        QVERIFY(clickProblem(save).contains(u"Connection Lost"_s));
        startDaemon(u"second"_s, 4, 3);
        hurryReconnection();
        QVERIFY(dialog->isVisible());
        QCOMPARE(name->text(), u"Typed"_s);
        click(save);
    });
    driver.expectBox(QMessageBox::Information, u"Success"_s, u"Task created successfully."_s);
    click(m_fixture->window.get(), "createButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(table()->rowCount(), 5);
    QVERIFY(!table()->findItems(u"Typed"_s, Qt::MatchExactly).isEmpty());
}

void TestFaultsRestart::aQuestionOutlivesTheDaemonAndItsAnswerGoesToTheSuccessor()
{
    table()->selectRow(2);
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [this](const QMessageBox *box) {
        killDaemon();
        QVERIFY(clickProblem(box->button(QMessageBox::Yes)).contains(u"Connection Lost"_s));
        startDaemon(u"second"_s, 4, 3);
        hurryReconnection();
        QTRY_COMPARE(groupCount(), 4);
        click(box->button(QMessageBox::Yes));
    });
    click(m_fixture->window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(taskIds(), QStringList({u"task-1"_s, u"task-2"_s, u"task-4"_s}));
}

ORVEL_TEST_MAIN(QApplication, TestFaultsRestart)
#include "tst_faults_restart.moc"
