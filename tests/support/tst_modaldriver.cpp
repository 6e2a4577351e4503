#include "modaldriver.h"
#include "testmain.h"

#include <QInputDialog>
#include <QProgressDialog>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;
using namespace TestSupport;

namespace {

constexpr QMessageBox::StandardButtons yesNo = QMessageBox::Yes | QMessageBox::No;

int runBox(QMessageBox::Icon icon, const QString &title, const QString &text, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(icon, title, text, buttons);
    box.setTextFormat(Qt::PlainText);
    return box.exec();
}

int warn(const QString &text)
{
    return runBox(QMessageBox::Warning, u"Title"_s, text, QMessageBox::Ok);
}

/// As the manager's busy dialogs: modal, but not run.
std::unique_ptr<QProgressDialog> shownProgress()
{
    auto progress = std::make_unique<QProgressDialog>();
    progress->setWindowTitle(u"Busy"_s);
    progress->setLabelText(u"Working..."_s);
    progress->setRange(0, 0);
    progress->setWindowModality(Qt::ApplicationModal);
    progress->setMinimumDuration(0);
    progress->show();
    return progress;
}

/// Shows a progress dialog for a while as soon as the driver has seen a box and before it presses anything.
class Cover : public QObject {
public:
    Cover()
    {
        qApp->installEventFilter(this);
    }
    [[nodiscard]] bool hasCovered() const
    {
        return m_covered;
    }

private:
    // The driver looks around when its timer fires, and acts on what it has seen in a later event.
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (!m_covered && event->type() == QEvent::Timer && qobject_cast<QTimer *>(receiver) != nullptr &&
            qobject_cast<QMessageBox *>(QApplication::activeModalWidget()) != nullptr) {
            m_covered = true;
            QMetaObject::invokeMethod(this, &Cover::cover, Qt::QueuedConnection);
        }
        return false;
    }
    void cover()
    {
        m_progress = shownProgress();
        QTimer::singleShot(20, this, [this] { m_progress.reset(); });
    }

    bool m_covered = false;
    std::unique_ptr<QProgressDialog> m_progress;
};

} // namespace

class TestModalDriver : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void expectedBoxesArePressedInOrder();
    void boxIsRecordedAsItStood();
    void unexpectedBoxIsRejectedAndReported();
    void boxThatDiffersIsRejectedAndReported_data();
    void boxThatDiffersIsRejectedAndReported();
    void boxThatNeverCameIsReported();
    void buttonThatTheBoxLacksIsReported();
    void dialogActionMayBringUpABox();
    void dialogThatItsActionLeavesOpenIsReportedAndRejected();
    void unexpectedDialogIsRejectedAndReported();
    void boxThatIsCoveredBeforeItIsMetIsMetLater();
    void sameDialogMayBeRunAgain();
    void driverThatFailedSaysSoUnasked();
    void progressDialogIsLeftAloneUnlessExpected();
    void dialogOpenBeforeTheDriverIsLeftAlone();
    void openWindowsAreListed();
};

void TestModalDriver::cleanup()
{
    QCOMPARE(openWindows(), QStringList());
}

void TestModalDriver::expectedBoxesArePressedInOrder()
{
    ModalDriver driver;
    driver.expectBox(QMessageBox::Question, u"Ask"_s, u"One?"_s, yesNo, QMessageBox::No);
    driver.expectBox(QMessageBox::Question, u"Ask"_s, u"Two?"_s, yesNo, QMessageBox::Yes);
    driver.expectBox(QMessageBox::Warning, u"Title"_s, u"Three"_s);
    QCOMPARE(runBox(QMessageBox::Question, u"Ask"_s, u"One?"_s, yesNo), int(QMessageBox::No));
    QCOMPARE(runBox(QMessageBox::Question, u"Ask"_s, u"Two?"_s, yesNo), int(QMessageBox::Yes));
    QVERIFY(!driver.finished());
    QCOMPARE(warn(u"Three"_s), int(QMessageBox::Ok));
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(driver.verify());
}

