#include "commandfixture.h"
#include "endurance.h"
#include "mcsschedulerclient.h"
#include "testmain.h"

#include <QApplication>
#include <QDateTime>
#include <QTextEdit>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// Rows whose texts differ from set to set.
QList<QJsonObject> rows(int count, int set)
{
    QList<QJsonObject> result;
    for (int row = 0; row < count; ++row) {
        const QJsonObject more{
            {u"enabled"_s, (row + set) % 2 == 0},
            {u"lastRunStatus"_s, set % 2 == 0 ? u"success"_s : u"failed - disk"_s},
            {u"nextRunAt"_s, QDateTime::currentDateTimeUtc().addSecs(row * 60).toString(Qt::ISODate)}};
        result.append(taskJson(u"t%1"_s.arg(row), u"Task %1 of set %2"_s.arg(row).arg(set), more));
    }
    return result;
}

QJsonObject entries(int count)
{
    QJsonArray array;
    for (int entry = 0; entry < count; ++entry)
        array.append(QJsonObject{{u"id"_s, entry},
                                 {u"action"_s, u"task.trigger"_s},
                                 {u"entityName"_s, u"Task %1"_s.arg(entry)},
                                 {u"result"_s, entry % 3 != 0},
                                 {u"createdAt"_s, u"2026-01-01T12:00:00Z"_s}});
    return {{u"logs"_s, array}};
}

} // namespace

/// A long life of the main window with a daemon that answers.
class TestRefreshCycles : public QObject {
    Q_OBJECT

private slots:
    void refreshingRowsOfChangingLengthLeavesNothingBehind();
    void rebuildingTheTreeLeavesNothingBehind();
    void aDayOfTicksLeavesNothingBehind();
};

void TestRefreshCycles::refreshingRowsOfChangingLengthLeavesNothingBehind()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    const QList<int> lengths{1000, 900, 1100, 1, 1000, 0, 500};
    QList<QList<QJsonObject>> sets;
    for (const int length : lengths)
        sets.append(rows(length, static_cast<int>(sets.size())));
    Endurance endurance(u"refresh of a thousand rows"_s, 1001, 21, {fixture.window.get()});
    // One set of rows that stayed would be more than that.
    endurance.allow({160 * 1024, 16});
    endurance.run([&](int cycle) {
        const qsizetype set = cycle % sets.size();
        fixture.setTasks(sets.at(set));
        fixture.daemon.answer(u"audit.list"_s, entries(cycle % 150));
        click(fixture.window.get(), "refreshButton");
        QCOMPARE(fixture.table()->rowCount(), sets.at(set).size());
        fixture.daemon.clearRequests();
        // The footprints are taken with one and the same table and log.
        fixture.setTasks(sets.last());
        fixture.window->onFilterByType({});
        fixture.daemon.answer(u"audit.list"_s, entries(1));
        fixture.window->onRefreshAuditLog();
        fixture.daemon.clearRequests();
    });
    endurance.verify();
}

void TestRefreshCycles::rebuildingTheTreeLeavesNothingBehind()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    Endurance endurance(u"rebuild of the group tree"_s, 1000, 100, {fixture.window.get()});
    endurance.run([&](int cycle) {
        QList<QJsonObject> groups;
        for (int group = 0; group <= cycle % 50; ++group)
            groups.append(groupJson(u"g%1"_s.arg(group), u"Group %1"_s.arg(group),
                                    {{u"parentId"_s, group % 5 == 0 ? QString() : u"g0"_s}}));
        fixture.setGroups(groups);
        click(fixture.window.get(), "refreshGroupButton");
        fixture.selectGroup(0);
        fixture.setGroups({groupJson(u"g1"_s, u"Work"_s)});
        click(fixture.window.get(), "refreshGroupButton");
        QCOMPARE(fixture.tree()->topLevelItemCount(), 1);
        fixture.daemon.clearRequests();
    });
    endurance.verify();
}

void TestRefreshCycles::aDayOfTicksLeavesNothingBehind()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    const QList<QList<QJsonObject>> sets{rows(20, 0), rows(20, 1)};
    fixture.setTasks(sets.first());
    fixture.window->onRefreshTaskList();
    fixture.daemon.answer(u"audit.list"_s, entries(100));
    Endurance endurance(u"tick of the one-second update"_s, 20000, 800, {fixture.window.get()});
    const auto *view = fixture.widget<QTextEdit>("logView");
    int ticks = 0;
    endurance.run([&](int cycle) {
        constexpr int changeEvery = 30;
        constexpr int logEvery = 100;
        if (cycle % changeEvery == 0)
            fixture.setTasks(sets.at(cycle / changeEvery % sets.size()));
        fixture.window->onUpdateTaskStatus();
        ticks += static_cast<int>(fixture.daemon.requests(u"task.listByType"_s).size());
        if (cycle % logEvery == 0)
            fixture.window->onAuditLogAutoRefresh();
        fixture.daemon.clearRequests();
    });
    endurance.verify();
    QVERIFY(ticks >= (isFullRun() ? 20000 : 800)); // each has asked
    QVERIFY(!view->toPlainText().isEmpty());
    QVERIFY(view->document()->blockCount() <= 100);
}

ORVEL_TEST_MAIN(QApplication, TestRefreshCycles)
#include "tst_refreshcycles.moc"
