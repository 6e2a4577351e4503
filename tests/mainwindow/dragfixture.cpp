#include "dragfixture.h"

#include <QCoreApplication>
#include <QDragEnterEvent>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace TestSupport {

const QString taskIdsFormat = u"application/x-scheduler-taskids"_s;
const QString accepted = u"accepted"_s;
const QString ignored = u"ignored"_s;

Drag::Drag(MCsGroupTreeWidget *tree, const QByteArray &payload)
    : m_tree(tree)
{
    carry(taskIdsFormat, payload);
}

Drag::~Drag()
{
    leave();
}

void Drag::carry(const QString &format, const QByteArray &payload)
{
    m_data = std::make_unique<QMimeData>();
    m_data->setData(format, payload);
}

QString Drag::enter(const QPoint &position)
{
    QDragEnterEvent event(position, Qt::MoveAction, m_data.get(), Qt::LeftButton, {});
    return send(event);
}

QString Drag::move(const QPoint &position)
{
    QDragMoveEvent event(position, Qt::MoveAction, m_data.get(), Qt::LeftButton, {});
    return send(event);
}

QString Drag::drop(const QPoint &position)
{
    QDropEvent event(position, Qt::MoveAction, m_data.get(), Qt::NoButton, {});
    return send(event);
}

void Drag::leave()
{
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(m_tree->viewport(), &event);
}

// An event comes neither as accepted with its action nor as ignored, so that doing nothing is neither.
QString Drag::send(QDropEvent &event)
{
    event.accept();
    event.setDropAction(Qt::IgnoreAction);
    QCoreApplication::sendEvent(m_tree->viewport(), &event);
    if (!event.isAccepted())
        return ignored;
    return event.dropAction() == Qt::MoveAction ? accepted : u"left alone"_s;
}

bool TreeWindow::connect()
{
    if (!connectWindow())
        return false;
    timer("statusUpdateTimer")->stop();
    setGroups({groupJson(u"g1"_s, u"Work"_s), groupJson(u"g2"_s, u"Home"_s, {{u"color"_s, u"#ff0000"_s}}),
               groupJson(u"ungrouped"_s, u"Ungrouped"_s, {{u"parentId"_s, u"g2"_s}})});
    click(window.get(), "refreshGroupButton");
    tree = widget<MCsGroupTreeWidget>("groupTree");
    daemon.clearRequests();
    return tree->topLevelItemCount() == 2 && home()->childCount() == 1;
}

QTreeWidgetItem *TreeWindow::work() const
{
    return tree->topLevelItem(0);
}

QTreeWidgetItem *TreeWindow::home() const
{
    return tree->topLevelItem(1);
}

QTreeWidgetItem *TreeWindow::ungrouped() const
{
    return home()->child(0);
}

QPoint TreeWindow::on(const QTreeWidgetItem *item) const
{
    return tree->visualItemRect(item).center();
}

QPoint TreeWindow::onNothing() const
{
    return tree->viewport()->rect().bottomLeft() + QPoint(5, -5);
}

bool isHighlighted(const QTreeWidgetItem *item)
{
    return item->background(0) == QBrush(QColor(100, 150, 255, 80));
}

bool isBare(const QTreeWidgetItem *item)
{
    return item->background(0) == QBrush();
}

} // namespace TestSupport
