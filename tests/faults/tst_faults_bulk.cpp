#include "matrix.h"
#include "scripteddaemon.h"
#include "testmain.h"

#include "mcsgroupdialog.h"
#include "mcsschedulerclient.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QLocalSocket>
#include <QPushButton>
#include <QTextEdit>

#include <algorithm>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// Cuts the answer in two behind this byte. Tells through whole that it was no longer than that.
Fault cutBehind(qsizetype bytes, bool *whole)
{
    return {"cut behind byte " + QByteArray::number(bytes),
            Outcome::Answered,
            [bytes, whole](const Strike &strike) {
                const QByteArray frame = strike.frame();
                *whole = bytes >= frame.size();
                ScriptedDaemon *daemon = &strike.daemon;
                daemon->sendRaw(frame.first(qMin(bytes, frame.size())));
                QTimer::singleShot(0, daemon,
                                   [daemon, rest = frame.sliced(qMin(bytes, frame.size()))] { daemon->sendRaw(rest); });
            },
            {},
            {}};
}

Fault hugeFrame()
{
    return {"64 MiB",
            Outcome::Answered,
            [](const Strike &strike) {
                const QByteArray filler(64 * 1024 * 1024, 'x');
                strike.daemon.sendRaw("{\"filler\":\"" + filler + "\"," + strike.frame().sliced(1));
            },
            {},
            {}};
}

Moment momentNamed(const QByteArray &name)
{
    const QList<Moment> all = allMoments();
    const auto found = std::ranges::find(all, name, &Moment::name);
    return found == all.end() ? Moment() : *found;
}

} // namespace

/// Much of something: every place at which an answer can be cut, frames of many megabytes, and requests that nobody
/// reads.
class TestFaultsBulk : public FaultMatrix {
    Q_OBJECT

private slots:
    void anAnswerMayBeCutAtEveryByte_data();
    void anAnswerMayBeCutAtEveryByte();
    void aFrameOf64MiBIsAnAnswerLikeAnyOther_data();
    void aFrameOf64MiBIsAnAnswerLikeAnyOther();
    void requestsThatNobodyReadsBackUpAndGoOutLater();
};

void TestFaultsBulk::anAnswerMayBeCutAtEveryByte_data()
{
    QTest::addColumn<QByteArray>("moment");
    for (const QByteArray name : {"registration", "count after connecting", "task.delete", "task.disable",
                                  "task.moveToGroup", "group.delete", "group.enableAllTasks", "saving a new group"})
        QTest::newRow(name.constData()) << name;
}

void TestFaultsBulk::anAnswerMayBeCutAtEveryByte()
{
    QFETCH(const QByteArray, moment);
    bool whole = false;
    qsizetype bytes = 1;
    for (; !whole && !QTest::currentTestFailed(); ++bytes)
        runCell(momentNamed(moment), cutBehind(bytes, &whole));
    QVERIFY2(bytes > 40, "no answer is shorter than its id");
}

void TestFaultsBulk::aFrameOf64MiBIsAnAnswerLikeAnyOther_data()
{
    QTest::addColumn<QByteArray>("moment");
    for (const QByteArray name : {"table refresh", "saving a new task"})
        QTest::newRow(name.constData()) << name;
}

void TestFaultsBulk::aFrameOf64MiBIsAnAnswerLikeAnyOther()
{
    QFETCH(const QByteArray, moment);
    runCell(momentNamed(moment), hugeFrame());
}

void TestFaultsBulk::requestsThatNobodyReadsBackUpAndGoOutLater()
{
    Stage &stage = *this->stage();
    stage.renew();
    const QString line = QString(1000, u'x') + u'\n';
    const QString description = line.repeated(600);
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Create Group"_s, [&](MCsGroupDialog *dialog) {
        require<QLineEdit>(dialog, "nameEdit")->setText(u"Typed"_s);
        require<QTextEdit>(dialog, "descriptionEdit")->setPlainText(description);
        QAbstractButton *save = require<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Save);
        stage.client->setCommandTimeout(100);
        stage.daemon.pauseReading(true);
        click(save);
        QVERIFY(stage.client->findChild<QLocalSocket *>()->bytesToWrite() > 0);
        QCOMPARE(stage.daemon.requests(u"group.create"_s).size(), 0);
        QCOMPARE(require<QTextEdit>(dialog, "descriptionEdit")->toPlainText(), description);
        stage.window->onUpdateTaskStatus(); // waits behind what has backed up
        QCOMPARE(stage.window->connectionState(), ConnectionState::Connected);

        stage.client->setCommandTimeout(20000);
        stage.daemon.pauseReading(false);
        QTRY_COMPARE(stage.daemon.requests(u"group.create"_s).size(), 1);
        QTRY_COMPARE(stage.client->findChild<QLocalSocket *>()->bytesToWrite(), 0);
        click(save);
        QCOMPARE(stage.daemon.requests(u"group.create"_s).size(), 2);
    });
    driver.expectBox(QMessageBox::Critical, u"Error"_s,
                     u"Failed to save group. Please check the error log for details."_s);
    click(stage.window.get(), "createGroupButton");
    QVERIFY2(driver.finished(), driver.problems());
    stage.expect(stage.newest());
}

ORVEL_TEST_MAIN(QApplication, TestFaultsBulk)
#include "tst_faults_bulk.moc"
