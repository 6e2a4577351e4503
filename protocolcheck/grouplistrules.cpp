#include "answerform.h"
#include "mcscheckbench.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

QJsonArray listed(MCsCheckBench &bench, const QString &taskType)
{
    return bench.succeed(u"group.listByTaskType"_s, {{u"taskType"_s, taskType}}).value("groups"_L1).toArray();
}

/// The place of the group in the list; -1 when it is not there.
qsizetype placeOf(const QString &id, const QJsonArray &groups)
{
    for (qsizetype place = 0; place < groups.size(); ++place) {
        if (groups.at(place)["id"_L1].toString() == id)
            return place;
    }
    return -1;
}

void list(MCsCheckBench &bench)
{
    const QString id = bench.makeGroup();
    const QJsonArray groups = listed(bench, bench.workingType());
    bench.expect(placeOf(id, groups) >= 0, u"the group '%1' among those of its type"_s.arg(id), groups);
}

void records(MCsCheckBench &bench)
{
    bench.makeGroup();
    const QString problem = listProblem(listed(bench, bench.workingType()), groupMembers());
    bench.expect(problem.isEmpty(), u"groups in their form"_s, problem);
}

void parents(MCsCheckBench &bench)
{
    const QString id = bench.makeGroup();
    const QJsonArray groups = listed(bench, {});
    bench.expect(placeOf(id, groups) >= 0, u"the group '%1' among those of the empty type"_s.arg(id), groups);
}

void order(MCsCheckBench &bench)
{
    const QString later = bench.makeGroup({{u"displayOrder"_s, 20}});
    const QString earlier = bench.makeGroup({{u"displayOrder"_s, 10}});
    const QJsonArray groups = listed(bench, bench.workingType());
    bench.expect(placeOf(earlier, groups) < placeOf(later, groups),
                 u"the group with the displayOrder 10 in front of that with 20"_s, groups);
}

void counts(MCsCheckBench &bench)
{
    const QString id = bench.makeGroup();
    bench.makeTask({{u"groupId"_s, id}});
    bench.makeTask({{u"groupId"_s, id}, {u"enabled"_s, true}});
    const QJsonArray groups = listed(bench, bench.workingType());
    bench.expectMembers({{u"taskCount"_s, 2}, {u"enabledTaskCount"_s, 1}}, groups.at(placeOf(id, groups)).toObject());
}

} // namespace

QList<Rule> groupListRules()
{
    const QString command = u"group.listByTaskType"_s;
    return {
        {u"group.listByTaskType"_s, command, u"A group is listed under its type."_s, &list},
        {u"group.listByTaskType.form"_s, command, u"Listed groups have their form."_s, &records},
        {u"group.listByTaskType.empty"_s, command,
         u"Under the empty type the groups that may become parents are listed."_s, &parents},
        {u"group.listByTaskType.order"_s, command, u"Groups of one level are listed by their `displayOrder`."_s,
         &order},
        {u"group.listByTaskType.counts"_s, command, u"`taskCount` and `enabledTaskCount` are right."_s, &counts},
    };
}

} // namespace Scheduler::ProtocolCheck
