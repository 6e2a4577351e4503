#include "messagebox.h"

#include <QPointer>

namespace Scheduler {

namespace {

// The box lives on the heap because its parent may be destroyed while it is up, and would then destroy it a second
// time.
int runBox(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
           QMessageBox::StandardButtons buttons)
{
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, buttons, parent);
    box->setTextFormat(Qt::PlainText);
    const int answer = box->exec();
    delete box;
    return answer;
}

} // namespace

void showMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text)
{
    runBox(parent, icon, title, text, QMessageBox::Ok);
}

bool askYesNo(QWidget *parent, const QString &title, const QString &text)
{
    return runBox(parent, QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

} // namespace Scheduler
