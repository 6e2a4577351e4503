#include "mcstasktablewidget.h"
#include "testmain.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QTranslator>

#include <memory>
#include <optional>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace {

constexpr int cellsInRow = 5;

/// A table whose drag starts without a mouse, with one row per id.
class DraggedTable : public MCsTaskTableWidget {
public:
    explicit DraggedTable(const QStringList &ids)
    {
        setColumnCount(cellsInRow);
        setRowCount(static_cast<int>(ids.size()));
        for (int row = 0; row < rowCount(); ++row) {
            for (int column = 0; column < cellsInRow; ++column)
                setItem(row, column, new QTableWidgetItem(u"cell"_s));
            item(row, 0)->setData(Qt::UserRole, ids.at(row));
        }
    }
    using MCsTaskTableWidget::startDrag;
};

/// What a drag offers.
struct Offer {
    QStringList formats;
    QByteArray payload;
    QPixmap image;
    QPoint hotSpot;
    Qt::DropActions actions;
    const QObject *source = nullptr;
};

/// Starts a drag, which ends at once here: there is no window system to carry it. Nothing when none started.
std::optional<Offer> drag(DraggedTable &table)
{
    table.startDrag(Qt::CopyAction | Qt::LinkAction);
    const std::unique_ptr<const QDrag> drag(table.findChild<QDrag *>()); // it would go with the next event loop
    if (drag == nullptr)
        return std::nullopt;
    const QMimeData *data = drag->mimeData();
    return Offer{data->formats(),          data->data(u"application/x-scheduler-taskids"_s),
                 drag->pixmap(),           drag->hotSpot(),
                 drag->supportedActions(), drag->source()};
}

/// Stands in for a catalogue: notes what is asked for, and gives one text for everything.
class FixedTranslator : public QTranslator {
public:
    explicit FixedTranslator(const QString &text)
        : m_text(text)
    {
        QCoreApplication::installTranslator(this);
    }
    [[nodiscard]] QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                                    int n) const override
    {
        asked.append(u"%1|%2|%3"_s.arg(QString::fromLatin1(context), QString::fromLatin1(source), QString::number(n)));
        return m_text;
    }
    [[nodiscard]] bool isEmpty() const override
    {
        return false;
    }

    mutable QStringList asked;

private:
    QString m_text;
};

