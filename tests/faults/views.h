#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

namespace Scheduler {
class MCsMainWindow;
}

namespace TestSupport {

/// What the window shows of the daemon's data, as text.
struct Views {
    QStringList rows;   ///< "id name status" of each row of the table
    QString count;      ///< below the table
    QStringList groups; ///< "id text" of each item of the tree
    QStringList log;    ///< each line without its time
    QStringList filter;

    static Views of(const Scheduler::MCsMainWindow &window);
    /// One line for each part in which the two differ; empty when they are equal.
    [[nodiscard]] QStringList differences(const Views &expected) const;
};

/// What the daemon has to show after it has changed so many times. The ids stay, and everything else changes: names,
/// the order of the tasks, whether they are enabled, the numbers of tasks, the log.
struct Content {
    int age = 0;

    struct Task {
        QString id;
        QString name;
        bool enabled = false;
    };

    [[nodiscard]] QList<Task> tasks() const;
    [[nodiscard]] int countOf(const QString &groupId) const;
    [[nodiscard]] QString logName() const;

    /// As the views show all of it while no group is selected.
    [[nodiscard]] Views views() const;
    /// The rows of other content with the statuses of this.
    [[nodiscard]] QStringList withStatuses(const QStringList &rows) const;
};

} // namespace TestSupport
