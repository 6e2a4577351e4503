#include "mcslasttaskdefaults.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString screenType = u"task_type.screen_record"_s;

QJsonObject storedValues(const QString &type = screenType)
{
    return MCsLastTaskDefaults().loadDefaults(type).value("dynamicParams"_L1).toObject();
}

} // namespace

/// What happens to the dialog while the daemon stores its task.
class TestTaskDialogSaveWaits : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void connectionLostDuringSave();
    void secondPressWhileSavingSendsNothing();
    void dialogCancelledWhileSavingIsStillAccepted();
    void dialogCancelledWhileAFailingSaveShowsNoBox();
    void dialogDestroyedWhileSaving();
    void dialogDestroyedUnderTheBoxOfSuccess();
    void typeChosenWhileSavingIsNotSaved();
    void inputWhileSavingIsNotSaved();
    void saveWhileGroupsAreListedTakesTheGroupThatShows();
};

void TestTaskDialogSaveWaits::connectionLostDuringSave()
{
    openForEdit();
    enterEverything();
    const QJsonObject before = m_dialog->collectTaskDocument();
    whileWaiting(u"task.update"_s, [this] { m_daemon->dropConnections(); });
    ModalDriver driver;
    expectFailure(driver, u"TIMEOUT: Request timed out after 2000ms"_s);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->collectTaskDocument(), before);
}

void TestTaskDialogSaveWaits::secondPressWhileSavingSendsNothing()
{
    openForCreate();
    enterEverything();
    whileWaiting(u"task.create"_s, [this] { save(); });
    saveSuccessfully();
    QCOMPARE(m_daemon->requests(u"task.create"_s).size(), 1);
}

void TestTaskDialogSaveWaits::dialogCancelledWhileSavingIsStillAccepted()
{
    openForCreate();
    enterEverything();
    whileWaiting(u"task.create"_s, [this] { click(button(QDialogButtonBox::Cancel)); });
    saveSuccessfully();
    QVERIFY(!m_dialog->isVisible());
}

void TestTaskDialogSaveWaits::dialogCancelledWhileAFailingSaveShowsNoBox()
{
    m_daemon->refuse(u"task.create"_s, u"X"_s, u"no"_s);
    openForCreate();
    enterEverything();
    whileWaiting(u"task.create"_s, [this] { click(button(QDialogButtonBox::Cancel)); });
    ModalDriver driver;
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
}

void TestTaskDialogSaveWaits::dialogDestroyedWhileSaving()
{
    openForCreate();
    enterEverything();
    whileWaiting(u"task.create"_s, [this] { m_dialog.reset(); });
    ModalDriver driver;
    button(QDialogButtonBox::Save)->click();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog == nullptr);
    QCOMPARE(settingsKeys(), QStringList());
}

void TestTaskDialogSaveWaits::dialogDestroyedUnderTheBoxOfSuccess()
{
    openForCreate();
    enterEverything();
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Success"_s, [this](QMessageBox *) { m_dialog.reset(); });
    button(QDialogButtonBox::Save)->click();
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog == nullptr);
    // It was stored all the same.
    QCOMPARE(storedValues().value("fps"_L1).toInt(), 77);
}

void TestTaskDialogSaveWaits::typeChosenWhileSavingIsNotSaved()
{
    setClientType(u"task_type.all"_s);
    openForCreate();
    enterEverything();
    const QJsonObject document = m_dialog->collectTaskDocument();
    whileWaiting(u"task.create"_s, [this] { QTest::keyClick(widget<QComboBox>("typeCombo"), Qt::Key_Down); });
    saveSuccessfully();
    QCOMPARE(widget<QComboBox>("typeCombo")->currentData().toString(), u"task_type.audio_record"_s);
    QCOMPARE(document.value("type"_L1).toString(), screenType);
    QCOMPARE(sentTask(u"task.create"_s), document);
    // What is remembered is what was saved, too.
    QCOMPARE(storedValues(), document["paramsJson"_L1]["dynamicParams"_L1].toObject());
    QCOMPARE(storedValues(u"task_type.audio_record"_s), QJsonObject());
}

void TestTaskDialogSaveWaits::inputWhileSavingIsNotSaved()
{
    openForEdit();
    enterEverything();
    const QJsonObject document = m_dialog->collectTaskDocument();
    whileWaiting(u"task.update"_s, [this] {
        widget<QLineEdit>("nameEdit")->setText(u"Later"_s);
        choose("displayModeShow");
    });
    saveSuccessfully();
    QCOMPARE(sentTask(u"task.update"_s), document);
}

void TestTaskDialogSaveWaits::saveWhileGroupsAreListedTakesTheGroupThatShows()
{
    setClientType(u"task_type.all"_s);
    openForCreate(u"g1"_s);
    enterEverything();
    QCOMPARE(widget<QComboBox>("groupCombo")->currentData().toString(), u"g2"_s);
    QString shown;
    whileWaiting(u"group.listByTaskType"_s, [this, &shown] {
        shown = widget<QComboBox>("groupCombo")->currentText();
        saveSuccessfully();
    });
    QTest::keyClick(widget<QComboBox>("typeCombo"), Qt::Key_Down);
    QCOMPARE(shown, u"Ungrouped"_s);
    const QJsonObject sent = sentTask(u"task.create"_s);
    QCOMPARE(sent.value("groupId"_L1), QJsonValue(QString()));
    QCOMPARE(sent.value("type"_L1).toString(), u"task_type.audio_record"_s);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    // The listing comes to its end in the closed dialog.
    QCOMPARE(widget<QComboBox>("groupCombo")->count(), 3);
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogSaveWaits)
#include "tst_taskdialogsavewaits.moc"
