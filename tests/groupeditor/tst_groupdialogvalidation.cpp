#include "groupdialogfixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

class TestGroupDialogValidation : public GroupDialogFixture {
    Q_OBJECT

private slots:
    void nameMustNotBeBlank_data();
    void nameMustNotBeBlank();
    void tooLongNameIsRefusedEvenIfTheFieldLetsItThrough();
    void checksComeInOrder();
    void groupWithoutATaskTypeCannotBeSaved();
    void failedLoadStopsAtTheNameAndThenAtTheTaskType();
    void editingWithoutAConnectionStopsAtTheTaskType();
    void boxShowsItsTextPlain();
    void dialogMayGoWhileABoxIsUp();

private:
    /// Presses Save, and sees this box and nothing sent.
    void saveIsRefused(const QString &text);
};

void TestGroupDialogValidation::saveIsRefused(const QString &text)
{
    m_daemon->clearRequests();
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Validation Error"_s, text);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_daemon->commands(), QStringList());
}

void TestGroupDialogValidation::nameMustNotBeBlank_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << u"   "_s;
    QTest::newRow("other white space") << u"\t \u00a0\u3000"_s;
}

void TestGroupDialogValidation::nameMustNotBeBlank()
{
    QFETCH(const QString, typed);
    openForCreate();
    name()->setText(typed);
    displayOrder()->setFocus();
    saveIsRefused(u"Group name cannot be empty."_s);
    QCOMPARE(m_dialog->focusWidget(), name());
    QCOMPARE(name()->text(), typed);
}

void TestGroupDialogValidation::tooLongNameIsRefusedEvenIfTheFieldLetsItThrough()
{
    openForCreate();
    name()->setMaxLength(200);
    name()->setText(u' ' + QString(101, u'n') + u' ');
    displayOrder()->setFocus();
    saveIsRefused(u"Group name cannot exceed 100 characters."_s);
    QCOMPARE(m_dialog->focusWidget(), name());
}

void TestGroupDialogValidation::checksComeInOrder()
{
    answerGroup({{u"color"_s, u"nonsense"_s}, {u"taskType"_s, QString()}});
    openForEdit();
    name()->setText(u" "_s);
    saveIsRefused(u"Group name cannot be empty."_s);
    name()->setMaxLength(200);
    name()->setText(QString(101, u'n'));
    saveIsRefused(u"Group name cannot exceed 100 characters."_s);
    name()->setText(QString(100, u'n'));
    displayOrder()->setFocus();
    saveIsRefused(u"Invalid color format."_s);
    QCOMPARE(m_dialog->focusWidget(), displayOrder());
}

void TestGroupDialogValidation::groupWithoutATaskTypeCannotBeSaved()
{
    answerGroup({{u"taskType"_s, QString()}});
    openForEdit();
    displayOrder()->setFocus();
    saveIsRefused(u"Task type must be specified for the group."_s);
    QCOMPARE(m_dialog->focusWidget(), displayOrder());
}

void TestGroupDialogValidation::failedLoadStopsAtTheNameAndThenAtTheTaskType()
{
    m_daemon->refuse(u"group.get"_s, u"NOT_FOUND"_s, u"gone"_s);
    openForEdit();
    saveIsRefused(u"Group name cannot be empty."_s);
    name()->setText(u"x"_s);
    saveIsRefused(u"Task type must be specified for the group."_s);
}

void TestGroupDialogValidation::editingWithoutAConnectionStopsAtTheTaskType()
{
    m_client->disconnectFromDaemon();
    openForEdit();
    name()->setText(u"x"_s);
    saveIsRefused(u"Task type must be specified for the group."_s);
}

void TestGroupDialogValidation::boxShowsItsTextPlain()
{
    openForCreate();
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Validation Error"_s, u"Group name cannot be empty."_s);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
}

void TestGroupDialogValidation::dialogMayGoWhileABoxIsUp()
{
    openForCreate();
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Validation Error"_s, [this](QMessageBox *) { m_dialog.reset(); });
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog == nullptr);
}

ORVEL_TEST_MAIN(QApplication, TestGroupDialogValidation)
#include "tst_groupdialogvalidation.moc"
