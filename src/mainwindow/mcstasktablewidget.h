#pragma once

#include <QPixmap>
#include <QStringList>
#include <QTableWidget>

namespace Scheduler {

/// The list of tasks, one row each; the id of a row's task is in its first item under Qt::UserRole. Whole rows are
/// selected, and look the same with and without focus. Rows can be dragged onto a group.
class MCsTaskTableWidget : public QTableWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsTaskTableWidget)

public:
    explicit MCsTaskTableWidget(QWidget *parent = nullptr);

    /// The ids of the selected rows' tasks, each once, in the order of the selection.
    [[nodiscard]] QStringList selectedTaskIds() const;

    /// What is shown under the pointer while so many tasks are dragged.
    [[nodiscard]] QPixmap dragImage(int taskCount) const;

protected:
    void startDrag(Qt::DropActions supportedActions) override;
};

} // namespace Scheduler