void TestModalDriver::boxIsRecordedAsItStood()
{
    ModalDriver driver;
    driver.expectBox(QMessageBox::Question, u"Ask"_s, u"<b>x</b>"_s, yesNo, QMessageBox::No);
    runBox(QMessageBox::Question, u"Ask"_s, u"<b>x</b>"_s, yesNo);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().size(), 1);
    const ModalDriver::Seen seen = driver.seen().first();
    QCOMPARE(seen.className, u"QMessageBox"_s);
    QCOMPARE(seen.title, u"Ask"_s);
    QCOMPARE(seen.text, u"<b>x</b>"_s);
    QCOMPARE(seen.icon, QMessageBox::Question);
    QCOMPARE(seen.buttons, yesNo);
    QCOMPARE(seen.textFormat, Qt::PlainText);
}

void TestModalDriver::unexpectedBoxIsRejectedAndReported()
{
    ModalDriver driver;
    QCOMPARE(runBox(QMessageBox::Question, u"Ask"_s, u"Really?"_s, yesNo), int(QDialog::Rejected));
    QVERIFY(!driver.finished());
    QCOMPARE(driver.problems(), "unexpected: QMessageBox (Question) titled \"Ask\", text \"Really?\", buttons Yes|No; "
                                "expected next: nothing");
}

void TestModalDriver::boxThatDiffersIsRejectedAndReported_data()
{
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QMessageBox::StandardButtons>("buttons");
    QTest::newRow("icon") << QMessageBox::Critical << u"T"_s << u"x"_s << yesNo;
    QTest::newRow("title") << QMessageBox::Warning << u"U"_s << u"x"_s << yesNo;
    QTest::newRow("text") << QMessageBox::Warning << u"T"_s << u"y"_s << yesNo;
    QTest::newRow("buttons") << QMessageBox::Warning << u"T"_s << u"x"_s << (yesNo | QMessageBox::Cancel);
}

void TestModalDriver::boxThatDiffersIsRejectedAndReported()
{
    QFETCH(const QMessageBox::Icon, icon);
    QFETCH(const QString, title);
    QFETCH(const QString, text);
    QFETCH(const QMessageBox::StandardButtons, buttons);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"T"_s, u"x"_s, yesNo, QMessageBox::Yes);
    QCOMPARE(runBox(icon, title, text, buttons), int(QDialog::Rejected));
    QVERIFY(!driver.finished());
    QVERIFY2(driver.problems().startsWith("unexpected: "), driver.problems());
    QVERIFY2(driver.problems().contains("expected next: QMessageBox (Warning) titled \"T\", text \"x\""),
             driver.problems());
}

void TestModalDriver::boxThatNeverCameIsReported()
{
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Title"_s, u"Text"_s);
    QVERIFY(!driver.finished());
    QCOMPARE(driver.problems(), "never came: QMessageBox (Warning) titled \"Title\", text \"Text\", buttons Ok");
}

void TestModalDriver::buttonThatTheBoxLacksIsReported()
{
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Title"_s, u"Text"_s, QMessageBox::Ok, QMessageBox::Yes);
    QCOMPARE(warn(u"Text"_s), int(QDialog::Rejected));
    QVERIFY(!driver.finished());
    QVERIFY2(driver.problems().contains("cannot press Yes"), driver.problems());
}

void TestModalDriver::dialogActionMayBringUpABox()
{
    ModalDriver driver;
    driver.expectDialog<QInputDialog>(u"Enter"_s, [](QInputDialog *dialog) {
        dialog->setTextValue(u"typed"_s);
        QCOMPARE(warn(u"Inside"_s), int(QMessageBox::Ok));
        dialog->accept();
    });
    driver.expectBox(QMessageBox::Warning, u"Title"_s, u"Inside"_s);
    QCOMPARE(QInputDialog::getText(nullptr, u"Enter"_s, u"Label"_s), u"typed"_s);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().size(), 2);
}

