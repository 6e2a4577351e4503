#include "modaldriver.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

/// The two progress dialogs, and the boxes of the views that do not exist yet.
class TestConnectionDialogs : public QObject {
    Q_OBJECT

private slots:
    void theConnectDialogCanBeCancelled();
    void theReconnectDialogCannotBeCancelled();
    void aDialogThatIsUpIsUsedAgain();
    void viewsThatDoNotExistSaySo_data();
    void viewsThatDoNotExistSaySo();

private:
    static void compareCommonProperties(const QProgressDialog &dialog);
};

void TestConnectionDialogs::compareCommonProperties(const QProgressDialog &dialog)
{
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.minimum(), 0);
    QCOMPARE(dialog.maximum(), 0);
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QCOMPARE(dialog.minimumDuration(), 0);
    QVERIFY(!dialog.autoClose());
    QVERIFY(!dialog.autoReset());
}

void TestConnectionDialogs::theConnectDialogCanBeCancelled()
{
    WindowFixture fixture;
    fixture.open();
    fixture.window->autoConnectToDaemon();
    const auto *dialog = fixture.widget<QProgressDialog>("connectDialog");
    compareCommonProperties(*dialog);
    QCOMPARE(dialog->windowTitle(), u"Connecting"_s);
    QCOMPARE(dialog->labelText(), u"Connecting to scheduler service..."_s);
    QCOMPARE(dialog->parentWidget(), fixture.window.get());
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 1);
    QCOMPARE(buttons.first()->text(), u"Cancel"_s);
}

void TestConnectionDialogs::theReconnectDialogCannotBeCancelled()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    const auto *dialog = fixture.widget<QProgressDialog>("reconnectDialog");
    compareCommonProperties(*dialog);
    QCOMPARE(dialog->windowTitle(), u"Connection Lost"_s);
    QCOMPARE(dialog->labelText(), u"Connection lost. Reconnecting to scheduler service..."_s);
    QCOMPARE(dialog->parentWidget(), fixture.window.get());
    QCOMPARE(dialog->findChildren<QPushButton *>().size(), 0);
}

void TestConnectionDialogs::aDialogThatIsUpIsUsedAgain()
{
    WindowFixture fixture;
    fixture.open();
    fixture.window->autoConnectToDaemon();
    const auto *dialog = fixture.widget<QProgressDialog>("connectDialog");
    fixture.window->autoConnectToDaemon();
    QCOMPARE(fixture.window->findChildren<QProgressDialog *>().size(), 1);
    QCOMPARE(fixture.widget<QProgressDialog>("connectDialog"), dialog);
    QVERIFY(dialog->isVisible());
}

void TestConnectionDialogs::viewsThatDoNotExistSaySo_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("task runs") << u"onViewTaskRuns"_s << u"Task Runs"_s << u"Task runs view not yet implemented."_s;
    QTest::newRow("task logs") << u"onViewTaskLogs"_s << u"Task Logs"_s << u"Task logs view not yet implemented."_s;
    QTest::newRow("log export") << u"onExportLogs"_s << u"Export Logs"_s << u"Log export not yet implemented."_s;
}

void TestConnectionDialogs::viewsThatDoNotExistSaySo()
{
    QFETCH(QString, slot);
    QFETCH(QString, title);
    QFETCH(QString, text);
    WindowFixture fixture;
    fixture.open();
    ModalDriver driver;
    driver.expectBox(QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::Ok);
    QVERIFY(QMetaObject::invokeMethod(fixture.window.get(), slot.toLatin1().constData()));
    QVERIFY2(driver.finished(), driver.problems());
}

ORVEL_TEST_MAIN(QApplication, TestConnectionDialogs)
#include "tst_connectiondialogs.moc"
