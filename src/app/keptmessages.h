#pragma once

#include <QtGlobal>

namespace Scheduler {

/// Messages that every catalogue holds and no code shows: the outcomes of connecting and of each command, as lines for
/// the activity log. The log shows the daemon's own entries instead. They stand here so that lupdate finds them and the
/// catalogues keep them.
inline constexpr const char *keptMainWindowMessages[] = {
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Already connected"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Connected to scheduler service"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Reconnected to scheduler service"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Disconnected from scheduler service"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Not connected"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to connect to scheduler service"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Connection to scheduler service lost"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to reconnect to scheduler service"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Not connected to scheduler service"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Scheduler service started"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Waiting for scheduler service to start"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to start scheduler service"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Scheduler service is not installed"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Task list refreshed"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to refresh task list"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Task created: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to create task: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Task updated: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to update task: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Task deleted: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to delete task: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Task enabled: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to enable task: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Task disabled: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to disable task: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Task triggered: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to trigger task: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Task moved to group '%1'"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to move task to group '%1'"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] %1 tasks moved to group '%2'"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to move %1 tasks to group '%2'"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Group list refreshed"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to refresh group list"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Group created: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to create group: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Group updated: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to update group: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Group deleted: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to delete group: %1"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] All tasks in the group enabled"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to enable all tasks in the group"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] All tasks in the group disabled"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to disable all tasks in the group"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] All tasks in the group triggered"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to trigger all tasks in the group"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] All tasks in the group deleted"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to delete all tasks in the group"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[INFO] Activity log refreshed"),
    QT_TRANSLATE_NOOP("Scheduler::MCsMainWindow", "[ERROR] Failed to refresh activity log"),
};

/// Of the task dialog, which reports what it could not save but not what it could not load.
inline constexpr const char *keptTaskDialogMessages[] = {
    QT_TRANSLATE_NOOP("Scheduler::MCsTaskDialog", "Failed to load task."),
};

} // namespace Scheduler
