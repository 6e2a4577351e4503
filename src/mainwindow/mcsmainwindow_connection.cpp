#include "mcsmainwindow.h"

#include "mcslogger.h"
#include "mcsschedulerclient.h"
#include "messagebox.h"
#include "reconnectdialog.h"
#include "servicecontrol.h"
#include "ui_mcsmainwindow.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int maxAttemptsInStep = 3;
constexpr int nextAttemptDelayMs = 100;
constexpr int serviceStartDelayMs = 1500;
constexpr int nextRetryDelayMs = 500;
constexpr int monitorIntervalMs = 3000;
constexpr int emptyPromptDelayMs = 300;
constexpr int auditRefreshIntervalMs = 100000;

void quitSoon()
{
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}

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

void closeDialog(QPointer<QProgressDialog> &dialog)
{
    if (dialog == nullptr)
        return;
    dialog->close();
    // Closing runs slots, which may have closed it before.
    if (dialog != nullptr)
        dialog->deleteLater();
    dialog.clear();
}

} // namespace

void MCsMainWindow::autoConnectToDaemon()
{
    if (m_state == ConnectionState::Connected || m_state == ConnectionState::Closing)
        return;
    closeReconnectDialog(); // nothing else would, once the client does not reconnect by itself
    if (m_client->isConnected()) {
        enterConnectedState();
        return;
    }
    m_client->disableAutoReconnect();
    m_state = ConnectionState::Connecting;
    m_aborted = false;
    m_autoConnectStep = AutoConnectStep::InitialAttempts;
    m_autoConnectAttempt = 0;
    showConnectingDialog(tr("Connecting to scheduler service..."));
    if (m_autoConnectTimer == nullptr) {
        m_autoConnectTimer = new QTimer(this);
        m_autoConnectTimer->setObjectName(u"autoConnectTimer"_s);
        m_autoConnectTimer->setSingleShot(true);
        connect(m_autoConnectTimer, &QTimer::timeout, this, &MCsMainWindow::onAutoConnectStep);
    }
    m_autoConnectTimer->start(0);
}

void MCsMainWindow::onAutoConnectStep()
{
    if (m_aborted || m_state == ConnectionState::Closing) {
        closeConnectingDialog();
        return;
    }
    if (m_connectDialog != nullptr && m_connectDialog->wasCanceled()) {
        cancelAutoConnect();
        return;
    }
    switch (m_autoConnectStep) {
    case AutoConnectStep::InitialAttempts:
        tryInitialConnection();
        break;
    case AutoConnectStep::StartService:
        startServiceStep();
        break;
    case AutoConnectStep::RetryAfterStart:
        retryAfterStart();
        break;
    }
}

void MCsMainWindow::cancelAutoConnect()
{
    m_aborted = true;
    m_state = ConnectionState::Closing;
    m_client->disableAutoReconnect();
    if (m_client->isConnected())
        m_client->disconnectFromDaemon();
    closeConnectingDialog();
    quitSoon();
}

// True when the step has nothing more to do: the connection stands, or the window has closed while the registration
// waited.
bool MCsMainWindow::connectInStep()
{
    const bool reached = m_client->connectToDaemon();
    if (m_state == ConnectionState::Closing)
        return true;
    if (!reached)
        return false;
    // A connection that was lost again meanwhile is the reconnection's business.
    if (m_client->isConnected())
        enterConnectedState();
    return true;
}

void MCsMainWindow::tryInitialConnection()
{
    const QString attempt = QString::number(++m_autoConnectAttempt);
    const QString limit = QString::number(maxAttemptsInStep);
    setConnectingText(tr("Connecting to scheduler service (attempt %1 of %2)...").arg(attempt, limit));
    if (connectInStep())
        return;
    if (m_client->lastErrorCode() == "CLIENT_TYPE_ALREADY_CONNECTED"_L1) {
        showFatalErrorAndQuit(tr("Unable to connect to the scheduler service because multiple manager instances are "
                                 "running. Please close the other scheduler managers first."));
        return;
    }
    MCsLogger::instance().error(mainWindowLogSource,
                                tr("connected to deamon failed! (attempt %1 of %2) reason = ").arg(attempt, limit) +
                                    m_client->lastError());
    if (m_autoConnectAttempt >= maxAttemptsInStep) {
        m_autoConnectStep = AutoConnectStep::StartService;
        m_autoConnectAttempt = 0;
        MCsLogger::instance().warn(mainWindowLogSource,
                                   tr("[WARN] Initial connection failed, attempting to start service..."));
    }
    m_autoConnectTimer->start(nextAttemptDelayMs);
}

void MCsMainWindow::startServiceStep()
{
    if (!isServiceRunning() && !startService()) {
        if (isServiceInstalled())
            showFatalErrorAndQuit(tr("Scheduler service is installed but failed to start.\n\nPlease check system logs "
                                     "or reinstall the service."));
        else
            showFatalErrorAndQuit(tr("Scheduler service is not installed.\n\nPlease reinstall the service and restart "
                                     "the application."));
        return;
    }
    m_autoConnectStep = AutoConnectStep::RetryAfterStart;
    m_autoConnectAttempt = 0;
    setConnectingText(tr("Waiting for service to start..."));
    m_autoConnectTimer->start(serviceStartDelayMs);
}

void MCsMainWindow::retryAfterStart()
{
    ++m_autoConnectAttempt;
    setConnectingText(tr("Reconnecting to scheduler service (attempt %1 of %2)...")
                          .arg(QString::number(m_autoConnectAttempt), QString::number(maxAttemptsInStep)));
    if (connectInStep())
        return;
    if (m_autoConnectAttempt < maxAttemptsInStep) {
        m_autoConnectTimer->start(nextRetryDelayMs);
        return;
    }
    showFatalErrorAndQuit(tr("Unable to connect to scheduler service after multiple attempts.\n\nPlease ensure the "
                             "service is running correctly and try again."));
}

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

void MCsMainWindow::showFatalErrorAndQuit(const QString &message)
{
    m_state = ConnectionState::Closing;
    m_aborted = true;
    if (m_autoConnectTimer != nullptr)
        m_autoConnectTimer->stop();
    closeConnectingDialog();
    showMessage(this, QMessageBox::Critical, tr("Service Error"), message);
    quitSoon();
}

void MCsMainWindow::showConnectingDialog(const QString &text)
{
    if (m_connectDialog == nullptr) {
        m_connectDialog = new QProgressDialog(this);
        prepareBusyDialog(m_connectDialog, u"connectDialog"_s, tr("Connecting"), text);
        m_connectDialog->setCancelButtonText(tr("Cancel"));
    }
    m_connectDialog->setLabelText(text);
    m_connectDialog->show();
}

void MCsMainWindow::setConnectingText(const QString &text)
{
    if (m_connectDialog != nullptr)
        m_connectDialog->setLabelText(text);
}

void MCsMainWindow::closeConnectingDialog()
{
    closeDialog(m_connectDialog);
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
    closeDialog(m_reconnectDialog);
}

void MCsMainWindow::setStatusLabel(bool connected)
{
    m_statusLabel->setText(connected ? tr("Connected") : tr("Disconnected"));
    m_statusLabel->setStyleSheet(connected ? u"color: green; font-weight: bold;"_s : u"color: red;"_s);
}

bool MCsMainWindow::isServiceRunning()
{
    return ServiceControl::isServiceRunning();
}

bool MCsMainWindow::isServiceInstalled()
{
    return ServiceControl::isServiceInstalled();
}

bool MCsMainWindow::startService()
{
    return ServiceControl::startService();
}

} // namespace Scheduler
