#include "reconnectdialog.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace Scheduler {

ReconnectDialog::ReconnectDialog(QWidget *parent)
    : QProgressDialog(parent)
{
}

void ReconnectDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        event->accept();
    else
        QProgressDialog::keyPressEvent(event);
}

void ReconnectDialog::closeEvent(QCloseEvent *event)
{
    if (!event->spontaneous()) {
        QProgressDialog::closeEvent(event);
        return;
    }
    event->ignore();
    emit closeRequested();
}

} // namespace Scheduler
