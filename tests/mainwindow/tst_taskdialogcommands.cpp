#include "commandfixture.h"
#include "mcstaskdialog.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QApplication>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

/// Making and editing a task, as far as the window has a part in it: what the dialog opens for, and what follows.
class TestTaskDialogCommands : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aNewTaskGetsTheCurrentGroup_data();
    void aNewTaskGetsTheCurrentGroup();
    void aNewTaskGetsTheCurrentGroupThoughItIsNotSelected();
    void aGroupThatIsNotListedIsLookedUpButUngroupedIsNot_data();
    void aGroupThatIsNotListedIsLookedUpButUngroupedIsNot();
    void anEditedTaskIsTheFirstOfTheSelectedRows();
    void anEditedTaskKeepsItsOwnGroup();
    void anAcceptedDialogIsFollowedByTheRefreshes_data();
    void anAcceptedDialogIsFollowedByTheRefreshes();
    void aRejectedDialogIsFollowedByNothing_data();
    void aRejectedDialogIsFollowedByNothing();
    void aDialogAcceptedWithoutAConnectionIsFollowedByNothing();
    void theDialogBelongsToTheWindowAndGoesAfterwards();

private:
    /// A new window of this client type.
    void connectAs(const QString &clientType);
    /// Presses the button, and acts on the dialog that it brings up.
    void visit(const char *button, const QString &title, const std::function<void(MCsTaskDialog *)> &action);
    static void addButtons();

    std::unique_ptr<CommandFixture> m_fixture;
};

void TestTaskDialogCommands::init()
{
    connectAs(u"task_type.screen_record"_s);
}

void TestTaskDialogCommands::connectAs(const QString &clientType)
{
    m_fixture.reset();
    m_fixture = std::make_unique<CommandFixture>();
    const QJsonObject type{{u"type"_s, u"task_type.screen_record"_s}, {u"name"_s, u"Recorder"_s}};
    m_fixture->daemon.answer(u"tasktype.list"_s, {{u"taskTypes"_s, QJsonArray{type}}});
    m_fixture->daemon.respondWith(u"task.get"_s, [](const QJsonObject &payload) {
        const QJsonObject task = taskJson(payload.value("taskId"_L1).toString(), u"One"_s, {{u"groupId"_s, u"g1"_s}});
        return QJsonObject{{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"task"_s, task}}}};
    });
    QVERIFY(m_fixture->connectQuietly(clientType));
}

void TestTaskDialogCommands::cleanup()
{
    m_fixture.reset();
    QCOMPARE(openWindows(), QStringList());
}

void TestTaskDialogCommands::visit(const char *button, const QString &title,
                                   const std::function<void(MCsTaskDialog *)> &action)
{
    ModalDriver driver;
    driver.expectDialog<MCsTaskDialog>(title, action);
    click(m_fixture->window.get(), button);
    driver.verify();
}

void TestTaskDialogCommands::addButtons()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("createButton") << u"Create Task"_s;
    QTest::newRow("editButton") << u"Edit Task"_s;
}

void TestTaskDialogCommands::aNewTaskGetsTheCurrentGroup_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("groupId");
    QTest::newRow("none") << -1 << QString();
    QTest::newRow("a group") << 0 << u"g1"_s;
}

void TestTaskDialogCommands::aNewTaskGetsTheCurrentGroup()
{
    QFETCH(int, index);
    if (index >= 0)
        m_fixture->selectGroup(index);
    QString groupId;
    visit("createButton", u"Create Task"_s, [&groupId](MCsTaskDialog *dialog) {
        groupId = dialog->collectTaskDocument().value("groupId"_L1).toString();
        dialog->reject();
    });
    QTEST(groupId, "groupId");
    QVERIFY(m_fixture->daemon.requests(u"task.get"_s).isEmpty());
}

void TestTaskDialogCommands::aNewTaskGetsTheCurrentGroupThoughItIsNotSelected()
{
    m_fixture->selectGroup(0);
    m_fixture->tree()->clearSelection();
    QCOMPARE(m_fixture->tree()->currentItem(), m_fixture->tree()->topLevelItem(0));
    QString groupId;
    visit("createButton", u"Create Task"_s, [&groupId](MCsTaskDialog *dialog) {
        groupId = dialog->collectTaskDocument().value("groupId"_L1).toString();
        dialog->reject();
    });
    QCOMPARE(groupId, u"g1"_s);
}

