#pragma once

#include <QMessageBox>
#include <QString>

namespace Scheduler {

/// Shows a modal box with one OK button and waits for it. The text is shown as plain text, whatever markup it holds.
void showMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text);

/// Asks with the buttons Yes and No, none of them the default; true for Yes. The text is shown as plain text.
[[nodiscard]] bool askYesNo(QWidget *parent, const QString &title, const QString &text);

} // namespace Scheduler
