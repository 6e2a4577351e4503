#include "mcstasktablewidget.h"

#include "plaintooltipdelegate.h"
#include "taskcell.h"
#include "taskdragmime.h"

#include <QDrag>
#include <QPainter>
#include <QSet>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr QSize dragImageSize(120, 30);
constexpr qreal dragImageRadius = 6.0;

} // namespace

MCsTaskTableWidget::MCsTaskTableWidget(QWidget *parent)
    : QTableWidget(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setFocusPolicy(Qt::StrongFocus);
    setItemDelegate(new PlainToolTipDelegate(this));

    QPalette colors = palette();
    for (const QPalette::ColorGroup group : {QPalette::All, QPalette::Inactive}) {
        colors.setColor(group, QPalette::Highlight, QColor(u"#0a64ad"_s));
        colors.setColor(group, QPalette::HighlightedText, Qt::white);
    }
    setPalette(colors);

    setStyleSheet(u"QTableWidget::item:selected, QTableWidget::item:selected:active, "
                  "QTableWidget::item:selected:!active { background-color: #0a64ad; color: #ffffff; }"_s);
}

QStringList MCsTaskTableWidget::selectedTaskIds() const
{
    QStringList ids;
    QSet<QString> seen;
    const QList<QTableWidgetItem *> selected = selectedItems(); // one per cell
    for (const QTableWidgetItem *cell : selected) {
        const QTableWidgetItem *first = item(cell->row(), NameColumn);
        const QString id = first == nullptr ? QString() : first->data(Qt::UserRole).toString();
        if (id.isEmpty() || seen.contains(id))
            continue;
        seen.insert(id);
        ids.append(id);
    }
    return ids;
}

QPixmap MCsTaskTableWidget::dragImage(int taskCount) const
{
    QPixmap image(dragImageSize);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 200, 255, 200));
    painter.drawRoundedRect(image.rect().adjusted(0, 0, -1, -1), dragImageRadius, dragImageRadius);
    painter.setPen(Qt::black);
    painter.drawText(image.rect(), Qt::AlignCenter, tr("%n task(s)", nullptr, taskCount));
    return image;
}

void MCsTaskTableWidget::startDrag(Qt::DropActions /*supportedActions*/)
{
    const QStringList ids = selectedTaskIds();
    if (ids.isEmpty())
        return;
    auto *drag = new QDrag(this);
    drag->setMimeData(TaskDragMime::fromTaskIds(ids).release());
    drag->setPixmap(dragImage(static_cast<int>(ids.size())));
    drag->setHotSpot({dragImageSize.width() / 2, dragImageSize.height() / 2});
    drag->exec(Qt::MoveAction); // the drop's own refresh changes the rows
}

} // namespace Scheduler
