#pragma once

#include "tasktexts.h"

#include <QSharedData>
#include <QTableWidgetItem>

namespace Scheduler {

enum TaskColumn : int { NameColumn, TypeColumn, StatusColumn, NextRunColumn, LastRunColumn, TaskColumnCount };

/// What a row of the task table shows.
struct TaskRow : QSharedData {
    QString id;
    QString name;
    QString type;
    QString lastRunStatus;
    Countdown nextRun;
    bool enabled = false;
};

/// A cell of the task table. The cells of a row show one TaskRow and put it into words and colours when they are
/// painted: of ten thousand rows only those in sight ever are, an update touches the TaskRow alone, and no cell needs
/// the list of values that QTableWidgetItem keeps. What is shown changes through row() and showChange(), and not
/// through the setters of the item.
class TaskCell : public QTableWidgetItem {
public:
    static constexpr int Type = QTableWidgetItem::UserType + 1;
    using Row = QExplicitlySharedDataPointer<TaskRow>;

    TaskCell(const Row &row, TaskColumn column);

    [[nodiscard]] const Row &row() const
    {
        return m_row;
    }
    [[nodiscard]] QVariant data(int role) const override;

private:
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] QVariant foreground() const;

    Row m_row;
    TaskColumn m_column;
};

} // namespace Scheduler
