#pragma once

#include <QPointer>
#include <QProgressDialog>

namespace Scheduler {

/// Makes a progress dialog one that tells of work without a known end: in front of every window, at once, until it is
/// closed by closeBusyDialog().
void prepareBusyDialog(QProgressDialog *dialog, const QString &objectName, const QString &title, const QString &text);

/// Closes the dialog, if there is one, and lets it be deleted from the event loop. The pointer is null afterwards.
void closeBusyDialog(QPointer<QProgressDialog> &dialog);

} // namespace Scheduler
