#include "taskrows.h"

#include "tasktexts.h"

#include <QHash>
#include <QSignalBlocker>
#include <QTableWidget>

namespace Scheduler {

namespace {

enum Column : int { NameColumn, TypeColumn, StatusColumn, NextRunColumn, LastRunColumn };

/// The first item of a row. It knows what the row shows, so that an update need not ask each item.
class TaskItem : public QTableWidgetItem {
public:
    static constexpr int Type = QTableWidgetItem::UserType + 1;

    explicit TaskItem(const TaskInfo &task)
        : QTableWidgetItem(task.name, Type)
        , id(task.id)
    {
        setData(Qt::UserRole, task.id);
    }

    const QString id;
    bool enabled = false;
    Countdown countdown;
    QString lastRunStatus;
};

TaskItem *taskItem(const QTableWidget &table, int row)
{
    QTableWidgetItem *item = table.item(row, NameColumn);
    return item != nullptr && item->type() == TaskItem::Type ? static_cast<TaskItem *>(item) : nullptr;
}

QTableWidgetItem *coloredItem(const TaskTexts::Look &look)
{
    auto *item = new QTableWidgetItem(look.text);
    item->setForeground(look.brush);
    return item;
}

void fillRow(QTableWidget &table, int row, const TaskInfo &task, TaskTexts &texts)
{
    auto *name = new TaskItem(task);
    name->enabled = task.enabled;
    name->countdown = texts.countdownTo(task.nextRunAt);
    name->lastRunStatus = task.lastRunStatus;
    const TaskTexts::Look &lastRun = texts.runStatusLook(task.lastRunStatus);
    QTableWidgetItem *lastRunItem = coloredItem(lastRun);
    lastRunItem->setToolTip(lastRun.text);

    table.setItem(row, NameColumn, name);
    table.setItem(row, TypeColumn, new QTableWidgetItem(texts.typeName(task.type)));
    table.setItem(row, StatusColumn, coloredItem(texts.enabledLook(task.enabled)));
    table.setItem(row, NextRunColumn, new QTableWidgetItem(texts.formatNextRun(name->countdown)));
    table.setItem(row, LastRunColumn, lastRunItem);
}

void show(QTableWidgetItem *item, const TaskTexts::Look &look)
{
    if (item == nullptr)
        return;
    item->setForeground(look.brush);
    item->setText(look.text);
}

/// True when something has changed.
bool updateRow(const QTableWidget &table, int row, TaskItem &name, const TaskInfo &task, TaskTexts &texts)
{
    const Countdown countdown = texts.countdownTo(task.nextRunAt);
    const bool sameState = name.enabled == task.enabled;
    const bool sameTime = name.countdown == countdown;
    const bool sameOutcome = name.lastRunStatus == task.lastRunStatus;
    if (!sameState)
        show(table.item(row, StatusColumn), texts.enabledLook(task.enabled));
    if (QTableWidgetItem *item = table.item(row, NextRunColumn); !sameTime && item != nullptr)
        item->setText(texts.formatNextRun(countdown));
    if (QTableWidgetItem *item = table.item(row, LastRunColumn); !sameOutcome && item != nullptr) {
        const TaskTexts::Look &look = texts.runStatusLook(task.lastRunStatus);
        show(item, look);
        item->setToolTip(look.text);
    }
    name.enabled = task.enabled;
    name.countdown = countdown;
    name.lastRunStatus = task.lastRunStatus;
    return !sameState || !sameTime || !sameOutcome;
}

} // namespace

void fillTaskRows(QTableWidget &table, const QList<TaskInfo> &tasks)
{
    const int count = static_cast<int>(tasks.size());
    table.setRowCount(count);
    TaskTexts texts;
    {
        const QSignalBlocker quiet(table.model());
        for (int row = 0; row < count; ++row)
            fillRow(table, row, tasks.at(row), texts);
    }
    table.viewport()->update();
}

void updateTaskRows(QTableWidget &table, const QList<TaskInfo> &tasks)
{
    QHash<QString, int> rows;
    rows.reserve(table.rowCount());
    for (int row = 0; row < table.rowCount(); ++row) {
        if (const TaskItem *item = taskItem(table, row); item != nullptr)
            rows.insert(item->id, row);
    }
    TaskTexts texts;
    bool changed = false;
    {
        const QSignalBlocker quiet(table.model());
        for (const TaskInfo &task : tasks) {
            if (const auto row = rows.constFind(task.id); row != rows.constEnd())
                changed = updateRow(table, *row, *taskItem(table, *row), task, texts) || changed;
        }
    }
    if (changed)
        table.viewport()->update();
}

bool hasNoTaskRows(const QTableWidget &table)
{
    for (int row = 0; row < table.rowCount(); ++row) {
        if (taskItem(table, row) != nullptr)
            return false;
    }
    return true;
}

} // namespace Scheduler
