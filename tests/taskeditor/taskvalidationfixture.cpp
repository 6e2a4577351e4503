#include "taskvalidationfixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace TestSupport {

void TaskValidationFixture::saveFails(const QString &text)
{
    m_daemon->clearRequests();
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Validation Error"_s, text);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_daemon->commands(), QStringList());
    QVERIFY(m_dialog->isVisible());
}

void TaskValidationFixture::blank(const char *edit) const
{
    widget<QLineEdit>(edit)->setText(u" \t "_s);
}

void TaskValidationFixture::setTime(const char *edit, int secondsFromNow) const
{
    widget<QDateTimeEdit>(edit)->setDateTime(QDateTime::currentDateTime().addSecs(secondsFromNow));
}

QString TaskValidationFixture::focused() const
{
    // A window manager would bring the dialog back by itself when a box before it has gone.
    m_dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(m_dialog.get()))
        return u"(the dialog is not active)"_s;
    const QWidget *const widget = QApplication::focusWidget();
    return widget == nullptr ? QString() : widget->objectName();
}

void TaskValidationFixture::openSound()
{
    openForCreate();
    widget<QLineEdit>("nameEdit")->setText(u"Demo"_s);
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    widget<QCheckBox>("enabledCheck")->setFocus();
}

} // namespace TestSupport
