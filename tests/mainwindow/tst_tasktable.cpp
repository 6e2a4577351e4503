#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QToolTip>
#include <QTreeWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

QList<QJsonObject> numberedTasks(int count)
{
    QList<QJsonObject> tasks;
    for (int i = 0; i < count; ++i)
        tasks.append(taskJson(u"t%1"_s.arg(i), u"Task %1"_s.arg(i)));
    return tasks;
}

QList<int> selectedRows(const QTableWidget &table)
{
    QList<int> rows;
    for (const QModelIndex &index : table.selectionModel()->selectedRows())
        rows.append(index.row());
    return rows;
}

QJsonObject payloadOfLast(const WindowFixture &fixture, const QString &cmd)
{
    return fixture.daemon.requests(cmd).last().value("payload"_L1).toObject();
}

} // namespace

/// Filling the table, its label and filter, and what a selection of rows governs.
class TestTaskTable : public QObject {
    Q_OBJECT

private slots:
    void showsATaskInItsFiveColumns();
    void showsTextsOfTheDaemonAsPlainText();
    void withoutAGroupAllTypesAreAskedFor();
    void aFilterTextAsksForThatType();
    void aGroupIsAskedForWithTheClientsType();
    void aFilterTextLimitsAGroupsTasks();
    void aFilterTextOfNoTypeEmptiesAGroupsTable();
    void theLabelTellsCountAndGroup();
    void theLabelNamesNoGroupWithoutACurrentItem();
    void aRefusedListingEmptiesTheTable();
    void aSelectionSurvivesByRowNumber();
    void aSelectionGovernsTheButtons();
    void anAnswerOfAnEarlierScopeIsDropped();
    void theFilterOffersTheClientsTypeOnly();
    void theFilterOffersEveryTypeToAnAllTypesManager();
    void theFilterOffersNoTypeThatTheDaemonDoesNotList();
    void rowsStayInTheDaemonsOrder();
    void rightClickingAndDoubleClickingARowDoNothing();
};

void TestTaskTable::showsATaskInItsFiveColumns()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    const QString when = QDateTime::currentDateTimeUtc().addSecs(90060 + 30).toString(Qt::ISODate);
    fixture.setTasks({taskJson(u"a"_s, u"One"_s, {{u"nextRunAt"_s, when}, {u"lastRunStatus"_s, u"success - 0"_s}}),
                      taskJson(u"b"_s, u"Two"_s, {{u"enabled"_s, false}, {u"type"_s, u"task_type.zentaDesk"_s}})});
    fixture.window->onRefreshTaskList();
    const auto *table = fixture.widget<QTableWidget>("taskTable");
    const auto texts = [table](int row) {
        QStringList result;
        for (int column = 0; column < table->columnCount(); ++column)
            result.append(table->item(row, column)->text());
        return result;
    };
    QCOMPARE(texts(0), QStringList({u"One"_s, u"Screen Recorder"_s, u"Enabled"_s, u"1d 1h left"_s, u"Success"_s}));
    QCOMPARE(texts(1), QStringList({u"Two"_s, u"Custom"_s, u"Disabled"_s, u"Not scheduled"_s, QString()}));
    QCOMPARE(table->item(0, 0)->data(Qt::UserRole).toString(), u"a"_s);
    QCOMPARE(table->item(0, 2)->foreground().color(), QColor(Qt::darkGreen));
    QCOMPARE(table->item(1, 2)->foreground().color(), QColor(Qt::gray));
    QCOMPARE(table->item(0, 4)->foreground().color(), QColor(Qt::darkGreen));
    QCOMPARE(table->item(0, 4)->toolTip(), u"Success"_s);
    QCOMPARE(table->item(1, 4)->foreground().color(), QColor(Qt::gray));
    for (const int column : {0, 1, 2, 3})
        QCOMPARE(table->item(0, column)->toolTip(), QString());
}

void TestTaskTable::showsTextsOfTheDaemonAsPlainText()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    const QString markup = u"<b>100% %1</b>"_s;
    fixture.setTasks({taskJson(u"a"_s, markup, {{u"lastRunStatus"_s, markup}})});
    fixture.window->onRefreshTaskList();
    auto *table = fixture.widget<QTableWidget>("taskTable");
    QCOMPARE(table->item(0, 0)->text(), markup);
    QCOMPARE(table->item(0, 4)->text(), markup);
    QCOMPARE(table->item(0, 4)->toolTip(), markup);

    const QPoint position = table->visualItemRect(table->item(0, 4)).center();
    QHelpEvent help(QEvent::ToolTip, position, table->viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(table->viewport(), &help);
    QVERIFY2(QToolTip::text().contains(u"&lt;b&gt;100% %1&lt;/b&gt;"_s), qPrintable(QToolTip::text()));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestTaskTable::withoutAGroupAllTypesAreAskedFor()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.daemon.clearRequests();
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(fixture.daemon.commands(),
             QStringList({u"task.listByType"_s, u"task.countByGroupAndType"_s, u"audit.list"_s}));
    QCOMPARE(payloadOfLast(fixture, u"task.listByType"_s), QJsonObject({{u"type"_s, u"task_type.all"_s}}));
}

