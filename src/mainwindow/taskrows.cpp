#include "taskrows.h"

#include "itemviews.h"
#include "taskcell.h"

#include <QHash>
#include <QSet>
#include <QSignalBlocker>
#include <QTableWidget>

namespace Scheduler {

namespace {

/// Few types and statuses stand in many tasks, each of which brings a text of its own. The rows share one.
class SharedTexts {
public:
    [[nodiscard]] QString shared(const QString &text)
    {
        if (const auto known = m_texts.constFind(text); known != m_texts.constEnd())
            return *known;
        if (m_texts.size() < limit) // a daemon may as well give each task a status in words of its own
            m_texts.insert(text);
        return text;
    }

private:
    static constexpr qsizetype limit = 1000;
    QSet<QString> m_texts;
};

TaskCell *firstCell(const QTableWidget &table, int row)
{
    QTableWidgetItem *item = table.item(row, NameColumn);
    return item != nullptr && item->type() == TaskCell::Type ? static_cast<TaskCell *>(item) : nullptr;
}

/// What the row shows. Cells that are there stay: a refresh mostly brings what was shown before.
TaskRow &ensuredRow(QTableWidget &table, int row)
{
    const TaskCell *first = firstCell(table, row);
    const TaskCell::Row shown = first != nullptr ? first->row() : TaskCell::Row(new TaskRow);
    for (const TaskColumn column : {NameColumn, TypeColumn, StatusColumn, NextRunColumn, LastRunColumn}) {
        if (table.item(row, column) == nullptr)
            table.setItem(row, column, new TaskCell(shown, column));
    }
    return *shown;
}

template <typename Value> [[nodiscard]] bool change(Value &value, const Value &newValue)
{
    if (value == newValue)
        return false;
    value = newValue;
    return true;
}

/// Writes what changes by itself as time goes by. True when something has changed.
bool writeStatus(TaskRow &row, const TaskInfo &task, const QDateTime &now, SharedTexts &texts)
{
    bool changed = change(row.enabled, task.enabled);
    changed |= change(row.nextRun, countdownFrom(now, task.nextRunAt));
    if (row.lastRunStatus == task.lastRunStatus)
        return changed;
    row.lastRunStatus = texts.shared(task.lastRunStatus);
    return true;
}

void write(TaskRow &row, const TaskInfo &task, const QDateTime &now, SharedTexts &texts)
{
    row.id = task.id;
    row.name = task.name;
    row.type = texts.shared(task.type);
    (void)writeStatus(row, task, now, texts);
}

} // namespace

void fillTaskRows(QTableWidget &table, const QList<TaskInfo> &tasks)
{
    const int count = static_cast<int>(tasks.size());
    table.setRowCount(count);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    SharedTexts texts;
    {
        const QSignalBlocker quiet(table.model());
        for (int row = 0; row < count; ++row)
            write(ensuredRow(table, row), tasks.at(row), now, texts);
    }
    showChange(table);
}

void updateTaskRows(QTableWidget &table, const QList<TaskInfo> &tasks)
{
    QHash<QString, TaskRow *> rows;
    rows.reserve(table.rowCount());
    for (int row = 0; row < table.rowCount(); ++row) {
        if (const TaskCell *cell = firstCell(table, row); cell != nullptr)
            rows.insert(cell->row()->id, cell->row().get());
    }
    const QDateTime now = QDateTime::currentDateTimeUtc();
    SharedTexts texts;
    bool changed = false;
    for (const TaskInfo &task : tasks) {
        if (TaskRow *row = rows.value(task.id); row != nullptr)
            changed |= writeStatus(*row, task, now, texts);
    }
    if (changed)
        showChange(table);
}

bool hasNoTaskRows(const QTableWidget &table)
{
    for (int row = 0; row < table.rowCount(); ++row) {
        if (firstCell(table, row) != nullptr)
            return false;
    }
    return true;
}

} // namespace Scheduler
