#include "groupdialogfixture.h"
#include "logcapture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString failedText = u"Failed to save group. Please check the error log for details."_s;

} // namespace

/// What may happen while the dialog waits for the daemon.
class TestGroupDialogReentry : public GroupDialogFixture {
    Q_OBJECT

private slots:
    void savePressedTwiceMakesOneGroup();
    void savePressedAgainAfterARefusalIsSent();
    void typedWhileTheSaveWaitsIsKeptWhenItFails();
    void cancelledWhileASuccessfulSaveWaits();
    void cancelledWhileAFailingSaveWaits();
    void destroyedWhileTheSaveWaits_data();
    void destroyedWhileTheSaveWaits();
    void connectionLostWhileTheSaveWaits();
    void connectionLostWhileTheGroupIsLoaded();
    void destroyedWhileTheGroupsAreListed();
    void destroyedWhileTheGroupIsLoaded();
    void clientMayGoBeforeTheDialog();
};

void TestGroupDialogReentry::savePressedTwiceMakesOneGroup()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->whileWaiting(u"group.create"_s, [this] {
        save();
        save();
    });
    save();
    QCOMPARE(m_daemon->requests(u"group.create"_s).size(), 1);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
}

void TestGroupDialogReentry::savePressedAgainAfterARefusalIsSent()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->refuse(u"group.create"_s, u"BUSY"_s, u"later"_s);
    m_daemon->whileWaiting(u"group.create"_s, [this] { save(); });
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Error"_s, failedText);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_daemon->requests(u"group.create"_s).size(), 1);
    m_daemon->answer(u"group.create"_s, {{u"groupId"_s, u"g9"_s}});
    save();
    QCOMPARE(m_daemon->requests(u"group.create"_s).size(), 2);
    QVERIFY(!m_dialog->isVisible());
}

void TestGroupDialogReentry::typedWhileTheSaveWaitsIsKeptWhenItFails()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->refuse(u"group.create"_s, u"BUSY"_s, u"later"_s);
    m_daemon->whileWaiting(u"group.create"_s, [this] { QTest::keyClicks(name(), u"yz"_s); });
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Error"_s, failedText);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(name()->text(), u"xyz"_s);
}

// The group is there all the same, and the caller is to show it.
void TestGroupDialogReentry::cancelledWhileASuccessfulSaveWaits()
{
    MCsGroupDialog dialog(m_client.get(), {}, u"task_type.record"_s, nullptr);
    ModalDriver driver;
    bool hiddenAtOnce = false;
    driver.expectDialog<MCsGroupDialog>(u"Create Group"_s, [&](MCsGroupDialog *opened) {
        ORVEL_REQUIRE_WIDGET(QLineEdit, edit, opened, "nameEdit");
        ORVEL_REQUIRE_WIDGET(QDialogButtonBox, buttons, opened, "buttonBox");
        edit->setText(u"x"_s);
        m_daemon->whileWaiting(u"group.create"_s, [&] {
            click(buttons->button(QDialogButtonBox::Cancel));
            hiddenAtOnce = !dialog.isVisible();
        });
        click(buttons->button(QDialogButtonBox::Save));
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(hiddenAtOnce);
    QVERIFY2(driver.finished(), driver.problems());
}

void TestGroupDialogReentry::cancelledWhileAFailingSaveWaits()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->refuse(u"group.create"_s, u"BUSY"_s, u"later"_s);
    m_daemon->whileWaiting(u"group.create"_s, [this] { click(button(QDialogButtonBox::Cancel)); });
    const LogCapture log;
    ModalDriver driver;
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(log.lines(u"GroupDialog"_s), QStringList{u"ERROR Failed to save group: BUSY: later, BUSY"_s});
}

void TestGroupDialogReentry::destroyedWhileTheSaveWaits_data()
{
    QTest::addColumn<bool>("refused");
    QTest::newRow("saved") << false;
    QTest::newRow("refused") << true;
}

void TestGroupDialogReentry::destroyedWhileTheSaveWaits()
{
    QFETCH(const bool, refused);
    openForCreate();
    name()->setText(u"x"_s);
    if (refused)
        m_daemon->refuse(u"group.create"_s, u"BUSY"_s, u"later"_s);
    m_daemon->whileWaiting(u"group.create"_s, [this] { m_dialog.reset(); });
    const LogCapture log;
    ModalDriver driver;
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog == nullptr);
    QCOMPARE(m_daemon->requests(u"group.create"_s).size(), 1);
    QCOMPARE(log.lines(u"GroupDialog"_s),
             refused ? QStringList{u"ERROR Failed to save group: BUSY: later, BUSY"_s} : QStringList());
}

void TestGroupDialogReentry::connectionLostWhileTheSaveWaits()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->whileWaiting(u"group.create"_s, [this] { m_daemon->dropConnections(); });
    const LogCapture log;
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Error"_s, failedText);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(!m_client->isConnected());
    QCOMPARE(log.lines(u"GroupDialog"_s),
             QStringList{u"ERROR Failed to save group: TIMEOUT: Request timed out after 2000ms, TIMEOUT"_s});
    QCOMPARE(name()->text(), u"x"_s);

    QVERIFY(m_client->connectToDaemon());
    save();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_daemon->requests(u"group.create"_s).size(), 2);
}

void TestGroupDialogReentry::connectionLostWhileTheGroupIsLoaded()
{
    answerGroupList({groupRecord(u"a"_s, u"A"_s)});
    m_daemon->whileWaiting(u"group.get"_s, [this] { m_daemon->dropConnections(); });
    openForEdit();
    QVERIFY(!m_client->isConnected());
    QCOMPARE(name()->text(), QString());
    QCOMPARE(parentGroup()->count(), 2);
}

void TestGroupDialogReentry::destroyedWhileTheGroupsAreListed()
{
    answerGroupList({groupRecord(u"a"_s, u"A"_s)});
    auto window = std::make_unique<QWidget>();
    m_daemon->whileWaiting(u"group.listByTaskType"_s, [&window] { window.reset(); });
    new MCsGroupDialog(m_client.get(), u"g1"_s, {}, window.get());
    QVERIFY(window == nullptr);
    QCOMPARE(m_daemon->commands(), QStringList{u"group.listByTaskType"_s});
}

void TestGroupDialogReentry::destroyedWhileTheGroupIsLoaded()
{
    auto window = std::make_unique<QWidget>();
    m_daemon->whileWaiting(u"group.get"_s, [&window] { window.reset(); });
    new MCsGroupDialog(m_client.get(), u"g1"_s, {}, window.get());
    QVERIFY(window == nullptr);
    QCOMPARE(m_daemon->commands(), (QStringList{u"group.listByTaskType"_s, u"group.get"_s}));
}

void TestGroupDialogReentry::clientMayGoBeforeTheDialog()
{
    openForEdit();
    m_client.reset();
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Error"_s, failedText);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(name()->text(), u"Nightly"_s);
}

ORVEL_TEST_MAIN(QApplication, TestGroupDialogReentry)
#include "tst_groupdialogreentry.moc"
