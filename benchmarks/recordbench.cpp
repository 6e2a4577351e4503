#include "benchtable.h"
#include "cannedanswers.h"
#include "records.h"

#include <benchmark/benchmark.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

Measured listOfTasks()
{
    const QByteArray frame =
        responseFrame(u"req_1"_s, cannedAnswers({.tasks = 10000}).value(u"task.listByType"_s).first());
    return timePair(
        [&] {
            QJsonDocument document = QJsonDocument::fromJson(frame);
            benchmark::DoNotOptimize(document);
        },
        [&] {
            const QJsonObject response = QJsonDocument::fromJson(frame).object();
            const QJsonArray tasks = response.value("data"_L1).toObject().value("tasks"_L1).toArray();
            QList<Scheduler::TaskInfo> records;
            records.reserve(tasks.size());
            for (const QJsonValue &task : tasks)
                records.append(Scheduler::TaskInfo::fromJson(task.toObject()));
            benchmark::DoNotOptimize(records.data());
        });
}

} // namespace

QList<Row> recordRows()
{
    return {{u"listTasks answer of 10,000 tasks, bytes to records"_s, u"QJsonDocument::fromJson of the same bytes"_s,
             1.6, listOfTasks}};
}

} // namespace Bench
