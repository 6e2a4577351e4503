#include "busydialog.h"

namespace Scheduler {

void prepareBusyDialog(QProgressDialog *dialog, const QString &objectName, const QString &title, const QString &text)
{
    dialog->setObjectName(objectName);
    dialog->setWindowTitle(title);
    dialog->setLabelText(text);
    dialog->setRange(0, 0);
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->setMinimumDuration(0);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
}

void closeBusyDialog(QPointer<QProgressDialog> &dialog)
{
    if (dialog == nullptr)
        return;
    dialog->close();
    // Closing runs slots, which may have closed it before.
    if (dialog != nullptr)
        dialog->deleteLater();
    dialog.clear();
}

} // namespace Scheduler
