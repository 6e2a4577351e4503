#include "mcsgrouptreewidget.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QPushButton>
#include <QTableWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// The tree as indented lines of text.
QStringList lines(const QTreeWidget &tree)
{
    QStringList result;
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(&tree)); *it != nullptr; ++it) {
        int depth = 0;
        for (const QTreeWidgetItem *parent = (*it)->parent(); parent != nullptr; parent = parent->parent())
            ++depth;
        result.append(QString(depth, u'-') + (*it)->text(0));
    }
    return result;
}

} // namespace

/// Filling the tree, and what a rebuild clears, also when the user acts in the middle of one.
class TestGroupTree : public QObject {
    Q_OBJECT

private slots:
    void groupsStandUnderTheirParents();
    void anItemWithoutANameIsCalledByItsTextWithoutTheCount();
    void aBackgroundReplacesTheTintOfAGroup();
    void parentsThatFormACircleAreShownAllTheSame();
    void colorsTintTheItems_data();
    void colorsTintTheItems();
    void equalNamesAreMergedForAllTypes();
    void aRebuildClearsTheSelection();
    void aGroupSelectedDuringARebuildIsClearedToo();
    void aRebuildDuringARebuildLeavesEveryGroupOnce_data();
    void aRebuildDuringARebuildLeavesEveryGroupOnce();
    void countsFollowTheDaemonByGroup();
    void countsGoToTheItemThatBearsTheIdNow();
};

void TestGroupTree::groupsStandUnderTheirParents()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.setGroups({groupJson(u"c"_s, u"Child"_s, {{u"parentId"_s, u"p"_s}, {u"taskCount"_s, 2}}),
                       groupJson(u"p"_s, u"Parent (x)"_s), groupJson(u"o"_s, u"Orphan"_s, {{u"parentId"_s, u"?"_s}})});
    click(fixture.window.get(), "refreshGroupButton");
    const auto *tree = fixture.widget<MCsGroupTreeWidget>("groupTree");
    QCOMPARE(lines(*tree), QStringList({u"Parent (x) (0)"_s, u"-Child (2)"_s, u"Orphan (0)"_s}));
    QVERIFY(tree->topLevelItem(0)->isExpanded());
    QCOMPARE(MCsGroupTreeWidget::plainName(*tree->topLevelItem(0)), u"Parent (x)"_s);
}

void TestGroupTree::anItemWithoutANameIsCalledByItsTextWithoutTheCount()
{
    QTreeWidgetItem item({u"A (b) (4)"_s});
    QCOMPARE(MCsGroupTreeWidget::plainName(item), u"A"_s);
    item.setData(0, MCsGroupTreeWidget::GroupNameRole, u"A (b)"_s);
    QCOMPARE(MCsGroupTreeWidget::plainName(item), u"A (b)"_s);
}

void TestGroupTree::aBackgroundReplacesTheTintOfAGroup()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.setGroups({groupJson(u"a"_s, u"A"_s, {{u"color"_s, u"#ff0000"_s}})});
    click(fixture.window.get(), "refreshGroupButton");
    QTreeWidgetItem *item = fixture.widget<QTreeWidget>("groupTree")->topLevelItem(0);
    QCOMPARE(item->background(0).color(), QColor(255, 0, 0, 30));
    item->setBackground(0, QColor(Qt::blue));
    QCOMPARE(item->background(0).color(), QColor(Qt::blue));
    item->setBackground(0, QBrush());
    QCOMPARE(item->background(0).style(), Qt::NoBrush);
    QCOMPARE(item->foreground(0).color(), QColor(255, 0, 0));
}

void TestGroupTree::parentsThatFormACircleAreShownAllTheSame()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.setGroups({groupJson(u"a"_s, u"A"_s, {{u"parentId"_s, u"b"_s}}),
                       groupJson(u"b"_s, u"B"_s, {{u"parentId"_s, u"a"_s}}),
                       groupJson(u"s"_s, u"Self"_s, {{u"parentId"_s, u"s"_s}})});
    click(fixture.window.get(), "refreshGroupButton");
    QCOMPARE(lines(*fixture.widget<QTreeWidget>("groupTree")), QStringList({u"B (0)"_s, u"-A (0)"_s, u"Self (0)"_s}));
}

void TestGroupTree::colorsTintTheItems_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<bool>("tinted");
    QTest::newRow("hexadecimal") << u"#3498db"_s << true;
    QTest::newRow("a name") << u"red"_s << true;
    QTest::newRow("no colour") << u"#12"_s << false;
    QTest::newRow("markup") << u"red; background: url(x)"_s << false;
    QTest::newRow("empty") << QString() << false;
}

void TestGroupTree::colorsTintTheItems()
{
    QFETCH(QString, color);
    QFETCH(bool, tinted);
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.setGroups({groupJson(u"a"_s, u"A"_s, {{u"color"_s, color}})});
    click(fixture.window.get(), "refreshGroupButton");
    const QTreeWidgetItem *item = fixture.widget<QTreeWidget>("groupTree")->topLevelItem(0);
    QCOMPARE(item->foreground(0).style() != Qt::NoBrush, tinted);
    QCOMPARE(item->background(0).style() != Qt::NoBrush, tinted);
    if (tinted) {
        QCOMPARE(item->foreground(0).color(), QColor(color));
        QColor background(color);
        background.setAlpha(30);
        QCOMPARE(item->background(0).color(), background);
    }
}

