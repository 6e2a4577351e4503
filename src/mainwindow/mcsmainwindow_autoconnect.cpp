#include "mcsmainwindow.h"

#include "busydialog.h"
#include "mcslogger.h"
#include "mcsschedulerclient.h"
#include "messagebox.h"
#include "servicecontrol.h"

#include <QCoreApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int maxAttemptsInStep = 3;
constexpr int nextAttemptDelayMs = 100;
constexpr int serviceStartDelayMs = 1500;
constexpr int nextRetryDelayMs = 500;

void quitSoon()
{
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
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
    closeBusyDialog(m_connectDialog);
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
