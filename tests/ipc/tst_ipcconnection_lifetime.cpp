#include "connectedpair.h"
#include "testmain.h"

#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

/// A connection whose deletion is asked for while it waits lives until its last wait has returned.
class TestLifetime : public QObject, private ConnectedPair {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void deletionAskedForUnderOneWaitComesAfterIt();
    void deletionAskedForUnderTwoNestedWaitsComesAfterBoth();
    void deletionAskedForTwiceComesOnce();
    void deletionAskedForBeforeTheWaitComesAfterIt();
    void lossWithDeletionAsAnOwnerDoesIt();
    void directDeletionUnderAWaitIsSurvived();
    void deletionOfTheParentUnderAWaitIsSurvived();
};

void TestLifetime::init()
{
    connectPair();
}

void TestLifetime::cleanup()
{
    disconnectPair();
}

void TestLifetime::deletionAskedForUnderOneWaitComesAfterIt()
{
    m_daemon->hold(u"x"_s);
    once(u"x"_s, [&] {
        m_connection->deleteLater();
        QTimer::singleShot(0, m_daemon.get(), [&] { m_daemon->release(u"x"_s); });
    });
    QVERIFY(isOk(send(u"x"_s)));
    QVERIFY(!m_connection.isNull());
    QTRY_VERIFY(m_connection.isNull());
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
}

void TestLifetime::deletionAskedForUnderTwoNestedWaitsComesAfterBoth()
{
    m_daemon->hold(u"outer"_s);
    m_daemon->hold(u"inner"_s);
    bool innerAnswered = false;
    once(u"outer"_s, [&] {
        innerAnswered = isOk(send(u"inner"_s));
        // The outer wait goes on for a few rounds of its loop before its answer comes.
        QTimer::singleShot(0, m_daemon.get(),
                           [&] { QTimer::singleShot(0, m_daemon.get(), [&] { m_daemon->release(u"outer"_s); }); });
    });
    once(u"inner"_s, [&] {
        m_connection->deleteLater();
        QTimer::singleShot(0, m_daemon.get(), [&] { m_daemon->release(u"inner"_s); });
    });
    QVERIFY(isOk(send(u"outer"_s)));
    QVERIFY(innerAnswered);
    QVERIFY(!m_connection.isNull());
    QTRY_VERIFY(m_connection.isNull());
    QTRY_COMPARE(m_daemon->connectionCount(), 0);
}

void TestLifetime::deletionAskedForTwiceComesOnce()
{
    m_daemon->hold(u"x"_s);
    const QSignalSpy destroyed(m_connection, &QObject::destroyed);
    once(u"x"_s, [&] {
        m_connection->deleteLater();
        QTimer::singleShot(0, m_daemon.get(), [&] {
            m_connection->deleteLater();
            m_daemon->release(u"x"_s);
        });
    });
    QVERIFY(isOk(send(u"x"_s)));
    m_connection->deleteLater();
    QTRY_VERIFY(m_connection.isNull());
    QCOMPARE(destroyed.count(), 1);
}

void TestLifetime::deletionAskedForBeforeTheWaitComesAfterIt()
{
    m_connection->deleteLater();
    QVERIFY(isOk(send(u"x"_s)));
    QVERIFY(!m_connection.isNull());
    QTRY_VERIFY(m_connection.isNull());
}

void TestLifetime::lossWithDeletionAsAnOwnerDoesIt()
{
    m_daemon->ignore(u"outer"_s);
    m_daemon->ignore(u"inner"_s);
    connect(m_connection, &MCsIPCConnection::disconnected, m_connection, [this] {
        m_connection->blockSignals(true);
        m_connection->deleteLater();
    });
    QJsonObject inner;
    once(u"outer"_s, [&] { inner = send(u"inner"_s, 100); });
    once(u"inner"_s, [&] { m_daemon->dropConnections(); });
    QCOMPARE(send(u"outer"_s, 300), timedOut(300));
    QCOMPARE(inner, timedOut(100));
    QVERIFY(!m_connection.isNull());
    QTRY_VERIFY(m_connection.isNull());
}

void TestLifetime::directDeletionUnderAWaitIsSurvived()
{
    m_daemon->ignore(u"x"_s);
    once(u"x"_s, [&] { delete m_connection; });
    QCOMPARE(send(u"x"_s, 100), timedOut(100));
    QVERIFY(m_connection.isNull());
}

void TestLifetime::deletionOfTheParentUnderAWaitIsSurvived()
{
    auto parent = std::make_unique<QObject>();
    m_connection->setParent(parent.get());
    m_daemon->ignore(u"x"_s);
    once(u"x"_s, [&] {
        m_connection->deleteLater();
        QTimer::singleShot(0, m_daemon.get(), [&] { parent.reset(); });
    });
    QCOMPARE(send(u"x"_s, 100), timedOut(100));
    QVERIFY(m_connection.isNull());
}

ORVEL_TEST_MAIN(QCoreApplication, TestLifetime)
#include "tst_ipcconnection_lifetime.moc"
