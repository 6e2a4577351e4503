#include "dragfixture.h"
#include "testmain.h"

#include <QApplication>
#include <QDrag>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTableWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// Presses on a row and moves until a drag starts. Returns what it carries.
QByteArray dragWithTheMouse(QTableWidget *table, int row)
{
    const auto mouse = [table](QEvent::Type type, const QPoint &position) {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, position, table->viewport()->mapToGlobal(position), button, Qt::LeftButton, {});
        QCoreApplication::sendEvent(table->viewport(), &event);
    };
    const QPoint start = table->visualItemRect(table->item(row, 0)).center();
    const QPoint step(2 * QApplication::startDragDistance(), 0);
    mouse(QEvent::MouseButtonPress, start);
    mouse(QEvent::MouseMove, start + step);
    mouse(QEvent::MouseMove, start + 2 * step);
    // The drag itself ends at once: there is no window system to carry it.
    const auto *drag = table->findChild<QDrag *>();
    return drag == nullptr ? QByteArray() : drag->mimeData()->data(taskIdsFormat);
}

} // namespace

/// Where a drop is taken, and what of it.
class TestDrops : public QObject {
    Q_OBJECT

private slots:
    void draggedRowsMoveToTheGroupTheyAreDroppedOn_data();
    void draggedRowsMoveToTheGroupTheyAreDroppedOn();
    void everyGroupTakesADrop_data();
    void everyGroupTakesADrop();
    void thePayloadIsSplitAtItsCommas_data();
    void thePayloadIsSplitAtItsCommas();
    void aPayloadWithoutAnyIdIsIgnored_data();
    void aPayloadWithoutAnyIdIsIgnored();
    void aDropOnEmptySpaceIsIgnored();
};

void TestDrops::draggedRowsMoveToTheGroupTheyAreDroppedOn_data()
{
    QTest::addColumn<bool>("all");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QJsonObject>("payload");
    QTest::newRow("one row") << false << u"task.moveToGroup"_s
                             << QJsonObject{{u"taskId"_s, u"t2"_s}, {u"groupId"_s, u"g2"_s}};
    QTest::newRow("two selected rows") << true << u"task.batchMoveToGroup"_s
                                       << QJsonObject{{u"taskIds"_s, QJsonArray{u"t1"_s, u"t2"_s}},
                                                      {u"groupId"_s, u"g2"_s}};
}

void TestDrops::draggedRowsMoveToTheGroupTheyAreDroppedOn()
{
    QFETCH(bool, all);
    QFETCH(QString, command);
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    auto *table = fixture.widget<QTableWidget>("taskTable");
    if (all)
        table->selectAll(); // and the press keeps the selection
    Drag drag(fixture.tree, dragWithTheMouse(table, 1));
    QCOMPARE(drag.enter(fixture.on(fixture.home())), accepted);
    QCOMPARE(drag.move(fixture.on(fixture.home())), accepted);
    QCOMPARE(drag.drop(fixture.on(fixture.home())), accepted);
    QCOMPARE(fixture.daemon.commands().value(0), command);
    QTEST(fixture.daemon.requests().first().value("payload"_L1).toObject(), "payload");
}

void TestDrops::everyGroupTakesADrop_data()
{
    QTest::addColumn<QString>("group");
    QTest::newRow("the group of the task") << u"g1"_s; // the one that is selected
    QTest::newRow("another") << u"g2"_s;
    QTest::newRow("the pseudo group, one level down") << u"ungrouped"_s;
}

void TestDrops::everyGroupTakesADrop()
{
    QFETCH(QString, group);
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    fixture.tree->setCurrentItem(fixture.work());
    fixture.daemon.clearRequests();
    Drag drag(fixture.tree);
    for (QTreeWidgetItem *item : {fixture.work(), fixture.home(), fixture.ungrouped()}) {
        if (item->data(0, MCsGroupTreeWidget::GroupIdRole).toString() != group)
            continue;
        drag.enter(fixture.on(item));
        QCOMPARE(drag.move(fixture.on(item)), accepted);
        QCOMPARE(drag.drop(fixture.on(item)), accepted);
    }
    QCOMPARE(fixture.daemon.commands().value(0), u"task.moveToGroup"_s);
    QCOMPARE(fixture.daemon.requests().first().value("payload"_L1).toObject(),
             QJsonObject({{u"taskId"_s, u"t1"_s}, {u"groupId"_s, group}}));
}

void TestDrops::thePayloadIsSplitAtItsCommas_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QStringList>("ids");
    QTest::newRow("one") << QByteArray("a") << QStringList{u"a"_s};
    QTest::newRow("two") << QByteArray("a,b") << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("empty parts") << QByteArray(",,a,,b,") << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("twice the same") << QByteArray("a,a") << QStringList{u"a"_s, u"a"_s};
    QTest::newRow("blanks are kept") << QByteArray(" a , ") << QStringList{u" a "_s, u" "_s};
    QTest::newRow("quotes are no quotes") << QByteArray("\"a,b\"") << QStringList{u"\"a"_s, u"b\""_s};
    QTest::newRow("not Latin") << QByteArray("\xc3\xbc,\xe6\xbc\xa2") << QStringList{u"\u00fc"_s, u"\u6f22"_s};
    QTest::newRow("not UTF-8") << QByteArray("a\xff,b") << QStringList{u"a\ufffd"_s, u"b"_s};
}

void TestDrops::thePayloadIsSplitAtItsCommas()
{
    QFETCH(QByteArray, payload);
    QFETCH(QStringList, ids);
    MCsGroupTreeWidget tree;
    tree.setAcceptDrops(true);
    auto *item = new QTreeWidgetItem(&tree, {u"Work"_s});
    item->setData(0, MCsGroupTreeWidget::GroupIdRole, u"g1"_s);
    tree.show();
    const QSignalSpy dropped(&tree, &MCsGroupTreeWidget::taskDropped);
    Drag drag(&tree, payload);
    const QPoint position = tree.visualItemRect(item).center();
    drag.enter(position);
    QCOMPARE(drag.drop(position), accepted);
    QCOMPARE(dropped.size(), 1);
    QCOMPARE(dropped.first(), QVariantList({ids, u"g1"_s}));
}

void TestDrops::aPayloadWithoutAnyIdIsIgnored_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a comma") << QByteArray(",");
    QTest::newRow("commas") << QByteArray(",,,");
}

void TestDrops::aPayloadWithoutAnyIdIsIgnored()
{
    QFETCH(QByteArray, payload);
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    const QSignalSpy dropped(fixture.tree, &MCsGroupTreeWidget::taskDropped);
    Drag drag(fixture.tree, payload);
    drag.enter(fixture.on(fixture.work()));
    QCOMPARE(drag.move(fixture.on(fixture.work())), accepted); // what it carries is read at the drop
    QCOMPARE(drag.drop(fixture.on(fixture.work())), ignored);
    QVERIFY(isBare(fixture.work()));
    QCOMPARE(dropped.size(), 0);
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestDrops::aDropOnEmptySpaceIsIgnored()
{
    TreeWindow fixture;
    QVERIFY(fixture.connect());
    const QSignalSpy dropped(fixture.tree, &MCsGroupTreeWidget::taskDropped);
    Drag drag(fixture.tree);
    drag.enter(fixture.on(fixture.work()));
    drag.move(fixture.on(fixture.work()));
    QCOMPARE(drag.drop(fixture.onNothing()), ignored);
    QVERIFY(isBare(fixture.work()));
    QCOMPARE(dropped.size(), 0);
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

ORVEL_TEST_MAIN(QApplication, TestDrops)
#include "tst_drops.moc"
