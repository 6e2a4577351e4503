#include "views.h"

#include "mcsgrouptreewidget.h"
#include "mcsmainwindow.h"

#include <QComboBox>
#include <QLabel>
#include <QTableWidget>
#include <QTextEdit>
#include <QTreeWidgetItemIterator>

#include <algorithm>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

QStringList rowsOf(const QTableWidget &table)
{
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QTableWidgetItem *name = table.item(row, 0);
        rows.append(u"%1 %2 %3"_s.arg(name->data(Qt::UserRole).toString(), name->text(), table.item(row, 2)->text()));
    }
    return rows;
}

QStringList groupsOf(QTreeWidget *tree)
{
    QStringList groups;
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item)
        groups.append(u"%1 %2"_s.arg((*item)->data(0, MCsGroupTreeWidget::GroupIdRole).toString(), (*item)->text(0)));
    return groups;
}

QStringList linesOf(const QTextEdit &log)
{
    constexpr qsizetype timeLength = 20;
    QStringList lines = log.toPlainText().split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : lines)
        line = line.sliced(qMin(timeLength, line.size()));
    return lines;
}

QStringList itemsOf(const QComboBox &combo)
{
    QStringList items;
    for (int i = 0; i < combo.count(); ++i)
        items.append(combo.itemText(i));
    return items;
}

QString rowText(const Content::Task &task, bool enabled)
{
    return u"%1 %2 %3"_s.arg(task.id, task.name, enabled ? u"Enabled"_s : u"Disabled"_s);
}

} // namespace

Views Views::of(const MCsMainWindow &window)
{
    return {rowsOf(*window.findChild<QTableWidget *>(u"taskTable"_s)),
            window.findChild<QLabel *>(u"taskCountLabel"_s)->text(),
            groupsOf(window.findChild<QTreeWidget *>(u"groupTree"_s)),
            linesOf(*window.findChild<QTextEdit *>(u"logView"_s)),
            itemsOf(*window.findChild<QComboBox *>(u"typeFilterCombo"_s))};
}

QStringList Views::differences(const Views &expected) const
{
    QStringList all;
    const auto compare = [&all](const QString &part, const QStringList &actual, const QStringList &wanted) {
        if (actual != wanted)
            all.append(u"%1: [%2] instead of [%3]"_s.arg(part, actual.join("; "_L1), wanted.join("; "_L1)));
    };
    compare(u"rows"_s, rows, expected.rows);
    compare(u"count"_s, {count}, {expected.count});
    compare(u"groups"_s, groups, expected.groups);
    compare(u"log"_s, log, expected.log);
    compare(u"filter"_s, filter, expected.filter);
    return all;
}

QList<Content::Task> Content::tasks() const
{
    const auto named = [this](const QString &name) { return u"%1 %2"_s.arg(name, QString::number(age)); };
    QList<Task> tasks{{u"t1"_s, named(u"One"_s), age % 2 == 0},
                      {u"t2"_s, named(u"Two"_s), age % 2 == 1},
                      {u"t3"_s, named(u"Three"_s), age % 2 == 0}};
    std::rotate(tasks.begin(), tasks.begin() + age % tasks.size(), tasks.end());
    return tasks;
}

int Content::countOf(const QString &groupId) const
{
    return groupId == "g1"_L1 ? age + 10 : age + 20;
}

QString Content::logName() const
{
    return u"Event %1"_s.arg(age);
}

Views Content::views() const
{
    Views views;
    const QList<Task> all = tasks();
    for (const Task &task : all)
        views.rows.append(rowText(task, task.enabled));
    views.count = u"Tasks: %1"_s.arg(all.size());
    views.groups = {u"g1 Work (%1)"_s.arg(countOf(u"g1"_s)),
                    u"ungrouped Ungrouped (%1)"_s.arg(countOf(u"ungrouped"_s))};
    views.log = {u"Task '%1' updated"_s.arg(logName())};
    views.filter = {u"All Types"_s, u"Recorder"_s};
    return views;
}

QStringList Content::withStatuses(const QStringList &rows) const
{
    QStringList updated;
    const QList<Task> all = tasks();
    for (const QString &row : rows) {
        const auto task =
            std::ranges::find_if(all, [&row](const Task &each) { return row.startsWith(each.id + u' '); });
        updated.append(row.section(u' ', 0, -2) + (task->enabled ? u" Enabled"_s : u" Disabled"_s));
    }
    return updated;
}

} // namespace TestSupport
