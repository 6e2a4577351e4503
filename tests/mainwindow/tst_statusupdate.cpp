#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QDateTime>
#include <QSignalSpy>
#include <QTableWidget>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

QString inSeconds(qint64 seconds)
{
    return QDateTime::currentDateTimeUtc().addSecs(seconds).toString(Qt::ISODate);
}

/// A connected window whose own ticks are off; tests tick by hand.
class TickedWindow : public WindowFixture {
public:
    bool connect()
    {
        if (!connectWindow())
            return false;
        timer("statusUpdateTimer")->stop();
        table = widget<QTableWidget>("taskTable");
        daemon.clearRequests();
        return table != nullptr;
    }
    void tick()
    {
        window->onUpdateTaskStatus();
    }
    [[nodiscard]] QString text(int row, int column) const
    {
        return table->item(row, column)->text();
    }

    QTableWidget *table = nullptr;
};

} // namespace

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int paints = 0;
};

/// The one-second update of the columns that change by themselves.
class TestStatusUpdate : public QObject {
    Q_OBJECT

private slots:
    void runsEachSecondForTheWindowsLifetime();
    void countsDownWhileNothingElseHappens();
    void updatesStatusCountdownAndOutcomeOnly();
    void repaintsOnlyWhatChanged();
    void keepsSelectionAndRows();
    void anEmptyTableAsksNothing();
    void aDisconnectedWindowAsksNothing();
    void aTickThatFindsThePreviousOneWaitingDoesNothing();
    void writesIntoTheRowThatBearsTheIdNow();
    void ofTwoRowsWithOneIdTheLaterIsUpdated();
    void cellsWithoutAnItemAreSkipped();
    void aFailedListingChangesNothing();
};

void TestStatusUpdate::runsEachSecondForTheWindowsLifetime()
{
    WindowFixture fixture;
    fixture.open();
    QVERIFY(fixture.timer("statusUpdateTimer")->isActive());
    QCOMPARE(fixture.timer("statusUpdateTimer")->interval(), 1000);
}

void TestStatusUpdate::countsDownWhileNothingElseHappens()
{
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    fixture.setTasks({taskJson(u"t1"_s, u"One"_s, {{u"nextRunAt"_s, inSeconds(50)}})});
    fixture.open();
    auto *table = fixture.widget<QTableWidget>("taskTable");
    QTRY_COMPARE(table->rowCount(), 1);
    const QString first = table->item(0, 3)->text();
    QVERIFY2(first.endsWith(u"s left"_s), qPrintable(first));
    QTRY_VERIFY(table->item(0, 3)->text() != first);
    QVERIFY(table->item(0, 3)->text().chopped(6).toInt() < first.chopped(6).toInt());
}

void TestStatusUpdate::updatesStatusCountdownAndOutcomeOnly()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    const QString label = fixture.widget<QLabel>("taskCountLabel")->text();
    fixture.setTasks({taskJson(u"unknown"_s, u"New"_s), taskJson(u"t2"_s, u"Renamed"_s,
                                                                 {{u"enabled"_s, false},
                                                                  {u"type"_s, u"task_type.test"_s},
                                                                  {u"nextRunAt"_s, inSeconds(-5)},
                                                                  {u"lastRunStatus"_s, u"failed - <b>disk</b>"_s}})});
    fixture.tick();
    QCOMPARE(fixture.daemon.commands(), QStringList({u"task.listByType"_s}));
    QCOMPARE(fixture.daemon.requests().first().value("payload"_L1).toObject(),
             QJsonObject({{u"type"_s, u"task_type.screen_record"_s}}));
    QCOMPARE(fixture.table->rowCount(), 2);
    QCOMPARE(fixture.text(1, 0), u"Two"_s);
    QCOMPARE(fixture.text(1, 1), u"Screen Recorder"_s);
    QCOMPARE(fixture.text(1, 2), u"Disabled"_s);
    QCOMPARE(fixture.table->item(1, 2)->foreground().color(), QColor(Qt::gray));
    QCOMPARE(fixture.text(1, 3), u"Overdue"_s);
    QCOMPARE(fixture.text(1, 4), u"Failed"_s);
    QCOMPARE(fixture.table->item(1, 4)->foreground().color(), QColor(Qt::red));
    QCOMPARE(fixture.table->item(1, 4)->toolTip(), u"Failed"_s);
    QCOMPARE(fixture.text(0, 2), u"Enabled"_s); // listed no more, and left as it was
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), label);
}

