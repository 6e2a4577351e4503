#include "answerform.h"
#include "jsontext.h"
#include "mcscheckbench.h"

#include <QDateTime>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

/// The members of a task document that come back in a task.
QJsonObject readable(QJsonObject document)
{
    document.remove("programName"_L1);
    document.remove("targetProgram"_L1);
    return document;
}

void create(MCsCheckBench &bench)
{
    const QJsonObject document = bench.taskDocument();
    const QJsonValue id = bench.succeed(u"task.create"_s, {{u"task"_s, document}}).value("taskId"_L1);
    bench.adoptTask(id.toString());
    bench.expect(isId(id), u"'taskId' to be a string, not empty and without a comma"_s, id);
}

void keepsDocument(MCsCheckBench &bench)
{
    QJsonObject document = bench.taskDocument({{u"groupId"_s, bench.makeGroup()}});
    document.insert(u"name"_s, document.value("name"_L1).toString() + u" <i>\"\\ \u00e9 \u65e5\u672c \U0001f4c5"_s);
    bench.expectMembers(readable(document), bench.storedTask(bench.makeTask(document)));
}

void get(MCsCheckBench &bench)
{
    const QString id = bench.makeTask();
    const QJsonObject task = bench.succeed(u"task.get"_s, {{u"taskId"_s, id}}).value("task"_L1).toObject();
    bench.expectMembers({{u"id"_s, id}}, task);
    const QString problem = recordProblem(task, taskMembers());
    bench.expect(problem.isEmpty(), u"a task in its form"_s, problem);
}

/// Dates of other forms are read as well, but mind the zone or take the manager long.
void dates(MCsCheckBench &bench)
{
    const QJsonObject task = bench.storedTask(bench.makeTask({{u"enabled"_s, true}}));
    for (const QLatin1StringView key : {"nextRunAt"_L1, "createdAt"_L1, "updatedAt"_L1}) {
        const QString text = task.value(key).toString();
        bench.expect(text.isEmpty() || text.endsWith(u'Z'), u"'%1' in UTC, with a Z"_s.arg(key), text);
    }
}

void nextRun(MCsCheckBench &bench)
{
    const QJsonObject document = bench.taskDocument({{u"enabled"_s, true}});
    const QString planned = document["paramsJson"_L1]["startRecordingOn"_L1]["specifiedDateTime"_L1].toString();
    const QString next = bench.storedTask(bench.makeTask(document)).value("nextRunAt"_L1).toString();
    bench.expect(QDateTime::fromString(next, Qt::ISODate) == QDateTime::fromString(planned, Qt::ISODate),
                 u"'nextRunAt' to be %1, local time"_s.arg(planned), textOf(next));
}

void update(MCsCheckBench &bench)
{
    const QString id = bench.makeTask();
    QJsonObject params = bench.taskDocument().value("paramsJson"_L1).toObject();
    params.insert(u"displayMode"_s, u"Minimize"_s);
    params.insert(u"actionBeforeAutoStart"_s, QJsonObject{{u"sleepAfterSeconds"_s, 3}});
    const QJsonObject document = bench.taskDocument({{u"groupId"_s, bench.makeGroup()}, {u"paramsJson"_s, params}});
    bench.succeed(u"task.update"_s, {{u"taskId"_s, id}, {u"task"_s, document}});
    bench.expectMembers(readable(document), bench.storedTask(id));
}

void remove(MCsCheckBench &bench)
{
    const QString id = bench.makeTask();
    bench.succeed(u"task.delete"_s, {{u"taskId"_s, id}});
    const QJsonObject query{{u"type"_s, bench.workingType()}};
    const QJsonArray tasks = bench.prepare(u"task.listByType"_s, query).value("tasks"_L1).toArray();
    for (const QJsonValue &task : tasks)
        bench.expect(task["id"_L1].toString() != id, u"a deleted task not to be listed"_s, task);
}

} // namespace

QList<Rule> taskRules()
{
    return {
        {u"task.create"_s, u"task.create"_s, u"A task is stored, and its id answered."_s, &create},
        {u"task.create.document"_s, u"task.create"_s, u"A task is stored as it was sent, `paramsJson` as an object."_s,
         &keepsDocument},
        {u"task.get"_s, u"task.get"_s, u"One task is answered, in its form."_s, &get},
        {u"task.get.dates"_s, u"task.get"_s, u"Dates of tasks are UTC, with a `Z`."_s, &dates},
        {u"task.get.next-run"_s, u"task.get"_s,
         u"`nextRunAt` of an enabled task with the mode `SpecifiedTime` is its `specifiedDateTime`."_s, &nextRun},
        {u"task.update"_s, u"task.update"_s, u"A task is replaced as a whole."_s, &update},
        {u"task.delete"_s, u"task.delete"_s, u"A deleted task is listed no more."_s, &remove},
    };
}

} // namespace Scheduler::ProtocolCheck
