#include "mcscheckbench.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

void switchOne(MCsCheckBench &bench, const QString &command, bool enabled)
{
    const QString id = bench.makeTask({{u"enabled"_s, !enabled}});
    bench.succeed(command, {{u"taskId"_s, id}});
    bench.expectMembers({{u"enabled"_s, enabled}}, bench.storedTask(id));
}

void enable(MCsCheckBench &bench)
{
    switchOne(bench, u"task.enable"_s, true);
}

void disable(MCsCheckBench &bench)
{
    switchOne(bench, u"task.disable"_s, false);
}

void trigger(MCsCheckBench &bench)
{
    const QString id = bench.makeTask();
    if (bench.taskDocument().value("targetProgram"_L1).toString().isEmpty())
        bench.notTried(u"there is no harmless program to run"_s);
    bench.succeed(u"task.trigger"_s, {{u"taskId"_s, id}});
}

void move(MCsCheckBench &bench)
{
    const QString groupId = bench.makeGroup();
    const QString id = bench.makeTask();
    bench.succeed(u"task.moveToGroup"_s, {{u"taskId"_s, id}, {u"groupId"_s, groupId}});
    bench.expectMembers({{u"groupId"_s, groupId}}, bench.storedTask(id));
}

void moveOut(MCsCheckBench &bench)
{
    const QString id = bench.makeTask({{u"groupId"_s, bench.makeGroup()}});
    bench.succeed(u"task.moveToGroup"_s, {{u"taskId"_s, id}, {u"groupId"_s, u"ungrouped"_s}});
    bench.expectMembers({{u"groupId"_s, QString()}}, bench.storedTask(id));
}

void moveSeveral(MCsCheckBench &bench)
{
    const QString groupId = bench.makeGroup();
    const QStringList ids{bench.makeTask(), bench.makeTask()};
    bench.succeed(u"task.batchMoveToGroup"_s,
                  {{u"taskIds"_s, QJsonArray::fromStringList(ids)}, {u"groupId"_s, groupId}});
    for (const QString &id : ids)
        bench.expectMembers({{u"groupId"_s, groupId}}, bench.storedTask(id));
}

void moveAllOrNone(MCsCheckBench &bench)
{
    const QString groupId = bench.makeGroup();
    const QString id = bench.makeTask();
    bench.refused(u"task.batchMoveToGroup"_s,
                  {{u"taskIds"_s, QJsonArray{id, bench.goneTask()}}, {u"groupId"_s, groupId}});
    bench.expectMembers({{u"groupId"_s, QString()}}, bench.storedTask(id));
}

} // namespace

QList<Rule> taskActionRules()
{
    const QString one = u"task.moveToGroup"_s;
    const QString several = u"task.batchMoveToGroup"_s;
    return {
        {u"task.enable"_s, u"task.enable"_s, u"A task is enabled."_s, &enable},
        {u"task.disable"_s, u"task.disable"_s, u"A task is disabled."_s, &disable},
        {u"task.trigger"_s, u"task.trigger"_s, u"A task can be run, though it is disabled."_s, &trigger},
        {one, one, u"A task is moved to a group."_s, &move},
        {u"task.moveToGroup.ungrouped"_s, one, u"A task that is moved to `ungrouped` has no group."_s, &moveOut},
        {several, several, u"Several tasks are moved to a group."_s, &moveSeveral},
        {u"task.batchMoveToGroup.whole"_s, several, u"Where one of the tasks is not there, none is moved."_s,
         &moveAllOrNone},
    };
}

} // namespace Scheduler::ProtocolCheck
