#pragma once

#include <QByteArray>
#include <QMimeData>
#include <QString>
#include <QStringList>

#include <memory>

namespace Scheduler::TaskDragMime {

// What a drag from the task table to the group tree carries: task ids, joined by commas, in UTF-8. Ids hold no comma.

inline const QString format = QStringLiteral("application/x-scheduler-taskids");

[[nodiscard]] inline std::unique_ptr<QMimeData> fromTaskIds(const QStringList &ids)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(format, ids.join(u',').toUtf8());
    return data;
}

[[nodiscard]] inline QStringList toTaskIds(const QMimeData &data)
{
    return QString::fromUtf8(data.data(format)).split(u',', Qt::SkipEmptyParts);
}

} // namespace Scheduler::TaskDragMime
