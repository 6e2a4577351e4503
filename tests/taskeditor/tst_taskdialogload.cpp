#include "formfields.h"
#include "mcsdynamicformwidget.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString allTypes = u"task_type.all"_s;

QStringList texts(const QComboBox *combo)
{
    QStringList all;
    for (int index = 0; index < combo->count(); ++index)
        all.append(combo->itemText(index));
    return all;
}

void expectTypeBox(ModalDriver &driver, const QString &text)
{
    driver.expectBox(QMessageBox::Critical, u"Critical Error!"_s, text);
}

} // namespace

/// What the dialog asks the daemon for while it opens, and what it shows of the answers.
class TestTaskDialogLoad : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void newTaskAsksForTypesAndGroups();
    void editAsksForTheTaskLast();
    void onlyTheOwnTypeIsListed();
    void allTypesAreListedForAllTypes();
    void groupsAreListedWithoutThePseudoGroup();
    void groupsOfTheFirstTypeAreListedForAllTypes();
    void groupsAreListedWithoutATypeWhenThereIsNone();
    void editShowsTheTask();
    void groupOfAnEditedTaskThatIsGoneFallsToUngrouped();
    void typeMismatchIsReportedAndLoadingGoesOn();
    void allTypesClientReportsAMismatchOnEveryEdit();
    void unknownTypeIsReportedTwiceAndHasNoForm();
    void taskThatCannotBeReadLeavesABlankForm();
    void withoutAConnectionTheDialogOpensBlank();
    void withoutAClientTheDialogOpensBlank();
    void daemonTextsAreShownAsTheyStand();
    void connectionLostWhileTheDialogOpens_data();
    void connectionLostWhileTheDialogOpens();
};

void TestTaskDialogLoad::newTaskAsksForTypesAndGroups()
{
    openForCreate(u"g1"_s);
    QCOMPARE(m_daemon->commands(), QStringList({u"tasktype.list"_s, u"group.listByTaskType"_s}));
    QCOMPARE(m_daemon->requests().last().value("payload"_L1).toObject(),
             FormFields::object(R"({"taskType": "task_type.screen_record"})"));
}

void TestTaskDialogLoad::editAsksForTheTaskLast()
{
    openForEdit();
    QCOMPARE(m_daemon->commands(), QStringList({u"tasktype.list"_s, u"group.listByTaskType"_s, u"task.get"_s}));
    QCOMPARE(m_daemon->requests().last().value("payload"_L1).toObject(), FormFields::object(R"({"taskId": "t1"})"));
}

void TestTaskDialogLoad::onlyTheOwnTypeIsListed()
{
    openForCreate();
    QCOMPARE(texts(widget<QComboBox>("typeCombo")), QStringList({u"Screen Recorder"_s}));
    QCOMPARE(widget<QComboBox>("typeCombo")->currentData().toString(), u"task_type.screen_record"_s);
}

void TestTaskDialogLoad::allTypesAreListedForAllTypes()
{
    setClientType(allTypes);
    openForCreate();
    QCOMPARE(texts(widget<QComboBox>("typeCombo")), QStringList({u"Screen Recorder"_s, u"Audio Recorder"_s}));
}

void TestTaskDialogLoad::groupsAreListedWithoutThePseudoGroup()
{
    answerGroups({taskGroupJson(u"g1"_s, u"Work"_s), taskGroupJson(u"ungrouped"_s, u"Ungrouped"_s),
                  taskGroupJson(u"Ungrouped"_s, u"Other"_s)});
    openForCreate();
    const auto *groups = widget<QComboBox>("groupCombo");
    QCOMPARE(texts(groups), QStringList({u"Ungrouped"_s, u"Work"_s, u"Other"_s}));
    QCOMPARE(groups->itemData(0).toString(), QString());
    QCOMPARE(groups->itemData(1).toString(), u"g1"_s);
}

void TestTaskDialogLoad::groupsOfTheFirstTypeAreListedForAllTypes()
{
    setClientType(allTypes);
    openForCreate();
    QCOMPARE(m_daemon->requests(u"group.listByTaskType"_s).size(), 1);
    QCOMPARE(m_daemon->requests().last().value("payload"_L1).toObject().value("taskType"_L1).toString(),
             u"task_type.screen_record"_s);
}

void TestTaskDialogLoad::groupsAreListedWithoutATypeWhenThereIsNone()
{
    setClientType(allTypes);
    answerTypes({});
    openForCreate();
    QCOMPARE(m_daemon->requests().last().value("payload"_L1).toObject().value("taskType"_L1).toString(), allTypes);
}

void TestTaskDialogLoad::editShowsTheTask()
{
    openForEdit({{u"dynamicParams"_s, QJsonObject{{u"fps"_s, 60}}}},
                {{u"groupId"_s, u"g2"_s}, {u"enabled"_s, false}, {u"programName"_s, u"Stored"_s}});
    QCOMPARE(widget<QLineEdit>("nameEdit")->text(), u"Demo"_s);
    QCOMPARE(widget<QLineEdit>("programNameEdit")->text(), u"Recorder"_s);
    QCOMPARE(widget<QComboBox>("groupCombo")->currentText(), u"Home"_s);
    QVERIFY(!widget<QCheckBox>("enabledCheck")->isChecked());
    QCOMPARE(m_dialog->findChild<MCsDynamicFormWidget *>()->findChild<QSpinBox *>()->value(), 60);
}

