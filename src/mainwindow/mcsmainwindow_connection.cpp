#include "mcsmainwindow.h"

#include "busydialog.h"
#include "mcslogger.h"
#include "mcsschedulerclient.h"
#include "messagebox.h"
#include "reconnectdialog.h"
#include "ui_mcsmainwindow.h"

#include <QProgressDialog>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int monitorIntervalMs = 3000;
constexpr int emptyPromptDelayMs = 300;
constexpr int auditRefreshIntervalMs = 100000;

} // namespace

// Runs twice for each connection: from connected(), inside connectToDaemon(), and again from whoever called that.
void MCsMainWindow::enterConnectedState()
{
    m_state = ConnectionState::Connected;
    if (m_autoConnectTimer != nullptr)
        m_autoConnectTimer->stop();
    closeConnectingDialog();
    setStatusLabel(true);
    m_client->enableAutoReconnect(true);
    enableConnectedControls();
    // Each refresh waits for the daemon, and the connection or the window may go under it.
    const auto load = [this](auto refresh) {
        if (m_state == ConnectionState::Connected)
            refresh();
    };
    load([this] { refreshTypeFilter(); });
    load([this] { refreshAll(); });
    load([this] { refreshGroupTree(); });
    load([this] { startConnectionMonitor(); });
    load([this] { scheduleEmptyPrompt(); });
    load([this] {
        if (m_client->isConnected())
            refreshAuditLog();
    });
    load([this] { m_auditRefreshTimer->start(auditRefreshIntervalMs); });
}

void MCsMainWindow::enableConnectedControls()
{
    for (QWidget *control : QList<QWidget *>{m_ui->createButton, m_ui->refreshButton, m_ui->typeFilterCombo,
                                             m_ui->createGroupButton, m_ui->refreshGroupButton})
        control->setEnabled(true);
    for (QWidget *control : QList<QWidget *>{m_ui->editButton, m_ui->deleteButton, m_ui->triggerButton,
                                             m_ui->editGroupButton, m_ui->deleteGroupButton})
        control->setEnabled(false);
}

void MCsMainWindow::startConnectionMonitor()
{
    if (m_connectionMonitorTimer == nullptr) {
        m_connectionMonitorTimer = new QTimer(this);
        m_connectionMonitorTimer->setObjectName(u"connectionMonitorTimer"_s);
        connect(m_connectionMonitorTimer, &QTimer::timeout, this, &MCsMainWindow::checkConnectionState);
    }
    m_connectionMonitorTimer->start(monitorIntervalMs);
}

void MCsMainWindow::checkConnectionState()
{
    if (m_state == ConnectionState::Connected && !m_client->isConnected())
        onClientConnectionLost();
}

void MCsMainWindow::scheduleEmptyPrompt()
{
    if (m_emptyPromptScheduled)
        return;
    m_emptyPromptScheduled = true;
    QTimer::singleShot(emptyPromptDelayMs, this, &MCsMainWindow::checkEmptyTasksAndPrompt);
}

void MCsMainWindow::checkEmptyTasksAndPrompt()
{
    const quint64 losses = m_losses;
    if (!m_client->isConnected() || m_client->getTaskCount() >= 1)
        return;
    // The count of a request whose connection was lost reads as none, and another connection may stand by now.
    if (m_state != ConnectionState::Connected || !m_client->isConnected() || losses != m_losses)
        return;
    if (askYesNo(this, tr("No Tasks Found"), tr("No scheduled tasks were found.\n\nWould you like to create one now?")))
        onCreateTask();
}

void MCsMainWindow::onConnectToDaemon()
{
    if (m_client->isConnected())
        return;
    m_state = ConnectionState::Idle;
    autoConnectToDaemon();
}

void MCsMainWindow::onDisconnectFromDaemon()
{
    if (!m_client->isConnected())
        return;
    m_state = ConnectionState::Idle;
    if (m_connectionMonitorTimer != nullptr)
        m_connectionMonitorTimer->stop();
    m_client->disableAutoReconnect();
    m_client->disconnectFromDaemon();
    m_auditRefreshTimer->stop();
    disableControls();
    setStatusLabel(false);
    m_ui->taskTable->setRowCount(0);
    m_ui->groupTree->clear();
}

void MCsMainWindow::onClientConnected()
{
    if (m_state != ConnectionState::Connected)
        enterConnectedState();
}

void MCsMainWindow::onClientDisconnected()
{
    ++m_losses;
    if (m_state != ConnectionState::Closing)
        setStatusLabel(false);
}

void MCsMainWindow::onClientConnectionLost()
{
    if (m_state == ConnectionState::Reconnecting || m_state == ConnectionState::Connecting ||
        m_state == ConnectionState::Closing)
        return;
    m_state = ConnectionState::Reconnecting;
    MCsLogger::instance().warn(mainWindowLogSource, tr("[WARN] Connection lost, attempting to reconnect..."));
    setStatusLabel(false);
    disableControls();
    if (m_connectionMonitorTimer != nullptr)
        m_connectionMonitorTimer->stop();
    showReconnectDialog();
}

void MCsMainWindow::onClientReconnecting(int attempt, int maxAttempts)
{
    const QString number = QString::number(attempt);
    const QString limit = QString::number(maxAttempts);
    MCsLogger::instance().info(mainWindowLogSource, tr("[INFO] Reconnection attempt %1 of %2...").arg(number, limit));
    m_statusLabel->setText(tr("Reconnecting (%1/%2)...").arg(number, limit));
    if (m_reconnectDialog != nullptr)
        m_reconnectDialog->setLabelText(tr("Connection lost. Reconnecting...\nAttempt %1 of %2").arg(number, limit));
}

void MCsMainWindow::onClientReconnected()
{
    closeReconnectDialog();
    enterConnectedState();
}

void MCsMainWindow::onClientReconnectFailed()
{
    closeReconnectDialog();
    showFatalErrorAndQuit(tr("Connection to scheduler service was lost and could not be restored.\n\nThe application "
                             "will now close."));
}

void MCsMainWindow::onClientError(const QString & /*message*/)
{
    // Each command reports its own failure.
}

void MCsMainWindow::showReconnectDialog()
{
    if (m_reconnectDialog != nullptr)
        return;
    auto *dialog = new ReconnectDialog(this);
    connect(dialog, &ReconnectDialog::closeRequested, this, &QWidget::close);
    m_reconnectDialog = dialog;
    prepareBusyDialog(dialog, u"reconnectDialog"_s, tr("Connection Lost"),
                      tr("Connection lost. Reconnecting to scheduler service..."));
    dialog->setCancelButton(nullptr);
    m_reconnectDialog->show();
}

void MCsMainWindow::closeReconnectDialog()
{
    closeBusyDialog(m_reconnectDialog);
}

void MCsMainWindow::setStatusLabel(bool connected)
{
    m_statusLabel->setText(connected ? tr("Connected") : tr("Disconnected"));
    m_statusLabel->setStyleSheet(connected ? u"color: green; font-weight: bold;"_s : u"color: red;"_s);
}

} // namespace Scheduler
