#include "benchtable.h"
#include "benchwindow.h"
#include "canneddaemon.h"
#include "handexchange.h"
#include "mcsschedulerclient.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTableWidget>
#include <QTextEdit>
#include <QTreeWidget>

#include <limits>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

constexpr int columns = 5;

/// Paints what waits for it, and no more.
void paint()
{
    QCoreApplication::sendPostedEvents();
}

/// A table of ready texts, as the floor of filling one.
class BareTable {
public:
    explicit BareTable(int rows)
        : m_rows(rows)
    {
        m_table.setColumnCount(columns);
        m_table.resize(760, 400);
        m_table.show();
    }

    void fill()
    {
        m_table.setRowCount(m_rows);
        for (int row = 0; row < m_rows; ++row) {
            for (int column = 0; column < columns; ++column)
                m_table.setItem(row, column, new QTableWidgetItem(u"some ready text"_s));
        }
        paint();
    }

private:
    int m_rows;
    QTableWidget m_table;
};

Measured tableRefresh()
{
    const DaemonProcess daemon({.tasks = 10000});
    BenchWindow window;
    HandExchange hand;
    BareTable bare(10000);
    return timePair(
        [&] {
            const QJsonObject answer = hand.ask(u"task.listByType"_s);
            bare.fill();
        },
        [&] {
            window.window().onFilterByType({});
            paint();
        });
}

Measured statusUpdate(bool moving)
{
    const DaemonProcess daemon({.tasks = 10000, .moving = moving});
    BenchWindow window;
    Scheduler::MCsSchedulerClient client;
    client.setClientType(benchTaskType);
    if (!client.connectToDaemon())
        return {};
    return timePair([&] { (void)client.listTasks(); },
                    [&] {
                        window.window().onUpdateTaskStatus();
                        paint();
                    });
}

Measured withTenTimesTheTasks(void (*work)(BenchWindow &))
{
    const DaemonProcess fewer({.tasks = 10000, .moving = true});
    BenchWindow few;
    const DaemonProcess more({.tasks = 100000, .moving = true});
    BenchWindow many;
    const auto *client = many.window().findChild<Scheduler::MCsSchedulerClient *>();
    bool late = false;
    const Measured measured = timePair([&] { work(few); },
                                       [&] {
                                           work(many);
                                           late = late || !client->lastErrorCode().isEmpty();
                                       });
    // An answer that takes longer than a request may changes nothing, which is fast and no merit.
    return late ? Measured{measured.floor, std::numeric_limits<double>::infinity()} : measured;
}

void refreshTable(BenchWindow &window)
{
    window.window().onFilterByType({});
    paint();
}

void updateStatuses(BenchWindow &window)
{
    window.window().onUpdateTaskStatus();
    paint();
}

// The window offers the counts only along with a table and a log, which are empty here: two exchanges more.
Measured groupCounts()
{
    const DaemonProcess daemon({.groups = 500});
    BenchWindow window;
    HandExchange hand;
    const QJsonObject payload{{u"groupId"_s, u"group-1"_s}, {u"taskType"_s, benchTaskType}};
    return timePair(
        [&] {
            for (int i = 0; i < 502; ++i)
                (void)hand.ask(u"task.countByGroupAndType"_s, payload);
        },
        [&] { window.window().onRefreshTaskList(); });
}

void buildBareTree(QTreeWidget &tree, const QJsonArray &groups)
{
    tree.clear();
    QTreeWidgetItem *last = nullptr;
    for (const QJsonValue &group : groups) {
        auto *item = new QTreeWidgetItem({u"Group number (3)"_s});
        if (last == nullptr || group.toObject().value("parentId"_L1).toString().isEmpty())
            tree.addTopLevelItem(item);
        else
            last->addChild(item);
        last = item;
    }
    tree.expandAll();
    paint();
}

Measured groupTree()
{
    const DaemonProcess daemon({.groups = 2000, .equalNames = 200, .depth = 4});
    BenchWindow window(u"task_type.all"_s);
    HandExchange hand;
    QTreeWidget tree;
    tree.resize(180, 590);
    tree.show();
    return timePair(
        [&] {
            const QJsonObject answer = hand.ask(u"group.listByTaskType"_s);
            buildBareTree(tree, answer.value("data"_L1).toObject().value("groups"_L1).toArray());
        },
        [&] {
            window.window().onRefreshGroups();
            paint();
        });
}

Measured activityLog()
{
    const DaemonProcess daemon({.auditEntries = 100});
    BenchWindow window;
    window.window().onRefreshAuditLog();
    const QString html = window.log()->toHtml();
    QTextEdit bare;
    bare.resize(window.log()->size());
    bare.show();
    return timePair(
        [&] {
            bare.setHtml(html);
            paint();
        },
        [&] {
            window.window().onRefreshAuditLog();
            paint();
        });
}

} // namespace

QList<Row> windowRows()
{
    const QString ours = u"ours with 10,000 tasks"_s;
    return {{u"refreshTaskTable, 10,000 tasks, request to painted rows"_s,
             u"the exchange by hand, parsing, filling a bare QTableWidget with ready items and painting it"_s, 1.3,
             tableRefresh},
            {u"One-second update, 10,000 tasks, all countdowns moved"_s, u"listTasks"_s, 1.25,
             [] { return statusUpdate(true); }},
            {u"One-second update, 10,000 tasks, nothing changed"_s, u"listTasks"_s, 1.1,
             [] { return statusUpdate(false); }},
            {u"refreshTaskTable, 100,000 tasks"_s, ours, 11, [] { return withTenTimesTheTasks(refreshTable); }},
            {u"One-second update, 100,000 tasks"_s, ours, 11, [] { return withTenTimesTheTasks(updateStatuses); }},
            {u"updateGroupTaskCounts, 500 groups"_s, u"as many exchanges by hand"_s, 1.3, groupCounts},
            {u"refreshGroupTree, 2,000 groups four deep, 200 equal names"_s,
             u"the exchange by hand, parsing, building the bare tree and painting it"_s, 1.5, groupTree},
            {u"refreshAuditLog, 100 entries"_s, u"one setHtml of the same text, painted"_s, 2, activityLog}};
}

} // namespace Bench
