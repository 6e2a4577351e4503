#include "formfields.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QComboBox>
#include <QListWidget>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString allTypes = u"task_type.all"_s;

} // namespace

/// The group in which a new task starts.
class TestTaskDialogGroup : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void newTaskStartsInTheGivenGroup();
    void groupIdsAreComparedCaseSensitively();
    void groupOfAnotherTypeSelectsItsType();
    void groupOfAnotherTypeTakesNoLastValues();
    void groupWithoutATypeLeavesUngrouped();
    void groupOfAnUnknownTypeLeavesUngrouped();
    void unknownGroupLeavesUngrouped_data();
    void unknownGroupLeavesUngrouped();
};

void TestTaskDialogGroup::newTaskStartsInTheGivenGroup()
{
    openForCreate(u"g2"_s);
    QCOMPARE(widget<QComboBox>("groupCombo")->currentText(), u"Home"_s);
    QCOMPARE(m_daemon->requests(u"group.get"_s).size(), 0);
}

void TestTaskDialogGroup::groupIdsAreComparedCaseSensitively()
{
    openForCreate(u"G2"_s);
    QCOMPARE(widget<QComboBox>("groupCombo")->currentIndex(), 0);
}

void TestTaskDialogGroup::groupOfAnotherTypeSelectsItsType()
{
    setClientType(allTypes);
    m_daemon->respondWith(u"group.listByTaskType"_s, [](const QJsonObject &payload) -> QJsonObject {
        const bool audio = payload.value("taskType"_L1).toString() == "task_type.audio_record"_L1;
        const QJsonObject group = audio ? taskGroupJson(u"a1"_s, u"Sound"_s) : taskGroupJson(u"g1"_s, u"Work"_s);
        return {{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"groups"_s, QJsonArray{group}}}}};
    });
    m_daemon->answer(u"group.get"_s, {{u"group"_s, taskGroupJson(u"a1"_s, u"Sound"_s, u"task_type.audio_record"_s)}});
    openForCreate(u"a1"_s);
    QCOMPARE(m_daemon->commands(),
             QStringList({u"tasktype.list"_s, u"group.listByTaskType"_s, u"group.get"_s, u"group.listByTaskType"_s}));
    QCOMPARE(widget<QComboBox>("typeCombo")->currentData().toString(), u"task_type.audio_record"_s);
    QCOMPARE(widget<QComboBox>("groupCombo")->currentData().toString(), u"a1"_s);
    QCOMPARE(widget<QListWidget>("navList")->count(), 7);
}

void TestTaskDialogGroup::groupOfAnotherTypeTakesNoLastValues()
{
    setClientType(allTypes);
    answerTypes(
        {typeJson(u"task_type.audio_record"_s),
         typeJson(u"task_type.screen_record"_s, {fieldJson(u"fps"_s, u"int"_s, {{u"defaultValue"_s, u"30"_s}})})});
    MCsLastTaskDefaults().saveDefaults(u"task_type.screen_record"_s,
                                       FormFields::object(R"({"paramsJson": {"dynamicParams": {"fps": 99}}})"));
    answerGroups({});
    m_daemon->answer(u"group.get"_s, {{u"group"_s, taskGroupJson(u"s1"_s, u"Screen"_s, u"task_type.screen_record"_s)}});
    openForCreate(u"s1"_s);
    QCOMPARE(widget<QComboBox>("typeCombo")->currentData().toString(), u"task_type.screen_record"_s);
    QCOMPARE(fps()->value(), 30);
}

void TestTaskDialogGroup::groupWithoutATypeLeavesUngrouped()
{
    setClientType(allTypes);
    m_daemon->answer(u"group.get"_s, {{u"group"_s, taskGroupJson(u"g7"_s, u"Odd"_s)}});
    openForCreate(u"g7"_s);
    QCOMPARE(widget<QComboBox>("groupCombo")->currentIndex(), 0);
    QCOMPARE(m_daemon->requests(u"group.listByTaskType"_s).size(), 1);
}

void TestTaskDialogGroup::groupOfAnUnknownTypeLeavesUngrouped()
{
    setClientType(allTypes);
    m_daemon->answer(u"group.get"_s, {{u"group"_s, taskGroupJson(u"g7"_s, u"Odd"_s, u"task_type.other"_s)}});
    openForCreate(u"g7"_s);
    QCOMPARE(widget<QComboBox>("typeCombo")->currentIndex(), 0);
    QCOMPARE(m_daemon->requests(u"group.listByTaskType"_s).size(), 1);
}

void TestTaskDialogGroup::unknownGroupLeavesUngrouped_data()
{
    QTest::addColumn<QString>("clientType");
    QTest::addColumn<int>("lookUps");
    QTest::newRow("one type") << u"task_type.screen_record"_s << 0;
    QTest::newRow("all types") << allTypes << 1;
}

void TestTaskDialogGroup::unknownGroupLeavesUngrouped()
{
    QFETCH(const QString, clientType);
    QFETCH(const int, lookUps);
    setClientType(clientType);
    m_daemon->refuse(u"group.get"_s, u"NOT_FOUND"_s, u"no such group"_s);
    ModalDriver driver;
    openForCreate(u"unknown"_s);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_daemon->requests(u"group.get"_s).size(), lookUps);
    QCOMPARE(widget<QComboBox>("groupCombo")->currentText(), u"Ungrouped"_s);
    QCOMPARE(m_dialog->collectTaskDocument().value("groupId"_L1).toString(), QString());
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogGroup)
#include "tst_taskdialoggroup.moc"
