#pragma once

#include "records.h"

#include <QList>

class QTableWidget;

namespace Scheduler {

// The rows of the task table: name with the task's id behind it (Qt::UserRole), type, whether it is enabled, the
// countdown to the next run, and the outcome of the last one.
//
// Both functions write without a signal for each cell and repaint the view once: with ten thousand rows the signals
// would cost more than all the rest.

/// Makes the table show these tasks and no others. Selection and scroll position stay where they are, by row.
void fillTaskRows(QTableWidget &table, const QList<TaskInfo> &tasks);

/// Writes the last three columns of those rows whose tasks are given. Rows are neither added nor removed; of two rows
/// with one id the later is written. What has not changed is left alone.
void updateTaskRows(QTableWidget &table, const QList<TaskInfo> &tasks);

/// True when no row bears a task's id.
[[nodiscard]] bool hasNoTaskRows(const QTableWidget &table);

} // namespace Scheduler
