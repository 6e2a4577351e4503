#include "groupdialogfixture.h"
#include "logcapture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString failedText = u"Failed to save group. Please check the error log for details."_s;

} // namespace

class TestGroupDialogSave : public GroupDialogFixture {
    Q_OBJECT

private slots:
    void newGroupOnTheWire();
    void changedGroupOnTheWire();
    void newGroupTakesTheDefaultsOfTheForm();
    void nameIsStoredTrimmed();
    void nameOfFullLengthWithBlanksIsStoredTrimmed();
    void descriptionIsStoredWithoutItsLastLineBreak();
    void highestDisplayOrderIsStored();
    void parentThatIsNotListedIsLost();
    void descendantMayBeChosenAsParent();
    void savedDialogIsAccepted();
    void enterKeySaves();
    void cancelRejectsAtOnce();
    void closeButtonRejectsAtOnce();
    void refusedSaveKeepsTheInputAndMayBeTriedAgain_data();
    void refusedSaveKeepsTheInputAndMayBeTriedAgain();
    void answerWithoutAnIdIsAFailure();
    void withoutAConnectionSavingFails();
    void withoutAClientSavingFails();
    void connectionLostBeforeTheSaveKeepsTheInput();

private:
    void saveFails();
    [[nodiscard]] QByteArray bytesOf(const QString &cmd) const;
};

void TestGroupDialogSave::saveFails()
{
    ModalDriver driver;
    driver.expectBox(QMessageBox::Critical, u"Error"_s, failedText);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
    QVERIFY(m_dialog->isVisible());
}

/// The payload of the last request as it went over the wire, this command's alone.
QByteArray TestGroupDialogSave::bytesOf(const QString &cmd) const
{
    const QByteArray start = "{\"cmd\":\"" + cmd.toUtf8() + "\",\"id\":\"";
    const QByteArray bytes = m_daemon->receivedBytes();
    const QByteArray marker = "\"payload\":";
    if (!bytes.startsWith(start) || bytes.count('\n') != 1)
        return "not one such request: " + bytes;
    return bytes.mid(bytes.indexOf(marker) + marker.size()).chopped(2);
}

void TestGroupDialogSave::newGroupOnTheWire()
{
    answerGroupList({groupRecord(u"p"_s, u"Parent"_s)});
    openForCreate();
    name()->setText(u"Überwachung \"1\""_s);
    description()->setPlainText(u"two\nlines"_s);
    parentGroup()->setCurrentIndex(1);
    displayOrder()->setValue(7);
    m_daemon->clearRequests();
    save();
    QCOMPARE(bytesOf(u"group.create"_s),
             "{\"group\":{\"color\":\"#3498db\",\"description\":\"two\\nlines\",\"displayOrder\":7,"
             "\"name\":\"Überwachung \\\"1\\\"\",\"parentId\":\"p\",\"taskType\":\"task_type.record\"}}");
}

void TestGroupDialogSave::changedGroupOnTheWire()
{
    openForEdit();
    name()->setText(u"Daily"_s);
    m_daemon->clearRequests();
    save();
    QCOMPARE(bytesOf(u"group.update"_s),
             "{\"group\":{\"color\":\"#e74c3c\",\"description\":\"Every night\",\"displayOrder\":5,\"name\":\"Daily\","
             "\"parentId\":\"\",\"taskType\":\"task_type.record\"},\"groupId\":\"g1\"}");
}

void TestGroupDialogSave::newGroupTakesTheDefaultsOfTheForm()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->clearRequests();
    save();
    QCOMPARE(bytesOf(u"group.create"_s), "{\"group\":{\"color\":\"#3498db\",\"description\":\"\",\"displayOrder\":0,"
                                         "\"name\":\"x\",\"parentId\":\"\",\"taskType\":\"task_type.record\"}}");
}

void TestGroupDialogSave::nameIsStoredTrimmed()
{
    openForCreate();
    name()->setText(u"  a b\t"_s);
    save();
    QCOMPARE(sentGroup(u"group.create"_s).value("name"_L1), QJsonValue(u"a b"_s));
}

void TestGroupDialogSave::nameOfFullLengthWithBlanksIsStoredTrimmed()
{
    openForCreate();
    QTest::keyClicks(name(), u' ' + QString(98, u'n') + u" more"_s);
    QCOMPARE(name()->text(), u' ' + QString(98, u'n') + u' ');
    save();
    QCOMPARE(sentGroup(u"group.create"_s).value("name"_L1), QJsonValue(QString(98, u'n')));
}

void TestGroupDialogSave::descriptionIsStoredWithoutItsLastLineBreak()
{
    openForCreate();
    name()->setText(u"x"_s);
    QTest::keyClicks(description(), u"one"_s);
    QTest::keyClick(description(), Qt::Key_Return);
    QTest::keyClicks(description(), u"two"_s);
    QTest::keyClick(description(), Qt::Key_Return);
    QCOMPARE(description()->toPlainText(), u"one\ntwo\n"_s);
    save();
    QCOMPARE(sentGroup(u"group.create"_s).value("description"_L1), QJsonValue(u"one\ntwo"_s));
}

void TestGroupDialogSave::highestDisplayOrderIsStored()
{
    openForCreate();
    name()->setText(u"x"_s);
    displayOrder()->setValue(9999);
    displayOrder()->stepUp();
    QCOMPARE(displayOrder()->value(), 9999);
    save();
    QCOMPARE(sentGroup(u"group.create"_s).value("displayOrder"_L1), QJsonValue(9999));
}

