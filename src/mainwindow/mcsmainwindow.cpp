#include "mcsmainwindow.h"

#include "mcsschedulerclient.h"
#include "messagebox.h"
#include "tasktypes.h"
#include "ui_mcsmainwindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QProgressDialog>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Scheduler {

const QString mainWindowLogSource = u"MainWindow"_s;

namespace {

constexpr int autoConnectDelayMs = 100;
constexpr int statusUpdateIntervalMs = 1000;

} // namespace

MCsMainWindow::MCsMainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(new Ui_MCsMainWindow)
    , m_client(new MCsSchedulerClient(this))
{
    m_client->setClientType(u"unknow"_s);
    initialize();
}

MCsMainWindow::MCsMainWindow(const QString &language, const QString &taskType, const QString &programName,
                             const QString &programPath, const QString &programParametersJson, QWidget *parent)
    : QMainWindow(parent)
    , m_ui(new Ui_MCsMainWindow)
    , m_client(new MCsSchedulerClient(this))
    , m_language(language)
    , m_programName(programName)
    , m_programPath(programPath)
    , m_programParametersJson(programParametersJson)
{
    m_client->setClientType(taskType);
    initialize();
}

MCsMainWindow::~MCsMainWindow()
{
    for (QTimer *timer : {m_autoConnectTimer, m_connectionMonitorTimer, m_statusUpdateTimer}) {
        if (timer != nullptr)
            timer->stop();
    }
    m_client->disableAutoReconnect();
    m_client->blockSignals(true);
    if (m_client->isConnected())
        m_client->disconnectFromDaemon();
    closeConnectingDialog();
    closeReconnectDialog();
    delete m_ui;
}

ConnectionState MCsMainWindow::connectionState() const
{
    return m_state;
}

void MCsMainWindow::initialize()
{
    m_client->setObjectName(u"schedulerClient"_s);
    applyLanguage(m_language); // first, so that the form is built in the right language
    m_ui->setupUi(this);
    setWindowTitle(QCoreApplication::applicationName() + u" - "_s + m_programName);
    setupTypeFilter();
    setupTaskTable();
    setupProportions();
    setupStatusBar();
    setupGroupContextMenu();
    setupConnections();
    m_ui->typeFilterCombo->hide(); // kept up to date and read, but never shown
    setupStatusUpdates();
    disableControls();
    setupAuditRefresh();
    m_ui->logView->show();
}

void MCsMainWindow::setupTypeFilter()
{
    m_ui->typeFilterCombo->addItem(allTypesText);
}

void MCsMainWindow::setupTaskTable()
{
    QHeaderView *header = m_ui->taskTable->horizontalHeader();
    header->setStretchLastSection(true);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
}

void MCsMainWindow::setupProportions()
{
    m_ui->mainSplitter->setStretchFactor(0, 1);
    m_ui->mainSplitter->setStretchFactor(1, 3);
    m_ui->rightLayout->setStretch(1, 3);
    m_ui->rightLayout->setStretch(2, 1);
}

void MCsMainWindow::setupStatusBar()
{
    m_statusLabel = new QLabel(tr("Disconnected"), this);
    m_statusLabel->setObjectName(u"statusLabel"_s);
    m_ui->statusBar->addPermanentWidget(m_statusLabel, 0);
    setStatusLabel(false);
}

void MCsMainWindow::setupGroupContextMenu()
{
    groupContextMenu = new QMenu(this);
    groupContextMenu->setObjectName(u"groupContextMenu"_s);
    const auto add = [this](const QString &text, void (MCsMainWindow::*slot)()) {
        connect(groupContextMenu->addAction(text), &QAction::triggered, this, slot);
    };
    add(tr("Enable All Tasks"), &MCsMainWindow::onEnableAllTasksInGroup);
    add(tr("Disable All Tasks"), &MCsMainWindow::onDisableAllTasksInGroup);
    groupContextMenu->addSeparator();
    add(tr("Trigger All Tasks"), &MCsMainWindow::onTriggerAllTasksInGroup);
    groupContextMenu->addSeparator();
    add(tr("Delete All Tasks"), &MCsMainWindow::onDeleteAllTasksInGroup);
    connect(m_ui->groupTree, &QWidget::customContextMenuRequested, this, &MCsMainWindow::showGroupContextMenu);
}

void MCsMainWindow::setupConnections()
{
    setupTaskConnections();
    setupGroupConnections();
    setupClientConnections();
    connect(m_ui->refreshLogButton, &QPushButton::clicked, this, &MCsMainWindow::onRefreshAuditLog);
}