void TestTaskTable::aFilterTextAsksForThatType()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *filter = fixture.widget<QComboBox>("typeFilterCombo");
    filter->addItem(u"Recorder <2>"_s, u"task_type.screen_record"_s);
    filter->setCurrentIndex(filter->count() - 1);
    fixture.window->onFilterByType(u"ignored"_s);
    QCOMPARE(payloadOfLast(fixture, u"task.listByType"_s), QJsonObject({{u"type"_s, u"Recorder <2>"_s}}));
}

void TestTaskTable::aGroupIsAskedForWithTheClientsType()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    fixture.daemon.clearRequests();
    tree->setCurrentItem(tree->topLevelItem(0));
    QCOMPARE(fixture.daemon.commands(), QStringList({u"task.listByGroupAndType"_s}));
    QCOMPARE(payloadOfLast(fixture, u"task.listByGroupAndType"_s),
             QJsonObject({{u"groupId"_s, u"g1"_s}, {u"taskType"_s, u"task_type.screen_record"_s}}));
}

void TestTaskTable::aFilterTextLimitsAGroupsTasks()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.setTasks(
        {taskJson(u"a"_s, u"A"_s, {{u"type"_s, u"x"_s}}), taskJson(u"b"_s, u"B"_s, {{u"type"_s, u"y"_s}})});
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 2);
    auto *filter = fixture.widget<QComboBox>("typeFilterCombo");
    filter->addItem(u"y"_s, u"another"_s); // the text counts, not the data
    filter->setCurrentIndex(filter->count() - 1);
    fixture.window->onRefreshTaskList();
    const auto *table = fixture.widget<QTableWidget>("taskTable");
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, 0)->text(), u"B"_s);
}

void TestTaskTable::aFilterTextOfNoTypeEmptiesAGroupsTable()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 2);
    auto *filter = fixture.widget<QComboBox>("typeFilterCombo");
    filter->addItem(u"Screen Recorder"_s, u"task_type.screen_record"_s); // the name of the tasks' type is no type
    filter->setCurrentIndex(filter->count() - 1);
    fixture.window->onRefreshTaskList();
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 0);
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), u"Tasks: 0 (in Work)"_s);
}

void TestTaskTable::theLabelTellsCountAndGroup()
{
    WindowFixture fixture;
    fixture.open();
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), u"Tasks: 0"_s);
    fixture.close();
    QVERIFY(fixture.connectWindow());
    const auto *label = fixture.widget<QLabel>("taskCountLabel");
    QCOMPARE(label->text(), u"Tasks: 2"_s);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    fixture.setGroups({groupJson(u"g1"_s, u"A (b) <i>%1</i>"_s)});
    click(fixture.window.get(), "refreshGroupButton");
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    QCOMPARE(label->text(), u"Tasks: 2 (in A (b) <i>%1</i>)"_s);
}

void TestTaskTable::theLabelNamesNoGroupWithoutACurrentItem()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    tree->setCurrentIndex(QModelIndex());
    tree->blockSignals(true);
    tree->topLevelItem(0)->setSelected(true);
    tree->blockSignals(false);
    fixture.window->onGroupSelectionChanged();
    QVERIFY(tree->currentItem() == nullptr);
    QCOMPARE(payloadOfLast(fixture, u"task.listByGroupAndType"_s).value("groupId"_L1).toString(), u"g1"_s);
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), u"Tasks: 2"_s);
}

void TestTaskTable::aRefusedListingEmptiesTheTable()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.daemon.refuse(u"task.listByType"_s, u"NO"_s, u"no"_s);
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(fixture.widget<QTableWidget>("taskTable")->rowCount(), 0);
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), u"Tasks: 0"_s);
}

void TestTaskTable::aSelectionSurvivesByRowNumber()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.setTasks(numberedTasks(8));
    click(fixture.window.get(), "refreshButton");
    auto *table = fixture.widget<QTableWidget>("taskTable");
    table->setRangeSelected({5, 0, 6, table->columnCount() - 1}, true);
    QList<QJsonObject> fewer = numberedTasks(6);
    fewer.move(0, 5);
    fixture.setTasks(fewer);
    click(fixture.window.get(), "refreshButton");
    QCOMPARE(selectedRows(*table), QList<int>({5}));
    QCOMPARE(table->item(5, 0)->text(), u"Task 0"_s);
}

