#include "answerform.h"
#include "mcscheckbench.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

void types(MCsCheckBench &bench)
{
    const QJsonValue list = bench.succeed(u"tasktype.list"_s).value("taskTypes"_L1);
    bench.expect(list.isArray(), u"'taskTypes' to be an array"_s, list);
    const QString problem = listProblem(list.toArray(), taskTypeMembers());
    bench.expect(problem.isEmpty(), u"task types in their form"_s, problem);
}

void fields(MCsCheckBench &bench)
{
    const QJsonArray list = bench.succeed(u"tasktype.list"_s).value("taskTypes"_L1).toArray();
    for (const QJsonValue &type : list) {
        const QString problem = listProblem(type["fields"_L1].toArray(), fieldMembers());
        bench.expect(problem.isEmpty(), u"fields in their form"_s, problem);
    }
}

void noTypeForAll(MCsCheckBench &bench)
{
    const QJsonArray list = bench.succeed(u"tasktype.list"_s).value("taskTypes"_L1).toArray();
    for (const QJsonValue &type : list)
        bench.expect(type["type"_L1].toString() != "task_type.all"_L1, u"no type task_type.all"_s, type);
}

} // namespace

QList<Rule> taskTypeRules()
{
    const QString command = u"tasktype.list"_s;
    return {
        {u"tasktype.list"_s, command, u"Task types are listed, each in its form."_s, &types},
        {u"tasktype.list.fields"_s, command, u"Fields of task types have their form."_s, &fields},
        {u"tasktype.list.all"_s, command, u"`task_type.all` is not among the task types."_s, &noTypeForAll},
    };
}

} // namespace Scheduler::ProtocolCheck