void TestModalDriver::dialogThatItsActionLeavesOpenIsReportedAndRejected()
{
    ModalDriver driver;
    driver.expectDialog<QInputDialog>(u"Enter"_s, [](QInputDialog *) {});
    QInputDialog dialog;
    dialog.setWindowTitle(u"Enter"_s);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(!driver.finished());
    QCOMPARE(driver.problems(), "left open by its action: QInputDialog titled \"Enter\"");
}

void TestModalDriver::unexpectedDialogIsRejectedAndReported()
{
    ModalDriver driver;
    driver.expectDialog<QInputDialog>(u"Enter"_s, [](QInputDialog *dialog) { dialog->accept(); });
    QInputDialog dialog;
    dialog.setWindowTitle(u"Other"_s);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(!driver.finished());
    QCOMPARE(driver.problems(),
             "unexpected: QInputDialog titled \"Other\"; expected next: QInputDialog titled \"Enter\""
             "\nnever came: QInputDialog titled \"Enter\"");
}

void TestModalDriver::boxThatIsCoveredBeforeItIsMetIsMetLater()
{
    const Cover cover;
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Title"_s, u"one"_s);
    QCOMPARE(warn(u"one"_s), QMessageBox::Ok);
    QVERIFY(cover.hasCovered());
    QVERIFY2(driver.finished(), driver.problems());
}

void TestModalDriver::sameDialogMayBeRunAgain()
{
    ModalDriver driver;
    QDialog dialog;
    for (int run = 0; run < 3; ++run)
        driver.expectDialog<QDialog>({}, [](QDialog *opened) { opened->accept(); });
    for (int run = 0; run < 3; ++run)
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY2(driver.finished(), driver.problems());
}

void TestModalDriver::driverThatFailedSaysSoUnasked()
{
    QEXPECT_FAIL("", "the driver's own failure", Continue);
    {
        ModalDriver driver;
        driver.expectBox(QMessageBox::Warning, u"Title"_s, u"Text"_s);
    }
    QEXPECT_FAIL("", "the driver's own failure", Continue);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Title"_s, u"Text"_s);
    QCOMPARE(driver.verify(), false);
}

void TestModalDriver::progressDialogIsLeftAloneUnlessExpected()
{
    ModalDriver driver;
    const std::unique_ptr<QProgressDialog> progress = shownProgress();
    QVERIFY(QTest::qWaitForWindowExposed(progress.get()));
    driver.expectBox(QMessageBox::Warning, u"Title"_s, u"Text"_s);
    QCOMPARE(warn(u"Text"_s), int(QMessageBox::Ok));
    QVERIFY(progress->isVisible());
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().size(), 1);

    driver.expectDialog<QProgressDialog>(u"Busy"_s, [](QProgressDialog *) {});
    QTRY_VERIFY2(driver.finished(), driver.problems());
    QVERIFY(progress->isVisible());
    QCOMPARE(driver.seen().last().text, u"Working..."_s);
}

void TestModalDriver::dialogOpenBeforeTheDriverIsLeftAlone()
{
    QDialog dialog;
    dialog.open();
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Title"_s, u"Text"_s);
    QCOMPARE(warn(u"Text"_s), int(QMessageBox::Ok));
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(dialog.isVisible());
}

void TestModalDriver::openWindowsAreListed()
{
    QWidget window;
    window.setWindowTitle(u"Main"_s);
    window.setObjectName(u"main"_s);
    QDialog dialog(&window);
    dialog.setWindowTitle(u"Dialog"_s);
    QCOMPARE(openWindows(), QStringList());
    window.show();
    dialog.show();
    QCOMPARE(openWindows(), (QStringList{u"QDialog titled \"Dialog\""_s, u"QWidget named \"main\" titled \"Main\""_s}));
    dialog.close();
    QCOMPARE(openWindows(), QStringList{u"QWidget named \"main\" titled \"Main\""_s});
}

ORVEL_TEST_MAIN(QApplication, TestModalDriver)
#include "tst_modaldriver.moc"