void TestStatusUpdate::repaintsOnlyWhatChanged()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    QCoreApplication::processEvents();
    PaintCounter counter;
    fixture.table->viewport()->installEventFilter(&counter);
    const QTableWidgetItem *item = fixture.table->item(1, 4);
    fixture.tick();
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, 0);
    fixture.setTasks({taskJson(u"t1"_s, u"One"_s), taskJson(u"t2"_s, u"Two"_s, {{u"lastRunStatus"_s, u"pending"_s}})});
    fixture.tick();
    QTRY_COMPARE(counter.paints, 1); // for the whole row, not for each of its cells
    QCOMPARE(fixture.table->item(1, 4), item);
    QCOMPARE(item->text(), u"Pending"_s);
    QCOMPARE(item->toolTip(), u"Pending"_s);
}

void TestStatusUpdate::keepsSelectionAndRows()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.table->selectRow(1);
    fixture.setTasks({taskJson(u"t2"_s, u"Two"_s, {{u"enabled"_s, false}})});
    QSignalSpy selection(fixture.table, &QTableWidget::itemSelectionChanged);
    const QTableWidgetItem *item = fixture.table->item(1, 2);
    fixture.tick();
    QCOMPARE(fixture.table->item(1, 2), item);
    QCOMPARE(item->text(), u"Disabled"_s);
    QCOMPARE(selection.size(), 0);
    QCOMPARE(fixture.table->selectedItems().size(), fixture.table->columnCount());
}

void TestStatusUpdate::anEmptyTableAsksNothing()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.table->setRowCount(0);
    fixture.tick();
    QCOMPARE(fixture.daemon.commands(), QStringList());
    fixture.table->setRowCount(2); // rows without an item
    fixture.tick();
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestStatusUpdate::aDisconnectedWindowAsksNothing()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.stop();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
    fixture.tick();
    QCOMPARE(fixture.daemon.commands(), QStringList());
    QCOMPARE(fixture.text(0, 0), u"One"_s);
}

void TestStatusUpdate::aTickThatFindsThePreviousOneWaitingDoesNothing()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.hold(u"task.listByType"_s);
    int ticks = 0;
    QTimer more;
    QObject::connect(&more, &QTimer::timeout, fixture.window.get(), [&] {
        fixture.tick();
        if (++ticks == 5)
            fixture.daemon.release(u"task.listByType"_s);
    });
    more.start(1);
    fixture.tick();
    more.stop();
    QVERIFY(ticks >= 5);
    QCOMPARE(fixture.daemon.commands().size(), 1);
    fixture.tick();
    QCOMPARE(fixture.daemon.commands().size(), 2);
}

void TestStatusUpdate::writesIntoTheRowThatBearsTheIdNow()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    // While the tick waits the rows change places.
    fixture.daemon.onRequest(u"task.listByType"_s, [&fixture](const QJsonObject &) {
        fixture.daemon.onRequest(u"task.listByType"_s, {});
        for (int column = 0; column < fixture.table->columnCount(); ++column) {
            QTableWidgetItem *first = fixture.table->takeItem(0, column);
            fixture.table->setItem(0, column, fixture.table->takeItem(1, column));
            fixture.table->setItem(1, column, first);
        }
    });
    fixture.setTasks({taskJson(u"t1"_s, u"One"_s, {{u"enabled"_s, false}})});
    fixture.tick();
    QCOMPARE(fixture.text(0, 2), u"Enabled"_s);
    QCOMPARE(fixture.text(1, 2), u"Disabled"_s);
}

void TestStatusUpdate::ofTwoRowsWithOneIdTheLaterIsUpdated()
{
    TickedWindow fixture;
    fixture.setTasks({taskJson(u"t2"_s, u"One"_s), taskJson(u"t2"_s, u"Two"_s)});
    QVERIFY(fixture.connect());
    fixture.setTasks({taskJson(u"t2"_s, u"Two"_s, {{u"enabled"_s, false}})});
    fixture.tick();
    QCOMPARE(fixture.text(0, 2), u"Enabled"_s);
    QCOMPARE(fixture.text(1, 2), u"Disabled"_s);
}

void TestStatusUpdate::cellsWithoutAnItemAreSkipped()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    for (const int column : {2, 3, 4})
        delete fixture.table->takeItem(0, column);
    delete fixture.table->takeItem(1, 0);
    fixture.tick();
    for (const int column : {2, 3, 4})
        QVERIFY(fixture.table->item(0, column) == nullptr);
}

void TestStatusUpdate::aFailedListingChangesNothing()
{
    TickedWindow fixture;
    QVERIFY(fixture.connect());
    fixture.daemon.refuse(u"task.listByType"_s, u"NO"_s, u"no"_s);
    fixture.tick();
    QCOMPARE(fixture.table->rowCount(), 2);
    QCOMPARE(fixture.text(1, 2), u"Enabled"_s);
}

ORVEL_TEST_MAIN(QApplication, TestStatusUpdate)
#include "tst_statusupdate.moc"