void TestGroupDialogSave::parentThatIsNotListedIsLost()
{
    answerGroup({{u"parentId"_s, u"elsewhere"_s}});
    openForEdit();
    QCOMPARE(parentGroup()->currentText(), u"(None - Top Level)"_s);
    save();
    QCOMPARE(sentGroup(u"group.update"_s).value("parentId"_L1), QJsonValue(QString()));
}

void TestGroupDialogSave::descendantMayBeChosenAsParent()
{
    answerGroupList({groupRecord(u"c"_s, u"Child"_s, u"g1"_s)});
    openForEdit();
    parentGroup()->setCurrentText(u"  → Child"_s);
    save();
    QCOMPARE(sentGroup(u"group.update"_s).value("parentId"_L1), QJsonValue(u"c"_s));
}

void TestGroupDialogSave::savedDialogIsAccepted()
{
    MCsGroupDialog dialog(m_client.get(), {}, u"task_type.record"_s, nullptr);
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Create Group"_s, [](MCsGroupDialog *opened) {
        ORVEL_REQUIRE_WIDGET(QLineEdit, edit, opened, "nameEdit");
        ORVEL_REQUIRE_WIDGET(QDialogButtonBox, buttons, opened, "buttonBox");
        edit->setText(u"x"_s);
        click(buttons->button(QDialogButtonBox::Save));
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_daemon->requests(u"group.create"_s).size(), 1);
}

void TestGroupDialogSave::enterKeySaves()
{
    openForCreate();
    QTest::keyClicks(name(), u"x"_s);
    QTest::keyClick(name(), Qt::Key_Return);
    QCOMPARE(m_daemon->requests(u"group.create"_s).size(), 1);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void TestGroupDialogSave::cancelRejectsAtOnce()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->clearRequests();
    QVERIFY(click(button(QDialogButtonBox::Cancel)));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(m_daemon->commands(), QStringList());
}

void TestGroupDialogSave::closeButtonRejectsAtOnce()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->clearRequests();
    QVERIFY(m_dialog->close());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(m_daemon->commands(), QStringList());
}

void TestGroupDialogSave::refusedSaveKeepsTheInputAndMayBeTriedAgain_data()
{
    QTest::addColumn<bool>("creating");
    QTest::newRow("new group") << true;
    QTest::newRow("changed group") << false;
}

void TestGroupDialogSave::refusedSaveKeepsTheInputAndMayBeTriedAgain()
{
    QFETCH(const bool, creating);
    const QString cmd = creating ? u"group.create"_s : u"group.update"_s;
    answerGroupList({groupRecord(u"p"_s, u"Parent"_s)});
    if (creating)
        openForCreate();
    else
        openForEdit();
    name()->setText(u" x "_s);
    description()->setPlainText(u"text\n"_s);
    parentGroup()->setCurrentIndex(1);
    displayOrder()->setValue(3);
    m_daemon->refuse(cmd, u"TOO_DEEP"_s, u"50% of %1 <b>%2</b>"_s);

    const LogCapture log;
    saveFails();
    QCOMPARE(log.lines(u"GroupDialog"_s),
             QStringList{u"ERROR Failed to save group: TOO_DEEP: 50% of %1 <b>%2</b>, TOO_DEEP"_s});
    QCOMPARE(name()->text(), u" x "_s);
    QCOMPARE(description()->toPlainText(), u"text\n"_s);
    QCOMPARE(parentGroup()->currentIndex(), 1);
    QCOMPARE(displayOrder()->value(), 3);

    const QJsonObject refused = sentGroup(cmd);
    m_daemon->clearRequests();
    m_daemon->answer(cmd, {{u"groupId"_s, u"g9"_s}});
    save();
    QCOMPARE(sentGroup(cmd), refused);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(log.lines(u"GroupDialog"_s).size(), 1);
}

void TestGroupDialogSave::answerWithoutAnIdIsAFailure()
{
    openForCreate();
    name()->setText(u"x"_s);
    m_daemon->answer(u"group.create"_s, {});
    const LogCapture log;
    saveFails();
    QCOMPARE(log.lines(u"GroupDialog"_s), QStringList{u"ERROR Failed to save group: , "_s});
}

void TestGroupDialogSave::withoutAConnectionSavingFails()
{
    m_client->disconnectFromDaemon();
    openForCreate();
    name()->setText(u"x"_s);
    const LogCapture log;
    saveFails();
    QCOMPARE(log.lines(u"GroupDialog"_s),
             QStringList{u"ERROR Failed to save group: Not connected to daemon, NOT_CONNECTED"_s});
    QCOMPARE(name()->text(), u"x"_s);
}

void TestGroupDialogSave::withoutAClientSavingFails()
{
    m_client.reset();
    openForCreate();
    name()->setText(u"x"_s);
    const LogCapture log;
    saveFails();
    QCOMPARE(log.lines(u"GroupDialog"_s), QStringList{u"ERROR Failed to save group: , "_s});
}

void TestGroupDialogSave::connectionLostBeforeTheSaveKeepsTheInput()
{
    openForEdit();
    name()->setText(u"Daily"_s);
    m_daemon->dropConnections();
    QTRY_VERIFY(!m_client->isConnected());
    saveFails();
    QCOMPARE(name()->text(), u"Daily"_s);
    QVERIFY(m_client->connectToDaemon());
    save();
    QCOMPARE(sentGroup(u"group.update"_s).value("name"_L1), QJsonValue(u"Daily"_s));
    QVERIFY(!m_dialog->isVisible());
}

ORVEL_TEST_MAIN(QApplication, TestGroupDialogSave)
#include "tst_groupdialogsave.moc"
