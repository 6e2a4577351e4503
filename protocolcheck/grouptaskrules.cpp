#include "mcscheckbench.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

/// A group with two tasks.
struct FilledGroup {
    FilledGroup(MCsCheckBench &bench, bool enabled)
        : id(bench.makeGroup())
    {
        for (int count = 0; count < 2; ++count)
            taskIds.append(bench.makeTask({{u"groupId"_s, id}, {u"enabled"_s, enabled}}));
    }

    QString id;
    QStringList taskIds;
};

/// A daemon that minds the group too little would carry the command out on tasks of the user's.
void expectToHoldItsTasksOnly(MCsCheckBench &bench, const FilledGroup &group)
{
    const QJsonArray tasks =
        bench.prepare(u"task.listByGroupAndType"_s, {{u"groupId"_s, group.id}, {u"taskType"_s, bench.workingType()}})
            .value("tasks"_L1)
            .toArray();
    for (const QJsonValue &task : tasks) {
        if (!group.taskIds.contains(task["id"_L1].toString()))
            bench.notTried(u"the group is listed with a task that was not made for it"_s);
    }
}

void carryOut(MCsCheckBench &bench, const QString &command, const FilledGroup &group)
{
    expectToHoldItsTasksOnly(bench, group);
    bench.succeed(command, {{u"groupId"_s, group.id}});
}

void switchAll(MCsCheckBench &bench, const QString &command, bool enabled)
{
    const FilledGroup group(bench, !enabled);
    carryOut(bench, command, group);
    for (const QString &taskId : group.taskIds)
        bench.expectMembers({{u"enabled"_s, enabled}}, bench.storedTask(taskId));
}

void enableAll(MCsCheckBench &bench)
{
    switchAll(bench, u"group.enableAllTasks"_s, true);
}

void disableAll(MCsCheckBench &bench)
{
    switchAll(bench, u"group.disableAllTasks"_s, false);
}

void triggerAll(MCsCheckBench &bench)
{
    const FilledGroup group(bench, false);
    if (bench.taskDocument().value("targetProgram"_L1).toString().isEmpty())
        bench.notTried(u"there is no harmless program to run"_s);
    carryOut(bench, u"group.triggerAllTasks"_s, group);
}

void deleteAll(MCsCheckBench &bench)
{
    const FilledGroup group(bench, false);
    carryOut(bench, u"group.deleteAllTasks"_s, group);
    for (const QString &taskId : group.taskIds) {
        const QJsonObject answer = bench.ask(u"task.get"_s, {{u"taskId"_s, taskId}});
        bench.expect(answer.value("ok"_L1) == QJsonValue(false), u"the tasks of the group to be gone"_s, answer);
    }
}

void deleteAllKeepsGroup(MCsCheckBench &bench)
{
    const FilledGroup group(bench, false);
    expectToHoldItsTasksOnly(bench, group);
    bench.prepare(u"group.deleteAllTasks"_s, {{u"groupId"_s, group.id}});
    bench.succeed(u"group.get"_s, {{u"groupId"_s, group.id}});
}

} // namespace

QList<Rule> groupTaskRules()
{
    const QString removal = u"group.deleteAllTasks"_s;
    return {
        {u"group.enableAllTasks"_s, u"group.enableAllTasks"_s, u"All tasks of a group are enabled."_s, &enableAll},
        {u"group.disableAllTasks"_s, u"group.disableAllTasks"_s, u"All tasks of a group are disabled."_s, &disableAll},
        {u"group.triggerAllTasks"_s, u"group.triggerAllTasks"_s, u"All tasks of a group can be run."_s, &triggerAll},
        {u"group.deleteAllTasks"_s, removal, u"All tasks of a group are removed."_s, &deleteAll},
        {u"group.deleteAllTasks.group"_s, removal, u"The group stays when its tasks are removed."_s,
         &deleteAllKeepsGroup},
    };
}

} // namespace Scheduler::ProtocolCheck