void TestTaskTable::aSelectionGovernsTheButtons()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    const auto enabled = [&fixture] {
        QList<bool> states;
        for (const char *name : {"editButton", "deleteButton", "triggerButton", "createButton"})
            states.append(fixture.widget<QPushButton>(name)->isEnabled());
        return states;
    };
    auto *table = fixture.widget<QTableWidget>("taskTable");
    QCOMPARE(enabled(), QList<bool>({false, false, false, true}));
    table->selectAll();
    QCOMPARE(enabled(), QList<bool>({true, true, true, true}));
    QCOMPARE(table->selectedItems().size(), 2 * table->columnCount());
    table->clearSelection();
    QCOMPARE(enabled(), QList<bool>({false, false, false, true}));
}

void TestTaskTable::anAnswerOfAnEarlierScopeIsDropped()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *tree = fixture.widget<QTreeWidget>("groupTree");
    fixture.daemon.answer(u"task.listByGroupAndType"_s, {{u"tasks"_s, toArray(numberedTasks(1))}});
    // While the whole list is on its way, the user selects a group.
    bool selected = false;
    fixture.daemon.onRequest(u"task.listByType"_s, [&](const QJsonObject &) {
        if (std::exchange(selected, true))
            return;
        fixture.daemon.hold(u"task.listByType"_s);
        QTimer::singleShot(0, fixture.window.get(), [&] {
            tree->setCurrentItem(tree->topLevelItem(0));
            fixture.daemon.release(u"task.listByType"_s);
        });
    });
    fixture.window->onRefreshTaskList();
    const auto *table = fixture.widget<QTableWidget>("taskTable");
    QVERIFY(selected);
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, 0)->text(), u"Task 0"_s);
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), u"Tasks: 1 (in Work)"_s);
}

namespace {

void listTypes(WindowFixture &fixture)
{
    const auto type = [](const QString &id, const QString &name) {
        return QJsonObject{{u"type"_s, id}, {u"name"_s, name}};
    };
    fixture.daemon.answer(u"tasktype.list"_s,
                          {{u"taskTypes"_s, toArray({type(u"task_type.b"_s, u"B"_s),
                                                     type(u"task_type.screen_record"_s, u"Recorder of the daemon"_s),
                                                     type(u"task_type.a"_s, u"A"_s)})}});
}

QStringList filterItems(const WindowFixture &fixture)
{
    const auto *filter = fixture.widget<QComboBox>("typeFilterCombo");
    QStringList items;
    for (int i = 0; i < filter->count(); ++i)
        items.append(filter->itemText(i) + u'|' + filter->itemData(i).toString());
    return items;
}

} // namespace

void TestTaskTable::theFilterOffersTheClientsTypeOnly()
{
    WindowFixture fixture;
    listTypes(fixture);
    QVERIFY(fixture.connectWindow());
    QCOMPARE(filterItems(fixture), QStringList({u"All Types|"_s, u"Recorder of the daemon|task_type.screen_record"_s}));
    QVERIFY(!fixture.widget<QComboBox>("typeFilterCombo")->itemData(0).isValid());
    QVERIFY(fixture.widget<QComboBox>("typeFilterCombo")->isHidden());
}

void TestTaskTable::theFilterOffersEveryTypeToAnAllTypesManager()
{
    WindowFixture fixture;
    listTypes(fixture);
    QVERIFY(fixture.connectWindow(u"task_type.all"_s));
    QCOMPARE(filterItems(fixture),
             QStringList({u"All Types|"_s, u"B|task_type.b"_s, u"Recorder of the daemon|task_type.screen_record"_s,
                          u"A|task_type.a"_s}));
}

void TestTaskTable::theFilterOffersNoTypeThatTheDaemonDoesNotList()
{
    WindowFixture fixture;
    listTypes(fixture);
    QVERIFY(fixture.connectWindow(u"task_type.test"_s));
    QCOMPARE(filterItems(fixture), QStringList({u"All Types|"_s}));
}

void TestTaskTable::rowsStayInTheDaemonsOrder()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    fixture.setTasks({taskJson(u"b"_s, u"b"_s), taskJson(u"a"_s, u"a"_s), taskJson(u"c"_s, u"c"_s)});
    click(fixture.window.get(), "refreshButton");
    auto *table = fixture.widget<QTableWidget>("taskTable");
    QVERIFY(!table->isSortingEnabled());
    QTest::mouseClick(table->horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(table->item(0, 0)->text(), u"b"_s);
    QCOMPARE(table->item(2, 0)->text(), u"c"_s);
}

void TestTaskTable::rightClickingAndDoubleClickingARowDoNothing()
{
    WindowFixture fixture;
    QVERIFY(fixture.connectWindow());
    auto *table = fixture.widget<QTableWidget>("taskTable");
    fixture.timer("statusUpdateTimer")->stop();
    fixture.daemon.clearRequests();
    const QPoint position = table->visualItemRect(table->item(0, 0)).center();
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, position);
    QTest::mouseClick(table->viewport(), Qt::RightButton, {}, position);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, position, table->viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(table->viewport(), &menu);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

ORVEL_TEST_MAIN(QApplication, TestTaskTable)
#include "tst_tasktable.moc"
