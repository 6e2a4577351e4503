#include "commandfixture.h"
#include "endurance.h"
#include "testmain.h"

#include <QApplication>
#include <QDialog>

using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// Ends every dialog once it is up, and counts them.
class DialogEnder : public QObject {
public:
    DialogEnder()
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (auto *dialog = qobject_cast<QDialog *>(watched); dialog != nullptr && event->type() == QEvent::Show) {
            ++count;
            QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
        }
        return false;
    }

    int count = 0;
};

/// Qt's own: below a window with a style sheet it keeps the rules of combo and spin boxes that are gone, until their
/// addresses are taken by others. That is up to one and a half KiB for each dialog, with Qt 6.11 two and a half, and
/// less and less; all of it goes with the window. A dialog that stayed would be a hundred times as much.
constexpr Endurance::Allowance keptRules{160 * 1024, 3 * 1024};

QJsonObject typeWithFields()
{
    return {
        {u"type"_s, u"task_type.screen_record"_s},
        {u"name"_s, u"Screen"_s},
        {u"fields"_s, QJsonArray{QJsonObject{{u"key"_s, u"fps"_s}, {u"type"_s, u"int"_s}, {u"label"_s, u"Frames"_s}},
                                 QJsonObject{{u"key"_s, u"format"_s},
                                             {u"type"_s, u"select"_s},
                                             {u"options"_s, QJsonArray{u"MP4"_s, u"AVI"_s}}},
                                 QJsonObject{{u"key"_s, u"sound"_s}, {u"type"_s, u"bool"_s}},
                                 QJsonObject{{u"key"_s, u"title"_s}, {u"type"_s, u"string"_s}}}}};
}

} // namespace

/// Dialogs opened and closed over and over.
class TestDialogCycles : public QObject {
    Q_OBJECT

private slots:
    void openingAndClosingADialogLeavesNothingBehind_data();
    void openingAndClosingADialogLeavesNothingBehind();
};

void TestDialogCycles::openingAndClosingADialogLeavesNothingBehind_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("fullCycles");
    QTest::addColumn<int>("shortCycles");
    QTest::newRow("dialog of a new task") << u"createButton"_s << 1000 << 20;
    QTest::newRow("dialog of a task") << u"editButton"_s << 1000 << 20;
    QTest::newRow("dialog of a new group") << u"createGroupButton"_s << 1000 << 60;
    QTest::newRow("dialog of a group") << u"editGroupButton"_s << 1000 << 60;
    QTest::newRow("question before a deletion") << u"deleteButton"_s << 1000 << 60;
}

void TestDialogCycles::openingAndClosingADialogLeavesNothingBehind()
{
    QFETCH(QString, control);
    QFETCH(int, fullCycles);
    QFETCH(int, shortCycles);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.daemon.answer(u"tasktype.list"_s, {{u"taskTypes"_s, QJsonArray{typeWithFields()}}});
    fixture.daemon.answer(u"task.get"_s, {{u"task"_s, taskJson(u"t1"_s, u"One"_s)}});
    fixture.daemon.answer(u"group.get"_s, {{u"group"_s, groupJson(u"g1"_s, u"Work"_s)}});
    fixture.selectGroup(0);
    fixture.selectTask(0);
    DialogEnder ender;
    Endurance endurance(QString::fromLatin1(QTest::currentDataTag()), fullCycles, shortCycles, {fixture.window.get()});
    endurance.allow(keptRules);
    endurance.run([&](int cycle) {
        fixture.run(control);
        QCOMPARE(ender.count, cycle + 1);
        fixture.daemon.clearRequests();
    });
    endurance.verify();
}

ORVEL_TEST_MAIN(QApplication, TestDialogCycles)
#include "tst_dialogcycles.moc"
