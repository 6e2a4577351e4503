#pragma once

#include "taskdialogfixture.h"

namespace TestSupport {

inline const QString nameMissing = QStringLiteral("Task name is required.");
inline const QString typeMissing = QStringLiteral("Task type is required.");
inline const QString startPassed = QStringLiteral("Specified date/time must be in the future.");
inline const QString dayMissing = QStringLiteral("At least one weekday must be selected for EveryWeek mode.");
inline const QString programMissing = QStringLiteral("Monitor program is required for monitorApp mode.");
inline const QString folderMissing = QStringLiteral("Monitor folder path is required for monitorFolder mode.");
inline const QString extensionsMissing = QStringLiteral("File extensions are required for monitorFolder mode.");
inline const QString stopPassed = QStringLiteral("Stop time must be in the future.");

/// Base of the tests of what is examined before a task goes to the daemon.
class TaskValidationFixture : public TaskDialogFixture {
    Q_OBJECT

protected:
    /// Presses Save and acknowledges the fault. Nothing may be sent, and the dialog must stay.
    void saveFails(const QString &text);
    /// Gives the edit a text of only blanks.
    void blank(const char *edit) const;
    void setTime(const char *edit, int secondsFromNow) const;
    /// The name of the widget to which the keyboard goes when the dialog is active.
    [[nodiscard]] QString focused() const;
    /// The dialog of a new task that could be saved, with the focus on the switch.
    void openSound();
};

} // namespace TestSupport
