#include "answerform.h"
#include "mcscheckbench.h"

#include <algorithm>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

const QString &ungrouped()
{
    static const QString id = u"ungrouped"_s;
    return id;
}

QJsonArray ofType(MCsCheckBench &bench, const QString &type)
{
    return bench.succeed(u"task.listByType"_s, {{u"type"_s, type}}).value("tasks"_L1).toArray();
}

QJsonArray ofGroup(MCsCheckBench &bench, const QString &groupId)
{
    return bench.succeed(u"task.listByGroupAndType"_s, {{u"groupId"_s, groupId}, {u"taskType"_s, bench.workingType()}})
        .value("tasks"_L1)
        .toArray();
}

bool holds(const QJsonArray &tasks, const QString &id)
{
    return std::any_of(tasks.begin(), tasks.end(),
                       [&id](const QJsonValue &task) { return task["id"_L1].toString() == id; });
}

void byType(MCsCheckBench &bench)
{
    const QString id = bench.makeTask();
    const QJsonArray tasks = ofType(bench, bench.workingType());
    bench.expect(holds(tasks, id), u"the task '%1' among those of its type"_s.arg(id), tasks);
}

void byAllTypes(MCsCheckBench &bench)
{
    const QString id = bench.makeTask();
    const QJsonArray tasks = ofType(bench, u"task_type.all"_s);
    bench.expect(holds(tasks, id), u"the task '%1' among those of all types"_s.arg(id), tasks);
}

void typesApart(MCsCheckBench &bench)
{
    bench.makeTask();
    const QString type = bench.workingType();
    const QJsonArray tasks = ofType(bench, type);
    for (const QJsonValue &task : tasks)
        bench.expect(task["type"_L1].toString() == type, u"tasks of the type %1 only"_s.arg(type), task);
}

void records(MCsCheckBench &bench)
{
    bench.makeTask();
    const QString problem = listProblem(ofType(bench, bench.workingType()), taskMembers());
    bench.expect(problem.isEmpty(), u"tasks in their form"_s, problem);
}

void countOfType(MCsCheckBench &bench)
{
    bench.makeTask();
    const QJsonObject query{{u"type"_s, bench.workingType()}};
    const qsizetype listed = bench.prepare(u"task.listByType"_s, query).value("tasks"_L1).toArray().size();
    bench.expectMembers({{u"count"_s, listed}}, bench.succeed(u"task.countByType"_s, query));
}

void byGroup(MCsCheckBench &bench)
{
    const QString groupId = bench.makeGroup();
    const QString id = bench.makeTask({{u"groupId"_s, groupId}});
    bench.makeTask();
    const QJsonArray tasks = ofGroup(bench, groupId);
    bench.expect(tasks.size() == 1 && holds(tasks, id), u"the group's only task '%1'"_s.arg(id), tasks);
}

void withoutGroup(MCsCheckBench &bench)
{
    const QString id = bench.makeTask();
    const QString grouped = bench.makeTask({{u"groupId"_s, bench.makeGroup()}});
    const QJsonArray tasks = ofGroup(bench, ungrouped());
    bench.expect(holds(tasks, id), u"the task '%1', which has no group"_s.arg(id), tasks);
    bench.expect(!holds(tasks, grouped), u"no task that has a group"_s, tasks);
}

void countOfGroup(MCsCheckBench &bench)
{
    const QString groupId = bench.makeGroup();
    bench.makeTask({{u"groupId"_s, groupId}});
    bench.makeTask({{u"groupId"_s, groupId}});
    const QJsonObject query{{u"groupId"_s, groupId}, {u"taskType"_s, bench.workingType()}};
    bench.expectMembers({{u"count"_s, 2}}, bench.succeed(u"task.countByGroupAndType"_s, query));
}

void countWithoutGroup(MCsCheckBench &bench)
{
    bench.makeTask();
    const QJsonObject query{{u"groupId"_s, ungrouped()}, {u"taskType"_s, bench.workingType()}};
    const qsizetype listed = bench.prepare(u"task.listByGroupAndType"_s, query).value("tasks"_L1).toArray().size();
    bench.expectMembers({{u"count"_s, listed}}, bench.succeed(u"task.countByGroupAndType"_s, query));
}

} // namespace

QList<Rule> taskListRules()
{
    const QString ofType = u"task.listByType"_s;
    const QString ofGroup = u"task.listByGroupAndType"_s;
    const QString groupCount = u"task.countByGroupAndType"_s;
    return {
        {u"task.listByType"_s, ofType, u"A task is listed under its type."_s, &byType},
        {u"task.listByType.all"_s, ofType, u"A task is listed under `task_type.all` to a client of its type."_s,
         &byAllTypes},
        {u"task.listByType.others"_s, ofType, u"Tasks of other types are not listed under a type."_s, &typesApart},
        {u"task.listByType.form"_s, ofType, u"Listed tasks have their form."_s, &records},
        {u"task.countByType"_s, u"task.countByType"_s, u"Tasks of a type are counted as they are listed."_s,
         &countOfType},
        {u"task.listByGroupAndType"_s, ofGroup, u"A group's own tasks are listed, and no others."_s, &byGroup},
        {u"task.listByGroupAndType.ungrouped"_s, ofGroup, u"Under `ungrouped` the tasks without a group are listed."_s,
         &withoutGroup},
        {u"task.countByGroupAndType"_s, groupCount, u"A group's tasks are counted."_s, &countOfGroup},
        {u"task.countByGroupAndType.ungrouped"_s, groupCount,
         u"Tasks without a group are counted as they are listed, under `ungrouped`."_s, &countWithoutGroup},
    };
}

} // namespace Scheduler::ProtocolCheck