void TestTaskDialogCommands::aGroupThatIsNotListedIsLookedUpButUngroupedIsNot_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("lookUps");
    // The dialog of all types asks the daemon for a group that it was given and does not list.
    QTest::newRow("a group") << u"Work"_s << 1;
    QTest::newRow("ungrouped") << u"Ungrouped"_s << 0;
}

void TestTaskDialogCommands::aGroupThatIsNotListedIsLookedUpButUngroupedIsNot()
{
    QFETCH(QString, group);
    connectAs(u"task_type.all"_s);
    const QList<QTreeWidgetItem *> items = m_fixture->tree()->findItems(group, Qt::MatchStartsWith);
    QCOMPARE(items.size(), 1);
    m_fixture->selectGroup(m_fixture->tree()->indexOfTopLevelItem(items.first()));
    m_fixture->daemon.answer(u"group.listByTaskType"_s, {{u"groups"_s, QJsonArray()}});
    QString groupId = u"none yet"_s;
    visit("createButton", u"Create Task"_s, [&groupId](MCsTaskDialog *dialog) {
        groupId = dialog->collectTaskDocument().value("groupId"_L1).toString();
        dialog->reject();
    });
    QCOMPARE(groupId, QString());
    QTEST(int(m_fixture->daemon.requests(u"group.get"_s).size()), "lookUps");
}

void TestTaskDialogCommands::anEditedTaskIsTheFirstOfTheSelectedRows()
{
    m_fixture->table()->selectAll();
    visit("editButton", u"Edit Task"_s, [](MCsTaskDialog *dialog) { dialog->reject(); });
    QCOMPARE(m_fixture->payloadOf(u"task.get"_s), QJsonObject({{u"taskId"_s, u"t1"_s}}));
}

void TestTaskDialogCommands::anEditedTaskKeepsItsOwnGroup()
{
    m_fixture->selectGroup(1);
    m_fixture->selectTask(0);
    QString groupId;
    visit("editButton", u"Edit Task"_s, [&groupId](MCsTaskDialog *dialog) {
        groupId = dialog->collectTaskDocument().value("groupId"_L1).toString();
        dialog->reject();
    });
    QCOMPARE(groupId, u"g1"_s);
}

void TestTaskDialogCommands::anAcceptedDialogIsFollowedByTheRefreshes_data()
{
    addButtons();
}

void TestTaskDialogCommands::anAcceptedDialogIsFollowedByTheRefreshes()
{
    QFETCH(QString, title);
    m_fixture->selectGroup(0);
    m_fixture->selectTask(0);
    visit(QTest::currentDataTag(), title, [this](MCsTaskDialog *dialog) {
        m_fixture->daemon.clearRequests();
        dialog->accept();
    });
    QCOMPARE(m_fixture->daemon.commands(), bundleOfGroup());
    QVERIFY(m_fixture->tree()->topLevelItem(0)->isSelected());
}

void TestTaskDialogCommands::aRejectedDialogIsFollowedByNothing_data()
{
    addButtons();
}

void TestTaskDialogCommands::aRejectedDialogIsFollowedByNothing()
{
    QFETCH(QString, title);
    m_fixture->selectTask(0);
    visit(QTest::currentDataTag(), title, [this](MCsTaskDialog *dialog) {
        m_fixture->daemon.clearRequests();
        dialog->reject();
    });
    QCOMPARE(m_fixture->daemon.commands(), QStringList());
    QVERIFY(m_fixture->table()->item(0, 0)->isSelected());
}

void TestTaskDialogCommands::aDialogAcceptedWithoutAConnectionIsFollowedByNothing()
{
    m_fixture->selectTask(0);
    visit("editButton", u"Edit Task"_s, [this](MCsTaskDialog *dialog) {
        m_fixture->daemon.stop();
        QTRY_COMPARE(m_fixture->window->connectionState(), ConnectionState::Reconnecting);
        m_fixture->daemon.clearRequests();
        dialog->accept();
    });
    QCOMPARE(m_fixture->daemon.commands(), QStringList());
    QCOMPARE(m_fixture->table()->rowCount(), 3);
}

void TestTaskDialogCommands::theDialogBelongsToTheWindowAndGoesAfterwards()
{
    QPointer<MCsTaskDialog> opened;
    visit("createButton", u"Create Task"_s, [&](MCsTaskDialog *dialog) {
        opened = dialog;
        QCOMPARE(dialog->parentWidget(), m_fixture->window.get());
        dialog->reject();
    });
    QTRY_VERIFY(opened == nullptr);
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogCommands)
#include "tst_taskdialogcommands.moc"
