#include "modaldriver.h"
#include "scripteddaemon.h"
#include "startup.h"
#include "testmain.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <memory>
#include <vector>

using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// What happens once the application object of runManager() stands; set by each test.
std::function<void()> afterStart;

void callAfterStart()
{
    if (afterStart)
        afterStart();
}

Q_COREAPP_STARTUP_FUNCTION(callAfterStart)

int run(const QStringList &arguments)
{
    std::vector<QByteArray> texts{"manager"};
    for (const QString &argument : arguments)
        texts.push_back(argument.toLocal8Bit());
    std::vector<char *> values;
    for (QByteArray &text : texts)
        values.push_back(text.data());
    return Scheduler::runManager(static_cast<int>(values.size()), values.data());
}

QStringList arguments(const QString &taskType)
{
    return {u"--task-type"_s,    taskType, u"--language"_s,     u"en"_s,
            u"--program-name"_s, u"Foo"_s, u"--program-path"_s, u"/x"_s};
}

} // namespace

/// The exit status of the whole program, which makes an application object of its own each time.
class TestExitStatus : public QObject {
    Q_OBJECT

private slots:
    void aFailureOfTheStartIsOne_data();
    void aFailureOfTheStartIsOne();
    void aTakenTypeEndsWithABoxAndZero();
    void closingTheWindowIsZero();
    void closingTheWindowBetweenTwoWaitsIsZero();
};

void TestExitStatus::aFailureOfTheStartIsOne_data()
{
    QTest::addColumn<QStringList>("commandLine");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QStringList()
                             << u"Missing required arguments: task type, language, program name, program path"_s;
    QTest::newRow("bad type") << arguments(u"task_type.TEST"_s) << u"task type error!"_s;
    QTest::newRow("no parameter file") << arguments(u"task_type.test"_s) +
                                              QStringList{u"--program-parameters-file"_s, u"/no/such/file"_s}
                                       << u"Program parameter JSON file not found!"_s;
}

void TestExitStatus::aFailureOfTheStartIsOne()
{
    QFETCH(QStringList, commandLine);
    QFETCH(QString, text);
    std::unique_ptr<ModalDriver> driver;
    afterStart = [&] {
        driver = std::make_unique<ModalDriver>();
        driver->expectBox(QMessageBox::Warning, u"Error"_s, text, QMessageBox::Ok, QMessageBox::Ok);
    };
    QCOMPARE(run(commandLine), 1);
    QVERIFY2(driver->finished(), driver->problems());
}

void TestExitStatus::aTakenTypeEndsWithABoxAndZero()
{
    std::unique_ptr<ScriptedDaemon> daemon;
    std::unique_ptr<ModalDriver> driver;
    afterStart = [&] {
        daemon = std::make_unique<ScriptedDaemon>();
        daemon->refuse(u"client.register"_s, u"CLIENT_TYPE_ALREADY_CONNECTED"_s, u"taken"_s);
        QVERIFY(daemon->listen());
        driver = std::make_unique<ModalDriver>();
        driver->expectBox(QMessageBox::Critical, u"Service Error"_s,
                          u"Unable to connect to the scheduler service because multiple manager instances are running. "
                          "Please close the other scheduler managers first."_s,
                          QMessageBox::Ok, QMessageBox::Ok);
    };
    QCOMPARE(run(arguments(u"task_type.test"_s)), 0);
    QVERIFY2(driver->finished(), driver->problems());
}

void TestExitStatus::closingTheWindowIsZero()
{
    std::unique_ptr<ScriptedDaemon> daemon;
    auto closer = std::make_unique<QTimer>();
    afterStart = [&] {
        daemon = std::make_unique<ScriptedDaemon>();
        daemon->answer(u"task.countByType"_s, {{u"count"_s, 1}});
        QVERIFY(daemon->listen());
        QObject::connect(closer.get(), &QTimer::timeout, closer.get(), [&daemon] {
            if (daemon->commands().contains(u"task.countByType"_s))
                QApplication::closeAllWindows();
        });
        closer->start(10);
    };
    QCOMPARE(run(arguments(u"task_type.test"_s)), 0);
}

// An answer arrives together with the closing, and the next wait begins at once.
void TestExitStatus::closingTheWindowBetweenTwoWaitsIsZero()
{
    std::unique_ptr<ScriptedDaemon> daemon;
    auto guard = std::make_unique<QTimer>();
    afterStart = [&] {
        daemon = std::make_unique<ScriptedDaemon>();
        daemon->deliverWith(u"tasktype.list"_s, [&](const QJsonObject &answer) {
            QApplication::closeAllWindows();
            QEventLoop wait;
            QTimer::singleShot(0, &wait, &QEventLoop::quit);
            wait.exec();
            daemon->sendResponse(answer);
        });
        QVERIFY(daemon->listen());
        QObject::connect(guard.get(), &QTimer::timeout, guard.get(), [] { QCoreApplication::exit(99); });
        guard->start(10000);
    };
    QCOMPARE(run(arguments(u"task_type.test"_s)), 0);
}

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    isolateProcess(home);
    TestExitStatus test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_exitstatus.moc"
