#pragma once

#include <QProgressDialog>

namespace Scheduler {

/// What stands in front of the window while the client reconnects. The user cannot dismiss it: Escape does nothing, and
/// closing it is taken for closing the window, which cannot be closed itself behind a modal dialog.
class ReconnectDialog : public QProgressDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ReconnectDialog)

public:
    explicit ReconnectDialog(QWidget *parent);

signals:
    void closeRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
};

} // namespace Scheduler
