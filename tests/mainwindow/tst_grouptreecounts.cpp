#include "mcsgrouptreewidget.h"
#include "modaldriver.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QPushButton>
#include <QTreeWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// A connected window with the given groups in its tree, and its own ticks off. A group counts what counts says of its
/// id; another's count is refused.
class GroupedWindow : public WindowFixture {
public:
    [[nodiscard]] bool connect(const QList<QJsonObject> &groups,
                               const QString &taskType = QStringLiteral("task_type.screen_record"))
    {
        daemon.respondWith(u"task.countByGroupAndType"_s, [this](const QJsonObject &payload) {
            const auto count = counts.constFind(payload.value("groupId"_L1).toString());
            if (count == counts.constEnd())
                return QJsonObject{{u"ok"_s, false}, {u"error"_s, QJsonObject{{u"code"_s, u"NO"_s}}}};
            return QJsonObject{{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"count"_s, *count}}}};
        });
        if (!connectWindow(taskType))
            return false;
        timer("statusUpdateTimer")->stop();
        tree = widget<QTreeWidget>("groupTree");
        setGroups(groups);
        click(window.get(), "refreshGroupButton");
        daemon.clearRequests();
        return true;
    }
    /// "id: text, count" of every item, parents before their children.
    [[nodiscard]] QStringList items() const
    {
        QStringList result;
        for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it)
            result.append(u"%1: %2, %3"_s.arg((*it)->data(0, MCsGroupTreeWidget::GroupIdRole).toString(),
                                              (*it)->text(0),
                                              (*it)->data(0, MCsGroupTreeWidget::GroupTaskCountRole).toString()));
        return result;
    }
    /// The groups whose counts were asked for, in order.
    [[nodiscard]] QStringList counted() const
    {
        QStringList ids;
        for (const QJsonObject &request : daemon.requests(u"task.countByGroupAndType"_s))
            ids.append(request.value("payload"_L1).toObject().value("groupId"_L1).toString());
        return ids;
    }

    QHash<QString, int> counts;
    QTreeWidget *tree = nullptr;
};

QJsonObject group(const QString &id, const QString &name, int count, const QString &parentId = {})
{
    return groupJson(id, name, {{u"taskCount"_s, count}, {u"parentId"_s, parentId}});
}

} // namespace

/// The counts in the tree, the merge of equal names as shown, and what the tree does without a connection.
class TestGroupTreeCounts : public QObject {
    Q_OBJECT

private slots:
    void everyGroupIsCountedByItselfParentsFirst();
    void aCountThatIsRefusedReadsAsNone();
    void countsLeaveEverythingElseOfAnItemAlone();
    void aNameWithABracketStaysWholeWhenItIsCounted();
    void theMergedCountHoldsUntilTheNextRefresh();
    void theFirstOfEqualNamesStandsForAll_data();
    void theFirstOfEqualNamesStandsForAll();
    void aGroupWhoseParentWasMergedAwayStandsAtTheTop();
    void equalNamesStayApartForOneType();
    void groupsStandInTheDaemonsOrder();
    void groupsMayNestDeeply();
    void aRefusedListingEmptiesTheTreeWithoutABox();
    void ungroupedIsNoSubjectOfTheGroupButtons();
    void aLostConnectionKeepsTheTreeAndItsCounts();
};

