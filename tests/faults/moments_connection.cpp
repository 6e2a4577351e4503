#include "moments.h"

#include "mcsschedulerclient.h"

#include <QProgressDialog>
#include <QTest>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

/// The text of the dialog of this name, while it is up.
QString labelOf(const Stage &stage, const QString &dialogName)
{
    const QList<QProgressDialog *> dialogs = stage.window->findChildren<QProgressDialog *>(dialogName);
    for (const QProgressDialog *dialog : dialogs) {
        if (dialog->isVisible())
            return dialog->labelText();
    }
    return {};
}

/// Anything but a clear "ok" is no registration, and what comes with it is not looked at.
bool registers(Outcome outcome)
{
    return outcome == Outcome::Answered || outcome == Outcome::Hollow;
}

void meetRegistration(Stage &stage)
{
    const Outcome outcome = stage.fault().outcome;
    ModalDriver driver;
    stage.window->onDisconnectFromDaemon();
    QCOMPARE(stage.status(), u"Disconnected"_s);
    stage.daemon.clearRequests();
    stage.window->onConnectToDaemon();
    QCOMPARE(labelOf(stage, u"connectDialog"_s), u"Connecting to scheduler service..."_s);
    QTRY_VERIFY(stage.hasStruck());
    if (outcome == Outcome::Silent || outcome == Outcome::Refused) {
        QCOMPARE(stage.window->connectionState(), ConnectionState::Connecting);
        QCOMPARE(stage.client->lastErrorCode(),
                 outcome == Outcome::Silent ? u"TIMEOUT"_s : stage.reason().section(u':', 0, 0));
        QVERIFY(!stage.widget<QWidget>("createButton")->isEnabled());
    }
    stage.settle();
    QCOMPARE(labelOf(stage, u"connectDialog"_s), QString());
    if (registers(outcome))
        QCOMPARE(stage.daemon.requests(u"client.register"_s).size(), 1);
    else
        QVERIFY(stage.daemon.requests(u"client.register"_s).size() >= 2);
    QVERIFY2(driver.finished(), driver.problems());
    stage.expect(stage.newest());
}

void meetReconnection(Stage &stage)
{
    const Outcome outcome = stage.fault().outcome;
    const Views before = Views::of(*stage.window);
    ModalDriver driver;
    stage.loseConnection();
    stage.expect(before);
    QCOMPARE(labelOf(stage, u"reconnectDialog"_s), u"Connection lost. Reconnecting to scheduler service..."_s);
    stage.seekConnection();
    QTRY_VERIFY(stage.hasStruck());
    if (outcome == Outcome::Silent || outcome == Outcome::Refused) {
        QCOMPARE(stage.window->connectionState(), ConnectionState::Reconnecting);
        QCOMPARE(labelOf(stage, u"reconnectDialog"_s), u"Connection lost. Reconnecting...\nAttempt 1 of 8"_s);
        QCOMPARE(stage.status(), u"Reconnecting (1/8)..."_s);
        stage.expect(before);
    }
    stage.settle();
    QCOMPARE(labelOf(stage, u"reconnectDialog"_s), QString());
    if (registers(outcome))
        QCOMPARE(stage.daemon.requests(u"client.register"_s).size(), 1);
    QVERIFY2(driver.finished(), driver.problems());
    stage.expect(stage.newest());
}

} // namespace

// Their connection is lost or does not stand yet, so that a fault that loses it is not shown as a loss of its own.
QList<Moment> connectionMoments()
{
    Moment registration{"registration", u"client.register"_s};
    registration.connects = true;
    registration.meet = meetRegistration;
    Moment reconnection{"registration of a reconnection", u"client.register"_s};
    reconnection.connects = true;
    reconnection.meet = meetReconnection;
    return {registration, reconnection};
}

} // namespace TestSupport