void MCsMainWindow::setupTaskConnections()
{
    connect(m_ui->createButton, &QPushButton::clicked, this, &MCsMainWindow::onCreateTask);
    connect(m_ui->editButton, &QPushButton::clicked, this, &MCsMainWindow::onEditTask);
    connect(m_ui->deleteButton, &QPushButton::clicked, this, &MCsMainWindow::onDeleteTask);
    connect(m_ui->triggerButton, &QPushButton::clicked, this, &MCsMainWindow::onTriggerTask);
    connect(m_ui->refreshButton, &QPushButton::clicked, this, &MCsMainWindow::onRefreshTaskList);
    connect(m_ui->taskTable, &QTableWidget::itemSelectionChanged, this, &MCsMainWindow::onTaskSelectionChanged);
}

void MCsMainWindow::setupGroupConnections()
{
    connect(m_ui->createGroupButton, &QPushButton::clicked, this, &MCsMainWindow::onCreateGroup);
    connect(m_ui->editGroupButton, &QPushButton::clicked, this, &MCsMainWindow::onEditGroup);
    connect(m_ui->deleteGroupButton, &QPushButton::clicked, this, &MCsMainWindow::onDeleteGroup);
    connect(m_ui->refreshGroupButton, &QPushButton::clicked, this, &MCsMainWindow::onRefreshGroups);
    connect(m_ui->groupTree, &QTreeWidget::itemSelectionChanged, this, &MCsMainWindow::onGroupSelectionChanged);
    connect(m_ui->groupTree, &MCsGroupTreeWidget::taskDropped, this, &MCsMainWindow::onTasksDroppedOnGroup);
}

void MCsMainWindow::setupClientConnections()
{
    connect(m_client, &MCsSchedulerClient::connected, this, &MCsMainWindow::onClientConnected);
    connect(m_client, &MCsSchedulerClient::disconnected, this, &MCsMainWindow::onClientDisconnected);
    connect(m_client, &MCsSchedulerClient::connectionLost, this, &MCsMainWindow::onClientConnectionLost);
    connect(m_client, &MCsSchedulerClient::reconnecting, this, &MCsMainWindow::onClientReconnecting);
    connect(m_client, &MCsSchedulerClient::reconnected, this, &MCsMainWindow::onClientReconnected);
    connect(m_client, &MCsSchedulerClient::error, this, &MCsMainWindow::onClientError);
    connect(m_client, &MCsSchedulerClient::reconnectFailed, this, &MCsMainWindow::onClientReconnectFailed);
}

void MCsMainWindow::setupStatusUpdates()
{
    m_statusUpdateTimer = new QTimer(this);
    m_statusUpdateTimer->setObjectName(u"statusUpdateTimer"_s);
    connect(m_statusUpdateTimer, &QTimer::timeout, this, &MCsMainWindow::onUpdateTaskStatus);
    m_statusUpdateTimer->start(statusUpdateIntervalMs);
}

void MCsMainWindow::setupAuditRefresh()
{
    m_auditRefreshTimer = new QTimer(this);
    m_auditRefreshTimer->setObjectName(u"auditRefreshTimer"_s);
    connect(m_auditRefreshTimer, &QTimer::timeout, this, &MCsMainWindow::onAuditLogAutoRefresh);
}

void MCsMainWindow::disableControls()
{
    const QList<QWidget *> controls{m_ui->createButton,      m_ui->editButton,      m_ui->deleteButton,
                                    m_ui->triggerButton,     m_ui->refreshButton,   m_ui->typeFilterCombo,
                                    m_ui->createGroupButton, m_ui->editGroupButton, m_ui->deleteGroupButton,
                                    m_ui->refreshGroupButton};
    for (QWidget *control : controls)
        control->setEnabled(false);
}

void MCsMainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!m_firstShow)
        return;
    m_firstShow = false;
    QTimer::singleShot(autoConnectDelayMs, this, &MCsMainWindow::autoConnectToDaemon);
}

void MCsMainWindow::closeEvent(QCloseEvent *event)
{
    m_auditRefreshTimer->stop();
    m_aborted = true;
    m_state = ConnectionState::Closing;
    if (m_autoConnectTimer != nullptr)
        m_autoConnectTimer->stop();
    m_client->disableAutoReconnect();
    m_client->blockSignals(true);
    closeConnectingDialog();
    closeReconnectDialog();
    QMainWindow::closeEvent(event);
}

void MCsMainWindow::onViewTaskRuns()
{
    showMessage(this, QMessageBox::Information, tr("Task Runs"), tr("Task runs view not yet implemented."));
}

void MCsMainWindow::onViewTaskLogs()
{
    showMessage(this, QMessageBox::Information, tr("Task Logs"), tr("Task logs view not yet implemented."));
}

void MCsMainWindow::onExportLogs()
{
    showMessage(this, QMessageBox::Information, tr("Export Logs"), tr("Log export not yet implemented."));
}

} // namespace Scheduler
