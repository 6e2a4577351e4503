#pragma once

#include "mcsgrouptreewidget.h"
#include "windowfixture.h"

#include <QByteArray>
#include <QMimeData>

class QDropEvent;

namespace TestSupport {

/// The format in which tasks are dragged.
extern const QString taskIdsFormat;

// What a tree makes of an event of a drag.
extern const QString accepted;
extern const QString ignored;

/// A drag as the window system tells a tree of it. One that has neither left nor dropped leaves at the end.
class Drag {
public:
    explicit Drag(Scheduler::MCsGroupTreeWidget *tree, const QByteArray &payload = "t1");
    ~Drag();
    Q_DISABLE_COPY_MOVE(Drag)

    /// Carries something else from now on.
    void carry(const QString &format, const QByteArray &payload);

    // Each returns what the tree made of it. The tree is told of a move or a drop only when it has accepted the entry.
    QString enter(const QPoint &position);
    QString move(const QPoint &position);
    QString drop(const QPoint &position);
    void leave();

private:
    QString send(QDropEvent &event);

    Scheduler::MCsGroupTreeWidget *m_tree;
    std::unique_ptr<QMimeData> m_data;
};

/// A connected window with the groups "g1" and "g2", the second tinted and with "ungrouped" below it, and its own ticks
/// off.
class TreeWindow : public WindowFixture {
public:
    [[nodiscard]] bool connect();
    [[nodiscard]] QTreeWidgetItem *work() const;
    [[nodiscard]] QTreeWidgetItem *home() const;
    [[nodiscard]] QTreeWidgetItem *ungrouped() const;
    [[nodiscard]] QPoint on(const QTreeWidgetItem *item) const;
    [[nodiscard]] QPoint onNothing() const;

    Scheduler::MCsGroupTreeWidget *tree = nullptr;
};

/// Whether an item shows that a drag is over it.
[[nodiscard]] bool isHighlighted(const QTreeWidgetItem *item);
/// Whether an item has no background of its own.
[[nodiscard]] bool isBare(const QTreeWidgetItem *item);

} // namespace TestSupport
