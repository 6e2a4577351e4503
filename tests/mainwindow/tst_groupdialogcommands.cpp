#include "commandfixture.h"
#include "mcsgroupdialog.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// The requests of a rebuild of the tree with what a bundle refreshes after it.
QStringList treeAndBundle()
{
    return QStringList(u"group.listByTaskType"_s) + bundle();
}

} // namespace

/// Making and editing a group, as far as the window has a part in it: when the dialog opens, for what, and what
/// follows.
class TestGroupDialogCommands : public QObject {
    Q_OBJECT

private slots:
    void aManagerOfAllTypesAsksForATypeFirst_data();
    void aManagerOfAllTypesAsksForATypeFirst();
    void theFilterGivesANewGroupItsType_data();
    void theFilterGivesANewGroupItsType();
    void aNewGroupGetsTheClientsType();
    void anEditedGroupBringsItsOwnType();
    void aCreatedGroupIsFollowedByTheTreeAndTheOtherRefreshes();
    void anEditedGroupIsFollowedByTheTreeAndTheOtherRefreshes();
    void aRejectedDialogIsFollowedByNothing_data();
    void aRejectedDialogIsFollowedByNothing();
    void aDialogAcceptedWithoutAConnectionIsFollowedByNothing();
    void theDialogBelongsToTheWindowAndGoesAfterwards();
    void aWholeVisitCreatesAGroup();
};

void TestGroupDialogCommands::aManagerOfAllTypesAsksForATypeFirst_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("named") << u"task_type.all"_s;
    QTest::newRow("empty") << QString();
}

void TestGroupDialogCommands::aManagerOfAllTypesAsksForATypeFirst()
{
    QFETCH(QString, type);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly(type));
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Select Type"_s,
                     u"Please select a specific task type from the filter before creating a group."_s);
    click(fixture.window.get(), "createGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList());
}

void TestGroupDialogCommands::theFilterGivesANewGroupItsType_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("type");
    QTest::newRow("its data") << QVariant(u"task_type.a"_s) << u"task_type.a"_s;
    QTest::newRow("its text, without data") << QVariant() << u"Type A"_s;
    QTest::newRow("its text, with empty data") << QVariant(QString()) << u"Type A"_s;
}

void TestGroupDialogCommands::theFilterGivesANewGroupItsType()
{
    QFETCH(QVariant, data);
    QFETCH(QString, type);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly(u"task_type.all"_s));
    auto *filter = fixture.widget<QComboBox>("typeFilterCombo");
    filter->addItem(u"Type A"_s, data);
    filter->setCurrentIndex(filter->count() - 1);
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Create Group"_s, [](MCsGroupDialog *dialog) { dialog->reject(); });
    click(fixture.window.get(), "createGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList({u"group.listByTaskType"_s}));
    QCOMPARE(fixture.payloadOf(u"group.listByTaskType"_s), QJsonObject({{u"taskType"_s, type}}));
}

void TestGroupDialogCommands::aNewGroupGetsTheClientsType()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly(u"task_type.test"_s));
    fixture.selectGroup(0); // which plays no part
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Create Group"_s, [](MCsGroupDialog *dialog) { dialog->reject(); });
    click(fixture.window.get(), "createGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList({u"group.listByTaskType"_s}));
    QCOMPARE(fixture.payloadOf(u"group.listByTaskType"_s), QJsonObject({{u"taskType"_s, u"task_type.test"_s}}));
}

void TestGroupDialogCommands::anEditedGroupBringsItsOwnType()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Edit Group"_s, [](MCsGroupDialog *dialog) { dialog->reject(); });
    click(fixture.window.get(), "editGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList({u"group.listByTaskType"_s, u"group.get"_s}));
    QCOMPARE(fixture.payloadOf(u"group.listByTaskType"_s), QJsonObject({{u"taskType"_s, QString()}}));
    QCOMPARE(fixture.payloadOf(u"group.get"_s), QJsonObject({{u"groupId"_s, u"g1"_s}}));
}