void TestGroupTreeCounts::everyGroupIsCountedByItselfParentsFirst()
{
    GroupedWindow fixture;
    fixture.counts = {{u"a"_s, 1}, {u"b"_s, 2}, {u"c"_s, 3}, {u"d"_s, 4}};
    QVERIFY(fixture.connect({group(u"b"_s, u"B"_s, 0, u"a"_s), group(u"c"_s, u"C"_s, 0, u"b"_s),
                             group(u"a"_s, u"A"_s, 0), group(u"d"_s, u"D"_s, 0)}));
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(fixture.counted(), QStringList({u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    QCOMPARE(fixture.items(), QStringList({u"a: A (1), 1"_s, u"b: B (2), 2"_s, u"c: C (3), 3"_s, u"d: D (4), 4"_s}));
}

void TestGroupTreeCounts::aCountThatIsRefusedReadsAsNone()
{
    GroupedWindow fixture;
    fixture.counts = {{u"b"_s, 2}};
    QVERIFY(fixture.connect({group(u"a"_s, u"A"_s, 7), group(u"b"_s, u"B"_s, 7)}));
    QCOMPARE(fixture.items(), QStringList({u"a: A (7), 7"_s, u"b: B (7), 7"_s}));
    ModalDriver driver;
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(fixture.items(), QStringList({u"a: A (0), 0"_s, u"b: B (2), 2"_s}));
    QVERIFY2(driver.finished(), driver.problems());
}

void TestGroupTreeCounts::countsLeaveEverythingElseOfAnItemAlone()
{
    GroupedWindow fixture;
    fixture.counts = {{u"a"_s, 1}, {u"b"_s, 2}};
    QVERIFY(
        fixture.connect({groupJson(u"a"_s, u"A"_s, {{u"color"_s, u"#00ff00"_s}}), group(u"b"_s, u"B"_s, 0, u"a"_s)}));
    QTreeWidgetItem *item = fixture.tree->topLevelItem(0);
    item->setExpanded(false);
    fixture.tree->setCurrentItem(item);
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(item->text(0), u"A (1)"_s);
    QCOMPARE(fixture.tree->topLevelItem(0), item);
    QVERIFY(item->isSelected());
    QVERIFY(!item->isExpanded()); // until the next rebuild
    QCOMPARE(item->foreground(0).color(), QColor(0, 255, 0));
    QCOMPARE(item->background(0).color(), QColor(0, 255, 0, 30));
    click(fixture.window.get(), "refreshGroupButton");
    QVERIFY(fixture.tree->topLevelItem(0)->isExpanded());
}

void TestGroupTreeCounts::aNameWithABracketStaysWholeWhenItIsCounted()
{
    GroupedWindow fixture;
    fixture.counts = {{u"a"_s, 5}};
    QVERIFY(fixture.connect({group(u"a"_s, u"A (b) %1 %2"_s, 1)}));
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(fixture.items(), QStringList({u"a: A (b) %1 %2 (5), 5"_s}));
}

void TestGroupTreeCounts::theMergedCountHoldsUntilTheNextRefresh()
{
    GroupedWindow fixture;
    fixture.counts = {{u"2"_s, 3}, {u"3"_s, 4}};
    QVERIFY(fixture.connect({group(u"2"_s, u"Work"_s, 3), group(u"3"_s, u"Work"_s, 4)}, u"task_type.all"_s));
    QCOMPARE(fixture.items(), QStringList({u"2: Work (7), 7"_s}));
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(fixture.counted(), QStringList({u"2"_s}));
    QCOMPARE(fixture.items(), QStringList({u"2: Work (3), 3"_s}));
}

void TestGroupTreeCounts::theFirstOfEqualNamesStandsForAll_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("all types") << u"task_type.all"_s;
    QTest::newRow("no type") << QString();
}

void TestGroupTreeCounts::theFirstOfEqualNamesStandsForAll()
{
    QFETCH(QString, type);
    GroupedWindow fixture;
    const auto work = [](const QString &id, int count, const QString &color, const QString &parentId) {
        return groupJson(id, u"Work"_s, {{u"taskCount"_s, count}, {u"color"_s, color}, {u"parentId"_s, parentId}});
    };
    QVERIFY(fixture.connect({work(u"2"_s, 3, u"#ff0000"_s, u"top"_s), work(u"1"_s, 4, u"#0000ff"_s, QString()),
                             group(u"top"_s, u"Zoo"_s, 0)},
                            type));
    QCOMPARE(fixture.items(), QStringList({u"top: Zoo (0), 0"_s, u"2: Work (7), 7"_s}));
    QCOMPARE(fixture.tree->topLevelItem(0)->child(0)->foreground(0).color(), QColor(255, 0, 0));
}

void TestGroupTreeCounts::aGroupWhoseParentWasMergedAwayStandsAtTheTop()
{
    GroupedWindow fixture;
    QVERIFY(fixture.connect({group(u"1"_s, u"Work"_s, 0), group(u"2"_s, u"Work"_s, 0),
                             group(u"3"_s, u"Below the first"_s, 0, u"1"_s),
                             group(u"4"_s, u"Below the second"_s, 0, u"2"_s)},
                            u"task_type.all"_s));
    QCOMPARE(fixture.tree->topLevelItemCount(), 2);
    QCOMPARE(fixture.tree->topLevelItem(0)->text(0), u"Below the second (0)"_s);
    QCOMPARE(fixture.tree->topLevelItem(1)->text(0), u"Work (0)"_s);
    QCOMPARE(fixture.tree->topLevelItem(1)->child(0)->text(0), u"Below the first (0)"_s);
}

void TestGroupTreeCounts::equalNamesStayApartForOneType()
{
    GroupedWindow fixture;
    QVERIFY(fixture.connect({group(u"2"_s, u"Work"_s, 3), group(u"1"_s, u"Work"_s, 4)}));
    QCOMPARE(fixture.items(), QStringList({u"2: Work (3), 3"_s, u"1: Work (4), 4"_s}));
}

void TestGroupTreeCounts::groupsStandInTheDaemonsOrder()
{
    GroupedWindow fixture;
    QVERIFY(fixture.connect({groupJson(u"c"_s, u"C"_s, {{u"displayOrder"_s, 3}}),
                             groupJson(u"a"_s, u"A"_s, {{u"displayOrder"_s, 2}}),
                             groupJson(u"b"_s, u"B"_s, {{u"displayOrder"_s, 1}})}));
    QCOMPARE(fixture.items(), QStringList({u"c: C (0), 0"_s, u"a: A (0), 0"_s, u"b: B (0), 0"_s}));
}

void TestGroupTreeCounts::groupsMayNestDeeply()
{
    GroupedWindow fixture;
    QList<QJsonObject> chain; // each group is listed before its parent
    for (int i = 20; i > 0; --i)
        chain.append(group(QString::number(i), u"G"_s, 0, i > 1 ? QString::number(i - 1) : QString()));
    QVERIFY(fixture.connect(chain));
    QCOMPARE(fixture.tree->topLevelItemCount(), 1);
    int depth = 0;
    for (const QTreeWidgetItem *item = fixture.tree->topLevelItem(0); item != nullptr; item = item->child(0)) {
        ++depth;
        QVERIFY(item->childCount() == 0 || item->isExpanded());
    }
    QCOMPARE(depth, 20);
}

void TestGroupTreeCounts::aRefusedListingEmptiesTheTreeWithoutABox()
{
    GroupedWindow fixture;
    QVERIFY(fixture.connect({group(u"a"_s, u"A"_s, 0)}));
    fixture.daemon.refuse(u"group.listByTaskType"_s, u"NO"_s, u"no"_s);
    ModalDriver driver;
    click(fixture.window.get(), "refreshGroupButton");
    QCOMPARE(fixture.items(), QStringList());
    QVERIFY2(driver.finished(), driver.problems());
}

void TestGroupTreeCounts::ungroupedIsNoSubjectOfTheGroupButtons()
{
    GroupedWindow fixture;
    QVERIFY(fixture.connect({group(u"ungrouped"_s, u"Loose"_s, 1), group(u"Ungrouped"_s, u"A group"_s, 0)}));
    const auto isEditable = [&fixture](int item) {
        fixture.tree->setCurrentItem(fixture.tree->topLevelItem(item));
        const bool edit = fixture.widget<QPushButton>("editGroupButton")->isEnabled();
        return edit && fixture.widget<QPushButton>("deleteGroupButton")->isEnabled();
    };
    QVERIFY(!isEditable(0));
    QCOMPARE(fixture.daemon.requests(u"task.listByGroupAndType"_s).last().value("payload"_L1)["groupId"_L1].toString(),
             u"ungrouped"_s);
    QVERIFY(isEditable(1)); // ids differ in case
    QVERIFY(!isEditable(0));
}

void TestGroupTreeCounts::aLostConnectionKeepsTheTreeAndItsCounts()
{
    GroupedWindow fixture;
    fixture.counts = {{u"a"_s, 1}};
    QVERIFY(fixture.connect({group(u"a"_s, u"A"_s, 7)}));
    // A drop that succeeds counts once more, even if the connection has gone since the answer.
    ModalDriver driver;
    fixture.daemon.whileWaiting(u"task.moveToGroup"_s, [&fixture] {
        fixture.daemon.release(u"task.moveToGroup"_s);
        fixture.window->onRefreshAuditLog(); // its answer comes after that of the drop
        fixture.daemon.stop();
        QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    });
    fixture.window->onTasksDroppedOnGroup({u"t1"_s}, u"a"_s);
    QVERIFY2(driver.finished(), driver.problems()); // no box, so that the drop has succeeded
    QCOMPARE(fixture.daemon.commands(), QStringList({u"task.moveToGroup"_s, u"audit.list"_s}));
    QCOMPARE(fixture.items(), QStringList({u"a: A (7), 7"_s}));
    fixture.window->onRefreshTaskList();
    fixture.window->onRefreshGroups();
    QCOMPARE(fixture.items(), QStringList({u"a: A (7), 7"_s}));
    fixture.setGroups({group(u"a"_s, u"A"_s, 8)});
    QVERIFY(fixture.daemon.listen());
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->connectionState(), ConnectionState::Connected, 10000);
    QTRY_COMPARE(fixture.items(), QStringList({u"a: A (8), 8"_s}));
    fixture.window->onRefreshTaskList();
    QCOMPARE(fixture.items(), QStringList({u"a: A (1), 1"_s}));
}

ORVEL_TEST_MAIN(QApplication, TestGroupTreeCounts)
#include "tst_grouptreecounts.moc"