/// The box around the dark pixels of an image, which are its text's.
QRect textBox(const QImage &image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (const QColor color = image.pixelColor(x, y); color.alpha() > 200 && color.blue() < 100)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

/// What a drag out of the task table carries and shows.
class TestDragPayload : public QObject {
    Q_OBJECT

private slots:
    void selectedRowsGiveTheirIdsOnce_data();
    void selectedRowsGiveTheirIdsOnce();
    void idsStandInTheOrderOfTheSelection();
    void rowsWithoutAFirstItemAreLeftOut();
    void noDragStartsWithoutIds();
    void theDragOffersItsOneFormatAndNothingButAMove();
    void theImageIsARoundedPlate();
    void theImageTellsTheCountInTheMiddle();
    void theCountGoesThroughTheCatalogue();
    void theTableKeepsItsRows();
};

void TestDragPayload::selectedRowsGiveTheirIdsOnce_data()
{
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QByteArray>("payload");
    QTest::newRow("one row") << QStringList{u"a"_s} << QByteArray("a");
    QTest::newRow("two rows of five cells each") << QStringList{u"a"_s, u"b"_s} << QByteArray("a,b");
    QTest::newRow("an id that two rows bear") << QStringList{u"a"_s, u"b"_s, u"a"_s} << QByteArray("a,b");
    QTest::newRow("ids that differ in case") << QStringList{u"a"_s, u"A"_s} << QByteArray("a,A");
    QTest::newRow("a row without an id") << QStringList{u"a"_s, QString(), u"b"_s} << QByteArray("a,b");
    QTest::newRow("not Latin") << QStringList{u"\u00fc"_s, u"\u6f22"_s} << QByteArray("\xc3\xbc,\xe6\xbc\xa2");
    QTest::newRow("blanks and percent signs") << QStringList{u" a b "_s, u"%1"_s} << QByteArray(" a b ,%1");
}

void TestDragPayload::selectedRowsGiveTheirIdsOnce()
{
    QFETCH(QStringList, ids);
    DraggedTable table(ids);
    table.selectAll();
    QCOMPARE(table.selectedItems().size(), ids.size() * cellsInRow);
    const auto offer = drag(table);
    QVERIFY(offer.has_value());
    QTEST(offer->payload, "payload");
}

void TestDragPayload::idsStandInTheOrderOfTheSelection()
{
    DraggedTable table({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    for (const int row : {3, 0, 2})
        table.selectionModel()->select(table.model()->index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QStringList rows; // in the order in which the table lists its selected cells
    for (const QTableWidgetItem *cell : table.selectedItems()) {
        if (cell->column() == 0)
            rows.append(table.item(cell->row(), 0)->data(Qt::UserRole).toString());
    }
    QCOMPARE(rows.size(), 3);
    QVERIFY(rows != QStringList({u"a"_s, u"c"_s, u"d"_s})); // it is not the order of the rows
    const auto offer = drag(table);
    QVERIFY(offer.has_value());
    QCOMPARE(offer->payload, rows.join(u',').toUtf8());
}

void TestDragPayload::rowsWithoutAFirstItemAreLeftOut()
{
    DraggedTable table({u"a"_s, u"b"_s});
    delete table.takeItem(0, 0);
    table.selectAll();
    const auto offer = drag(table);
    QVERIFY(offer.has_value());
    QCOMPARE(offer->payload, QByteArray("b"));
}

void TestDragPayload::noDragStartsWithoutIds()
{
    DraggedTable table({u"a"_s, QString()});
    QVERIFY(!drag(table).has_value()); // nothing selected
    table.selectRow(1);
    QVERIFY(!drag(table).has_value()); // no id
    delete table.takeItem(0, 0);
    table.selectAll();
    QVERIFY(!drag(table).has_value()); // no item
}

void TestDragPayload::theDragOffersItsOneFormatAndNothingButAMove()
{
    DraggedTable table({u"a"_s});
    table.selectAll();
    const auto offer = drag(table);
    QVERIFY(offer.has_value());
    QCOMPARE(offer->formats, QStringList({u"application/x-scheduler-taskids"_s}));
    QCOMPARE(offer->actions, Qt::DropActions(Qt::MoveAction)); // whatever the view asks for
    QCOMPARE(offer->source, &table);
    QCOMPARE(offer->hotSpot, QPoint(60, 15));
}

void TestDragPayload::theImageIsARoundedPlate()
{
    const FixedTranslator blank(u" "_s);
    DraggedTable table({u"a"_s});
    table.selectAll();
    const auto offer = drag(table);
    QVERIFY(offer.has_value());
    const QImage image = offer->image.toImage();
    QCOMPARE(image.size(), QSize(120, 30));
    for (const QPoint inside : {QPoint(60, 15), QPoint(0, 15), QPoint(118, 15), QPoint(60, 0), QPoint(60, 28),
                                QPoint(3, 3), QPoint(115, 3), QPoint(3, 25), QPoint(115, 25)})
        QCOMPARE(image.pixelColor(inside).name(QColor::HexArgb), u"#c8c8c8ff"_s);
    for (const QPoint outside : {QPoint(119, 15), QPoint(60, 29), QPoint(0, 0), QPoint(118, 0), QPoint(0, 28)})
        QCOMPARE(image.pixelColor(outside).alpha(), 0);
    const int edge = image.pixelColor(1, 1).alpha(); // smoothed
    QVERIFY2(edge > 0 && edge < 200, QByteArray::number(edge));
}

void TestDragPayload::theImageTellsTheCountInTheMiddle()
{
    const MCsTaskTableWidget table;
    const QImage one = table.dragImage(1).toImage();
    QVERIFY(one != table.dragImage(2).toImage());
    const QRect box = textBox(one);
    QVERIFY(!box.isEmpty());
    const QPoint offset = box.center() - one.rect().center();
    QVERIFY2(qAbs(offset.x()) <= 3 && qAbs(offset.y()) <= 5, "the text is off the middle");
}

void TestDragPayload::theCountGoesThroughTheCatalogue()
{
    const FixedTranslator catalogue(u"\u2588\u2588\u2588\u2588\u2588\u2588"_s);
    DraggedTable table({u"a"_s, u"b"_s, u"a"_s});
    const QImage usual = table.dragImage(2).toImage();
    catalogue.asked.clear();
    table.selectAll();
    const auto offer = drag(table);
    QVERIFY(offer.has_value());
    QCOMPARE(catalogue.asked, QStringList({u"Scheduler::MCsTaskTableWidget|%n task(s)|2"_s}));
    QCOMPARE(offer->image.toImage(), usual); // the image of the two ids, not of the three rows
}

void TestDragPayload::theTableKeepsItsRows()
{
    DraggedTable table({u"a"_s, u"b"_s});
    table.selectRow(0);
    QVERIFY(drag(table).has_value());
    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(table.item(0, 0)->data(Qt::UserRole).toString(), u"a"_s);
    QVERIFY(table.item(0, 0)->isSelected());
}

ORVEL_TEST_MAIN(QApplication, TestDragPayload)
#include "tst_dragpayload.moc"
