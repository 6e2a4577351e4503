#include "dragfixture.h"
#include "testmain.h"

#include <QApplication>
#include <QSignalSpy>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

/// What the tree makes of a drag that passes over it.
class TestDragDrop : public QObject {
    Q_OBJECT

private slots:
    void taskIdsMayEnterAnywhereAndHighlightNothingYet();
    void anythingElseIsRefused_data();
    void anythingElseIsRefused();
    void theGroupUnderThePointerIsHighlighted();
    void emptySpaceRefusesTheDropAndHighlightsNothing();
    void leavingTakesTheHighlightAway();
    void aGroupPassedOverLosesItsTintUntilARebuild();
    void theHighlightGoesBeforeTheCommandIsSent();
    void aRebuildInTheMiddleOfADragLeavesNothingBehind();
    void aReconnectionInTheMiddleOfADragLeavesTheNewTreeUsable();
};

void TestDragDrop::taskIdsMayEnterAnywhereAndHighlightNothingYet()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    Drag drag(fixture.tree, "");
    QCOMPARE(drag.enter(fixture.on(fixture.work())), accepted);
    QVERIFY(isBare(fixture.work()));
    drag.leave();
    QCOMPARE(drag.enter(fixture.onNothing()), accepted);
}

void TestDragDrop::anythingElseIsRefused_data()
{
    QTest::addColumn<QString>("format");
    for (const char *format : {"text/plain", "text/uri-list", "application/x-qabstractitemmodeldatalist",
                               "application/x-scheduler-taskid", "application/X-Scheduler-TaskIds"})
        QTest::newRow(format) << QString::fromLatin1(format);
}

void TestDragDrop::anythingElseIsRefused()
{
    QFETCH(QString, format);
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    const QSignalSpy dropped(fixture.tree, &MCsGroupTreeWidget::taskDropped);
    Drag drag(fixture.tree);
    drag.carry(format, "t1");
    QCOMPARE(drag.enter(fixture.on(fixture.work())), ignored);
    // What has entered once is told of what follows, whatever it carries then.
    drag.carry(taskIdsFormat, "t1");
    QCOMPARE(drag.enter(fixture.on(fixture.work())), accepted);
    drag.carry(format, "t1");
    QCOMPARE(drag.move(fixture.on(fixture.work())), ignored);
    QVERIFY(isBare(fixture.work()));
    QCOMPARE(drag.drop(fixture.on(fixture.work())), ignored);
    QCOMPARE(dropped.size(), 0);
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestDragDrop::theGroupUnderThePointerIsHighlighted()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    Drag drag(fixture.tree);
    drag.enter(fixture.on(fixture.work()));
    QCOMPARE(drag.move(fixture.on(fixture.work())), accepted);
    QVERIFY(isHighlighted(fixture.work()));
    QCOMPARE(drag.move(fixture.on(fixture.work()) + QPoint(3, 1)), accepted);
    QVERIFY(isHighlighted(fixture.work()));
    QCOMPARE(drag.move(fixture.on(fixture.ungrouped())), accepted);
    QVERIFY(isHighlighted(fixture.ungrouped()));
    QVERIFY(isBare(fixture.work()));
    QVERIFY(!isBare(fixture.home())); // its tint: the pointer was never on it
}

void TestDragDrop::emptySpaceRefusesTheDropAndHighlightsNothing()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    Drag drag(fixture.tree);
    drag.enter(fixture.onNothing());
    QCOMPARE(drag.move(fixture.onNothing()), ignored);
    drag.move(fixture.on(fixture.work()));
    QVERIFY(isHighlighted(fixture.work()));
    QCOMPARE(drag.move(fixture.onNothing()), ignored);
    QVERIFY(isBare(fixture.work()));
    QCOMPARE(drag.move(fixture.on(fixture.work())), accepted); // and back
    QVERIFY(isHighlighted(fixture.work()));
}

