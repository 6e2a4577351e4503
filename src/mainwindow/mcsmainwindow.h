#pragma once

#include "records.h"

#include <QDeadlineTimer>
#include <QMainWindow>
#include <QModelIndex>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <optional>

class QDialog;
class QLabel;
class QMenu;
class QProgressDialog;
class QTimer;
class QTreeWidgetItem;
class Ui_MCsMainWindow;

namespace Scheduler {

class MCsSchedulerClient;

/// Source of the main window's log entries.
extern const QString mainWindowLogSource;

/// Where the window stands with the daemon.
enum class ConnectionState : int {
    Idle = 0,         ///< nothing under way
    Connecting = 1,   ///< the automatic connection procedure runs
    Connected = 2,    ///< connected and registered
    Reconnecting = 3, ///< the connection was lost; the client reconnects
    Closing = 4       ///< cancelled, fatal, or the window closes; final
};

/// Where the automatic connection procedure stands.
enum class AutoConnectStep : int { InitialAttempts = 0, StartService = 1, RetryAfterStart = 2 };

/// The one top-level window: the groups, the tasks and the activity log of one host program.
///
/// It owns the client, finds the daemon by itself once it is shown, and closes the application when the daemon cannot
/// be had. The views hold the data; every refresh reads the daemon anew. Each daemon call runs an event loop, so no
/// item, row or iterator is kept across one: ids are read before it and looked up again after it.
class MCsMainWindow : public QMainWindow {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsMainWindow)

public:
    explicit MCsMainWindow(QWidget *parent = nullptr);
    /// The task type becomes the type under which the client registers. The parameter text is handed to the task
    /// dialog and may be empty.
    MCsMainWindow(const QString &language, const QString &taskType, const QString &programName,
                  const QString &programPath, const QString &programParametersJson, QWidget *parent = nullptr);
    ~MCsMainWindow() override;

    /// The catalogue code for a host's language shortcut; "en" for an unknown one.
    [[nodiscard]] static QString mapLanguageShortcut(const QString &shortcut);

    [[nodiscard]] ConnectionState connectionState() const;

public slots:
    void autoConnectToDaemon();
    void onAutoConnectStep();
    void onConnectToDaemon();
    void onDisconnectFromDaemon();
    void onClientConnected();
    void onClientDisconnected();
    void onClientConnectionLost();
    void onClientReconnecting(int attempt, int maxAttempts);
    void onClientReconnected();
    void onClientReconnectFailed();
    void onClientError(const QString &message);
    void onCreateTask();
    void onEditTask();
    void onDeleteTask();
    void onToggleTaskEnabled();
    void onTriggerTask();
    void onRefreshTaskList();
    void onTaskSelectionChanged();
    void onViewTaskRuns();
    void onViewTaskLogs();
    void onFilterByType(const QString &type);
    void onExportLogs();
    void onUpdateTaskStatus();
    void onCreateGroup();
    void onEditGroup();
    void onDeleteGroup();
    void onGroupSelectionChanged();
    void onEnableAllTasksInGroup();
    void onDisableAllTasksInGroup();
    void onDeleteAllTasksInGroup();
    void onTriggerAllTasksInGroup();
    void onTaskDroppedOnGroup(const QString &taskId, const QString &groupId);
    void onTasksDroppedOnGroup(const QStringList &taskIds, const QString &groupId);
    void onGroupExpanded(const QModelIndex &index);
    void onGroupCollapsed(const QModelIndex &index);
    void onRefreshGroups();
    void checkEmptyTasksAndPrompt();
    void onRefreshAuditLog();
    void onAuditLogAutoRefresh();

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    // Frame
    void initialize();
    void setupTypeFilter();
    void setupTaskTable();
    void setupProportions();
    void setupStatusBar();
    void setupGroupContextMenu();
    void setupConnections();
    void setupTaskConnections();
    void setupGroupConnections();
    void setupClientConnections();
    void setupStatusUpdates();
    void setupAuditRefresh();
    void disableControls();
    void showGroupContextMenu(const QPoint &position);

    // Language
    void applyLanguage(const QString &shortcut);

    // Connection
    void tryInitialConnection();
    void startServiceStep();
    void retryAfterStart();
    bool connectInStep();
    void cancelAutoConnect();
    void enterConnectedState();
    void enableConnectedControls();
    void startConnectionMonitor();
    void checkConnectionState();
    void scheduleEmptyPrompt();
    void showFatalErrorAndQuit(const QString &message);
    void showConnectingDialog(const QString &text);
    void setConnectingText(const QString &text);
    void closeConnectingDialog();
    void showReconnectDialog();
    void closeReconnectDialog();
    void setStatusLabel(bool connected);
    bool isServiceRunning();
    bool isServiceInstalled();
    bool startService();

    // Task table
    void refreshAll();
    void refreshTaskTable();
    void updateTaskCountLabel();
    void refreshTaskStatuses();
    void refreshTypeFilter();
    [[nodiscard]] QList<TaskInfo> listShownTasks();

    // Group tree
    void refreshGroupTree();
    void fillGroupTree(const QList<GroupInfo> &groups);
    void updateGroupTaskCounts();
    [[nodiscard]] QTreeWidgetItem *findGroupItem(const QString &groupId) const;

    // Commands
    [[nodiscard]] std::optional<QString> newGroupTaskType();
    void showTaskDialog(const QString &taskId, const QString &groupId);
    void showGroupDialog(const QString &groupId);
    bool runDialog(QDialog *dialog);
    void finishCommand(bool succeeded, void (MCsMainWindow::*refresh)(), const QString &failureTitle,
                       const QString &failureText);
    void refreshAfterTrigger();
    void refreshAfterDrop();
    void refreshAfterGroupDeletion();

    // Activity log
    void refreshAuditLog();
    [[nodiscard]] QString formatAuditEntry(const AuditLogEntry &entry) const;

    Ui_MCsMainWindow *m_ui = nullptr;
    MCsSchedulerClient *m_client = nullptr;
    QString m_language;
    bool m_emptyPromptScheduled = false;
    QString m_programName;
    QString m_programPath;
    ConnectionState m_state = ConnectionState::Idle;
    bool m_firstShow = true;
    bool m_aborted = false;
    AutoConnectStep m_autoConnectStep = AutoConnectStep::InitialAttempts;
    int m_autoConnectAttempt = 0;
    QTimer *m_autoConnectTimer = nullptr;
    QPointer<QProgressDialog> m_connectDialog;
    QPointer<QProgressDialog> m_reconnectDialog;
    QTimer *m_connectionMonitorTimer = nullptr;
    QMenu *groupContextMenu = nullptr;
    QLabel *m_statusLabel = nullptr;
    QTimer *m_statusUpdateTimer = nullptr;
    QTimer *m_auditRefreshTimer = nullptr;
    QString currentGroupId;
    QString m_programParametersJson;
    bool m_openingDialog = false; ///< a dialog reads from the daemon and is not up yet; a second one must not open
    QDeadlineTimer m_statusWait;  ///< how long the one-second update may still wait for its answer; expired when not
    quint64 m_statusTick = 0;     ///< number of the newest one-second update; an older one's answer is stale
    quint64 m_tableRefresh = 0;   ///< number of the newest table refresh; an older one's answer is stale
    quint64 m_treeRefresh = 0;    ///< the same for the tree
    quint64 m_countRefresh = 0;   ///< the same for the numbers of tasks in it
    quint64 m_logRefresh = 0;     ///< the same for the activity log
    quint64 m_losses = 0;         ///< connections that have ended; an answer from before the last is stale
};

} // namespace Scheduler
