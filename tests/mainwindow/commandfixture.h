#pragma once

#include "modaldriver.h"
#include "windowfixture.h"

#include <QStringList>
#include <QTableWidget>
#include <QTreeWidget>

namespace TestSupport {

/// A connected window with three tasks and the groups "Work (3)" and "Ungrouped (1)", whose own ticks are off: each
/// request that the daemon gets comes of what the test does.
class CommandFixture : public WindowFixture {
public:
    [[nodiscard]] bool connectQuietly(const QString &taskType = QStringLiteral("task_type.screen_record"),
                                      const QString &language = QStringLiteral("en"));

    [[nodiscard]] QTableWidget *table() const;
    [[nodiscard]] QTreeWidget *tree() const;
    /// Selects, and forgets the requests that it made.
    void selectTask(int row);
    void selectGroup(int index);
    /// Presses the button of this name, or runs the slot of this name, where no button leads to it.
    void run(const QString &control);

    /// Payload of the only request of the command; empty when there is none or more than one.
    [[nodiscard]] QJsonObject payloadOf(const QString &cmd) const;
};

/// Expects a question before a deletion; only its text differs from command to command.
void expectDeleteQuestion(ModalDriver &driver, const QString &text,
                          QMessageBox::StandardButton press = QMessageBox::Yes);

/// The requests that refresh the table, the counts of the two groups and the activity log.
[[nodiscard]] QStringList bundle();
/// The same while a group is selected.
[[nodiscard]] QStringList bundleOfGroup();

} // namespace TestSupport