void TestGroupTree::equalNamesAreMergedForAllTypes()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow(u"task_type.all"_s));
    fixture.setGroups({groupJson(u"2"_s, u"Work"_s, {{u"taskCount"_s, 3}}), groupJson(u"1"_s, u"Art"_s),
                       groupJson(u"3"_s, u"Work"_s, {{u"taskCount"_s, 4}}),
                       groupJson(u"4"_s, u"Child"_s, {{u"parentId"_s, u"3"_s}})});
    click(fixture.window.get(), "refreshGroupButton");
    const auto *tree = fixture.widget<QTreeWidget>("groupTree");
    QCOMPARE(lines(*tree), QStringList({u"Art (0)"_s, u"Child (0)"_s, u"Work (7)"_s}));
    QCOMPARE(tree->topLevelItem(2)->data(0, MCsGroupTreeWidget::GroupIdRole).toString(), u"2"_s);
}

void TestGroupTree::aRebuildClearsTheSelection()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    QVERIFY(fixture.widget<QPushButton>("editGroupButton")->isEnabled());
    QVERIFY(fixture.widget<QLabel>("taskCountLabel")->text().endsWith(u" (in Work)"_s));
    tree->topLevelItem(0)->setExpanded(false);
    click(fixture.window.get(), "refreshGroupButton");
    QVERIFY(tree->selectedItems().isEmpty());
    QVERIFY(!fixture.widget<QPushButton>("editGroupButton")->isEnabled());
    QVERIFY(!fixture.widget<QPushButton>("deleteGroupButton")->isEnabled());
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), u"Tasks: 2"_s);
}

void TestGroupTree::aGroupSelectedDuringARebuildIsClearedToo()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    // The cleared selection refreshes the table; while that waits, the user selects the group again.
    bool selected = false;
    fixture.daemon.onRequest(u"task.listByType"_s, [&](const QJsonObject &) {
        if (!std::exchange(selected, true))
            tree->topLevelItem(0)->setSelected(true);
    });
    click(fixture.window.get(), "refreshGroupButton");
    QVERIFY(selected);
    QCOMPARE(lines(*tree), QStringList({u"Work (0)"_s}));
    QVERIFY(tree->selectedItems().isEmpty());
    QVERIFY(!fixture.widget<QPushButton>("editGroupButton")->isEnabled());
    fixture.daemon.clearRequests();
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(fixture.daemon.commands().first(), u"task.listByType"_s); // no group is asked for
}

void TestGroupTree::aRebuildDuringARebuildLeavesEveryGroupOnce_data()
{
    QTest::addColumn<QString>("waiting");
    QTest::newRow("while the table follows the cleared selection") << u"task.listByType"_s;
    QTest::newRow("while the groups are listed") << u"group.listByTaskType"_s;
}

void TestGroupTree::aRebuildDuringARebuildLeavesEveryGroupOnce()
{
    QFETCH(QString, waiting);
    const QString groups = u"group.listByTaskType"_s;
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.timer("statusUpdateTimer")->stop();
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    qsizetype waitingAtOnce = 0;
    fixture.daemon.whileWaiting(waiting, [&] {
        fixture.daemon.whileWaiting(groups, [&] {
            waitingAtOnce = fixture.daemon.heldCount();
            fixture.daemon.release(waiting);
        });
        fixture.window->onRefreshGroups();
    });
    fixture.window->onRefreshGroups();
    QCOMPARE(waitingAtOnce, 2);
    QCOMPARE(lines(*tree), QStringList({u"Work (0)"_s}));
}

void TestGroupTree::countsFollowTheDaemonByGroup()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.daemon.answer(u"task.countByGroupAndType"_s, {{u"count"_s, 5}});
    fixture.daemon.clearRequests();
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(lines(*fixture.widget<QTreeWidget>("groupTree")), QStringList({u"Work (5)"_s}));
    QCOMPARE(fixture.daemon.requests(u"task.countByGroupAndType"_s).first().value("payload"_L1).toObject(),
             QJsonObject({{u"groupId"_s, u"g1"_s}, {u"taskType"_s, u"task_type.screen_record"_s}}));
}

void TestGroupTree::countsGoToTheItemThatBearsTheIdNow()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.setGroups({groupJson(u"g1"_s, u"One"_s), groupJson(u"g2"_s, u"Two"_s)});
    click(fixture.window.get(), "refreshGroupButton");
    fixture.daemon.respondWith(u"task.countByGroupAndType"_s, [](const QJsonObject &payload) {
        const int count = payload.value("groupId"_L1).toString() == "g1"_L1 ? 1 : 2;
        return QJsonObject{{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"count"_s, count}}}};
    });
    // Between the two requests the tree is rebuilt, in another order and without the first group.
    fixture.daemon.onRequest(u"task.countByGroupAndType"_s, [&fixture](const QJsonObject &) {
        fixture.daemon.onRequest(u"task.countByGroupAndType"_s, {});
        fixture.setGroups({groupJson(u"g3"_s, u"Three"_s), groupJson(u"g2"_s, u"Two"_s)});
        fixture.daemon.hold(u"task.countByGroupAndType"_s);
        QTimer::singleShot(0, fixture.window.get(), [&fixture] {
            fixture.window->onRefreshGroups();
            fixture.daemon.release(u"task.countByGroupAndType"_s);
        });
    });
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(lines(*fixture.widget<QTreeWidget>("groupTree")), QStringList({u"Three (0)"_s, u"Two (2)"_s}));
}

ORVEL_TEST_MAIN(QApplication, TestGroupTree)
#include "tst_grouptree.moc"