void TestTaskDialogLoad::groupOfAnEditedTaskThatIsGoneFallsToUngrouped()
{
    openForEdit({}, {{u"groupId"_s, u"gone"_s}});
    QCOMPARE(widget<QComboBox>("groupCombo")->currentIndex(), 0);
    QCOMPARE(m_dialog->collectTaskDocument().value("groupId"_L1).toString(), QString());
}

void TestTaskDialogLoad::typeMismatchIsReportedAndLoadingGoesOn()
{
    ModalDriver driver;
    expectTypeBox(driver, u"Task type mismatch!"_s);
    openForEdit({{u"displayMode"_s, u"Hide"_s}}, {{u"type"_s, u"task_type.audio_record"_s}});
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(widget<QLineEdit>("nameEdit")->text(), u"Demo"_s);
    QCOMPARE(m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject().value("displayMode"_L1).toString(),
             u"Hide"_s);
    // The form is that of the task's type, which has no fields.
    QCOMPARE(widget<QListWidget>("navList")->count(), 7);
}

void TestTaskDialogLoad::allTypesClientReportsAMismatchOnEveryEdit()
{
    setClientType(allTypes);
    ModalDriver driver;
    expectTypeBox(driver, u"Task type mismatch!"_s);
    openForEdit({}, {{u"type"_s, u"task_type.audio_record"_s}});
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(widget<QComboBox>("typeCombo")->currentData().toString(), u"task_type.audio_record"_s);
    // The groups stay those of the first type.
    QCOMPARE(m_daemon->requests(u"group.listByTaskType"_s).size(), 1);
}

void TestTaskDialogLoad::unknownTypeIsReportedTwiceAndHasNoForm()
{
    ModalDriver driver;
    expectTypeBox(driver, u"Task type mismatch!"_s);
    expectTypeBox(driver, u"Task type not accepted!"_s);
    openForEdit({}, {{u"type"_s, u"task_type.other"_s}});
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(widget<QComboBox>("typeCombo")->currentData().toString(), u"task_type.screen_record"_s);
    QCOMPARE(widget<QListWidget>("navList")->count(), 7);
}

void TestTaskDialogLoad::taskThatCannotBeReadLeavesABlankForm()
{
    m_daemon->refuse(u"task.get"_s, u"TASK_NOT_FOUND"_s, u"gone"_s);
    ModalDriver driver;
    expectTypeBox(driver, u"Task type mismatch!"_s);
    expectTypeBox(driver, u"Task type not accepted!"_s);
    open(u"t1"_s);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(widget<QLineEdit>("nameEdit")->text(), QString());
    QVERIFY(!widget<QCheckBox>("enabledCheck")->isChecked());
}

void TestTaskDialogLoad::withoutAConnectionTheDialogOpensBlank()
{
    m_client->disconnectFromDaemon();
    ModalDriver driver;
    open(u"t1"_s);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(widget<QComboBox>("typeCombo")->count(), 0);
    QCOMPARE(widget<QComboBox>("groupCombo")->count(), 0);
    QCOMPARE(widget<QLineEdit>("nameEdit")->text(), QString());
    QCOMPARE(m_dialog->windowTitle(), u"Edit Task"_s);
}

void TestTaskDialogLoad::withoutAClientTheDialogOpensBlank()
{
    m_client.reset();
    openForCreate(u"g1"_s);
    QCOMPARE(widget<QComboBox>("groupCombo")->count(), 0);
    QCOMPARE(widget<QListWidget>("navList")->count(), 7);
}

void TestTaskDialogLoad::daemonTextsAreShownAsTheyStand()
{
    answerGroups({taskGroupJson(u"g1"_s, u"<b>R&D</b> %1"_s)});
    openForEdit({}, {{u"name"_s, u"<i>&amp;</i> %1"_s}});
    QCOMPARE(widget<QComboBox>("groupCombo")->currentText(), u"<b>R&D</b> %1"_s);
    QCOMPARE(widget<QLineEdit>("nameEdit")->text(), u"<i>&amp;</i> %1"_s);
}

void TestTaskDialogLoad::connectionLostWhileTheDialogOpens_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("boxes");
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QStringList>("groups");
    const QStringList none;
    const QStringList types{u"Screen Recorder"_s};
    QTest::newRow("types") << u"tasktype.list"_s << 0 << none << none;
    QTest::newRow("groups") << u"group.listByTaskType"_s << 0 << types << QStringList{u"Ungrouped"_s};
    QTest::newRow("task") << u"task.get"_s << 1 << types << QStringList{u"Ungrouped"_s, u"Work"_s, u"Home"_s};
}

void TestTaskDialogLoad::connectionLostWhileTheDialogOpens()
{
    QFETCH(const QString, command);
    QFETCH(const int, boxes);
    QFETCH(const QStringList, types);
    QFETCH(const QStringList, groups);
    whileWaiting(command, [this] { m_client->disconnectFromDaemon(); });
    ModalDriver driver;
    if (boxes > 0) {
        expectTypeBox(driver, u"Task type mismatch!"_s);
        expectTypeBox(driver, u"Task type not accepted!"_s);
    }
    open(u"t1"_s);
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->windowTitle(), u"Edit Task"_s);
    QCOMPARE(widget<QLineEdit>("nameEdit")->text(), QString());
    QCOMPARE(texts(widget<QComboBox>("typeCombo")), types);
    QCOMPARE(texts(widget<QComboBox>("groupCombo")), groups);
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogLoad)
#include "tst_taskdialogload.moc"