void TestDragDrop::leavingTakesTheHighlightAway()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    Drag drag(fixture.tree);
    drag.enter(fixture.on(fixture.work()));
    drag.leave();
    QVERIFY(!isBare(fixture.home()));
    drag.enter(fixture.on(fixture.work()));
    drag.move(fixture.on(fixture.work()));
    drag.leave();
    QVERIFY(isBare(fixture.work()));
    fixture.work()->setBackground(0, Qt::green);
    drag.enter(fixture.on(fixture.home()));
    drag.leave(); // the item of the earlier visit is no longer meant
    QCOMPARE(fixture.work()->background(0), QBrush(Qt::green));
}

void TestDragDrop::aGroupPassedOverLosesItsTintUntilARebuild()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    const QBrush tint = fixture.home()->background(0);
    QCOMPARE(tint.color(), QColor(255, 0, 0, 30));
    Drag drag(fixture.tree);
    drag.enter(fixture.on(fixture.work()));
    for (const QTreeWidgetItem *item : {fixture.home(), fixture.work()})
        drag.move(fixture.on(item));
    QVERIFY(isBare(fixture.home()));
    QCOMPARE(fixture.home()->foreground(0).color(), QColor(Qt::red));
    drag.move(fixture.on(fixture.home()));
    QCOMPARE(drag.drop(fixture.on(fixture.home())), accepted);
    QVERIFY(!fixture.daemon.requests(u"audit.list"_s).isEmpty()); // all that follows a drop has run
    QVERIFY(isBare(fixture.home()));
    QCOMPARE(fixture.home()->foreground(0).color(), QColor(Qt::red));
    click(fixture.window.get(), "refreshGroupButton");
    QCOMPARE(fixture.home()->background(0), tint);
}

void TestDragDrop::theHighlightGoesBeforeTheCommandIsSent()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    bool sent = false;
    fixture.daemon.onRequest(u"task.moveToGroup"_s, [&](const QJsonObject &) {
        sent = true;
        QVERIFY(isBare(fixture.work()));
    });
    Drag drag(fixture.tree);
    drag.enter(fixture.on(fixture.work()));
    drag.move(fixture.on(fixture.work()));
    QVERIFY(isHighlighted(fixture.work()));
    drag.drop(fixture.on(fixture.work()));
    QVERIFY(sent);
}

void TestDragDrop::aRebuildInTheMiddleOfADragLeavesNothingBehind()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    const QBrush tint = fixture.home()->background(0);
    Drag drag(fixture.tree);
    const auto rebuildUnderTheDrag = [&] {
        drag.enter(fixture.on(fixture.home()));
        drag.move(fixture.on(fixture.home()));
        QVERIFY(isHighlighted(fixture.home()));
        fixture.window->onRefreshGroups();
        QCOMPARE(fixture.home()->background(0), tint); // an item that no drag has touched
    };
    rebuildUnderTheDrag();
    QCOMPARE(drag.move(fixture.on(fixture.work())), accepted);
    QVERIFY(isHighlighted(fixture.work()));
    QCOMPARE(fixture.home()->background(0), tint);
    drag.leave();
    rebuildUnderTheDrag();
    drag.leave();
    QCOMPARE(fixture.home()->background(0), tint);
    rebuildUnderTheDrag();
    QCOMPARE(drag.drop(fixture.on(fixture.home())), accepted);
    QCOMPARE(fixture.home()->background(0), tint);
}

void TestDragDrop::aReconnectionInTheMiddleOfADragLeavesTheNewTreeUsable()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    const QPoint target = fixture.on(fixture.home());
    Drag drag(fixture.tree);
    drag.enter(target);
    drag.move(target);
    fixture.daemon.dropConnections();
    // The window reads everything twice, and each time the log once before the tree and once after it.
    QTRY_COMPARE_WITH_TIMEOUT(fixture.daemon.requests(u"audit.list"_s).size(), 4, 10000);
    QCOMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QVERIFY(!isHighlighted(fixture.home()) && !isBare(fixture.home()));
    fixture.daemon.clearRequests();
    QCOMPARE(drag.move(target), accepted);
    QVERIFY(isHighlighted(fixture.home()));
    QCOMPARE(drag.drop(target), accepted);
    QCOMPARE(fixture.daemon.commands().value(0), u"task.moveToGroup"_s);
}

ORVEL_TEST_MAIN(QApplication, TestDragDrop)
#include "tst_dragdrop.moc"
