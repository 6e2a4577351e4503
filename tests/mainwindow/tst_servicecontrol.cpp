#include "fakeservicetools.h"
#include "servicecontrol.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QElapsedTimer>

using namespace Scheduler;
using TestSupport::FakeServiceTools;

class TestServiceControl : public QObject {
    Q_OBJECT

private slots:
    void readsTheStateFromTheToolsOutput_data();
    void readsTheStateFromTheToolsOutput();
    void aStartSucceedsByItsExitCode_data();
    void aStartSucceedsByItsExitCode();
    void aStartToolThatIsMissingCountsAsSuccess();
    void aStartThatTakesTooLongCountsAsSuccessAndIsEnded();
    void aMissingQueryToolMeansNeitherRunningNorInstalled();
};

void TestServiceControl::readsTheStateFromTheToolsOutput_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<bool>("running");
    QTest::addColumn<bool>("installed");
    QTest::newRow("running") << FakeServiceTools::running << true << true;
    QTest::newRow("installed, stopped") << FakeServiceTools::stopped << false << true;
    QTest::newRow("not installed") << FakeServiceTools::missing << false << false;
    QTest::newRow("starting") << FakeServiceTools::starting << false << true;
    QTest::newRow("failed") << FakeServiceTools::failed << false << true;
    QTest::newRow("silent") << QByteArray() << false << false;
    QTest::newRow("another text") << QByteArray("Failed to connect to bus") << false << false;
}

void TestServiceControl::readsTheStateFromTheToolsOutput()
{
    QFETCH(QByteArray, output);
    FakeServiceTools tools; // its queries end with a code other than 0, which does not count
    tools.setQueryOutput(output);
    QTEST(ServiceControl::isServiceRunning(), "running");
    QTEST(ServiceControl::isServiceInstalled(), "installed");
    QCOMPARE(tools.calls(), QStringList({QStringLiteral("show"), QStringLiteral("show")}));
}

void TestServiceControl::aStartSucceedsByItsExitCode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("started");
    QTest::newRow("0") << 0 << true;
    QTest::newRow("1") << 1 << false;
    QTest::newRow("255") << 255 << false;
}

void TestServiceControl::aStartSucceedsByItsExitCode()
{
    QFETCH(int, code);
    FakeServiceTools tools;
    tools.setStartExitCode(code);
    QTEST(ServiceControl::startService(), "started");
    QCOMPARE(tools.calls(), QStringList({QStringLiteral("start")}));
}

void TestServiceControl::aStartToolThatIsMissingCountsAsSuccess()
{
    if (!FakeServiceTools::canBeMissing)
        QSKIP("the system has a tool of that name, which is always found");
    FakeServiceTools tools;
    tools.uninstall();
    QVERIFY(ServiceControl::startService());
}

void TestServiceControl::aStartThatTakesTooLongCountsAsSuccessAndIsEnded()
{
    FakeServiceTools tools;
    tools.setStartHangs();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(ServiceControl::startService());
    QVERIFY(timer.elapsed() >= 5000);
    QVERIFY2(timer.elapsed() < 9000, "the tool that hangs was waited for");
}

void TestServiceControl::aMissingQueryToolMeansNeitherRunningNorInstalled()
{
    if (!FakeServiceTools::canBeMissing)
        QSKIP("the system has a tool of that name, which is always found");
    FakeServiceTools tools;
    tools.uninstall();
    QVERIFY(!ServiceControl::isServiceRunning());
    QVERIFY(!ServiceControl::isServiceInstalled());
}

ORVEL_TEST_MAIN(QCoreApplication, TestServiceControl)
#include "tst_servicecontrol.moc"