void TestGroupDialogCommands::aCreatedGroupIsFollowedByTheTreeAndTheOtherRefreshes()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Create Group"_s, [&fixture](MCsGroupDialog *dialog) {
        fixture.daemon.clearRequests();
        dialog->accept();
    });
    click(fixture.window.get(), "createGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), treeAndBundle());
}

void TestGroupDialogCommands::anEditedGroupIsFollowedByTheTreeAndTheOtherRefreshes()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Edit Group"_s, [&fixture](MCsGroupDialog *dialog) {
        fixture.daemon.clearRequests();
        dialog->accept();
    });
    click(fixture.window.get(), "editGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    // The table follows the selection that the rebuilt tree has lost.
    QCOMPARE(fixture.daemon.commands(), QStringList(u"task.listByType"_s) + treeAndBundle());
    QVERIFY(fixture.tree()->selectedItems().isEmpty());
    QCOMPARE(fixture.widget<QLabel>("taskCountLabel")->text(), u"Tasks: 3"_s);
}

void TestGroupDialogCommands::aRejectedDialogIsFollowedByNothing_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("createGroupButton") << u"Create Group"_s;
    QTest::newRow("editGroupButton") << u"Edit Group"_s;
}

void TestGroupDialogCommands::aRejectedDialogIsFollowedByNothing()
{
    QFETCH(QString, title);
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(title, [&fixture](MCsGroupDialog *dialog) {
        fixture.daemon.clearRequests();
        click(require<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Cancel));
    });
    fixture.run(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList());
    QVERIFY(fixture.tree()->topLevelItem(0)->isSelected());
}

void TestGroupDialogCommands::aDialogAcceptedWithoutAConnectionIsFollowedByNothing()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.selectGroup(0);
    ModalDriver driver; // no box
    driver.expectDialog<MCsGroupDialog>(u"Edit Group"_s, [&fixture](MCsGroupDialog *dialog) {
        fixture.daemon.stop();
        QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Reconnecting);
        fixture.daemon.clearRequests();
        dialog->accept();
    });
    click(fixture.window.get(), "editGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList());
    QCOMPARE(fixture.tree()->topLevelItemCount(), 2);
    QCOMPARE(fixture.table()->rowCount(), 3);
}

void TestGroupDialogCommands::theDialogBelongsToTheWindowAndGoesAfterwards()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    QPointer<MCsGroupDialog> opened;
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Create Group"_s, [&](MCsGroupDialog *dialog) {
        opened = dialog;
        QCOMPARE(dialog->parentWidget(), fixture.window.get());
        dialog->reject();
    });
    click(fixture.window.get(), "createGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QTRY_VERIFY(opened == nullptr);
}

void TestGroupDialogCommands::aWholeVisitCreatesAGroup()
{
    CommandFixture fixture;
    QVERIFY(fixture.connectQuietly());
    fixture.daemon.answer(u"group.create"_s, {{u"groupId"_s, u"g2"_s}});
    fixture.daemon.onRequest(u"group.create"_s, [&fixture](const QJsonObject &) {
        fixture.setGroups({groupJson(u"g1"_s, u"Work"_s), groupJson(u"g2"_s, u"Night"_s)});
    });
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Create Group"_s, [](MCsGroupDialog *dialog) {
        require<QLineEdit>(dialog, "nameEdit")->setText(u"Night"_s);
        click(require<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Save));
    });
    click(fixture.window.get(), "createGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(fixture.daemon.commands(), QStringList({u"group.listByTaskType"_s, u"group.create"_s}) + treeAndBundle());
    QCOMPARE(fixture.payloadOf(u"group.create"_s).value("group"_L1).toObject().value("taskType"_L1).toString(),
             u"task_type.screen_record"_s);
    QCOMPARE(fixture.tree()->topLevelItem(1)->text(0), u"Night (1)"_s);
}

ORVEL_TEST_MAIN(QApplication, TestGroupDialogCommands)
#include "tst_groupdialogcommands.moc"
