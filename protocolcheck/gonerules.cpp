#include "mcscheckbench.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

// The ids are those of things that were made and deleted, since an id that is merely made up may be somebody's. The
// commands for all tasks of a group are left out: a daemon that takes an unknown group for no group would carry them
// out on all of the user's tasks that have none.

template <const char *Command> void refusesGoneTask(MCsCheckBench &bench)
{
    bench.refused(QString::fromLatin1(Command), {{u"taskId"_s, bench.goneTask()}});
}

void updateOfGoneTask(MCsCheckBench &bench)
{
    const QString id = bench.goneTask();
    bench.refused(u"task.update"_s, {{u"taskId"_s, id}, {u"task"_s, bench.taskDocument()}});
}

void moveToGoneGroup(MCsCheckBench &bench)
{
    const QString groupId = bench.goneGroup();
    bench.refused(u"task.moveToGroup"_s, {{u"taskId"_s, bench.makeTask()}, {u"groupId"_s, groupId}});
}

void getOfGoneGroup(MCsCheckBench &bench)
{
    bench.refused(u"group.get"_s, {{u"groupId"_s, bench.goneGroup()}});
}

void updateOfGoneGroup(MCsCheckBench &bench)
{
    const QString id = bench.goneGroup();
    bench.refused(u"group.update"_s, {{u"groupId"_s, id}, {u"group"_s, bench.groupDocument()}});
}

void removalOfGoneGroup(MCsCheckBench &bench)
{
    bench.refused(u"group.delete"_s, {{u"groupId"_s, bench.goneGroup()}, {u"deleteChildGroups"_s, false}});
}

constexpr char taskGet[] = "task.get";
constexpr char taskDelete[] = "task.delete";
constexpr char taskEnable[] = "task.enable";
constexpr char taskDisable[] = "task.disable";
constexpr char taskTrigger[] = "task.trigger";

Rule goneTaskRule(const char *command, Rule::Check check)
{
    const QString name = QString::fromLatin1(command);
    return {name + u".gone"_s, name, u"It is refused for a task that there is not."_s, check};
}

Rule goneGroupRule(const QString &name, Rule::Check check)
{
    return {name + u".gone"_s, name, u"It is refused for a group that there is not."_s, check};
}

} // namespace

QList<Rule> goneRules()
{
    return {
        goneTaskRule(taskGet, &refusesGoneTask<taskGet>),
        goneTaskRule("task.update", &updateOfGoneTask),
        goneTaskRule(taskDelete, &refusesGoneTask<taskDelete>),
        goneTaskRule(taskEnable, &refusesGoneTask<taskEnable>),
        goneTaskRule(taskDisable, &refusesGoneTask<taskDisable>),
        goneTaskRule(taskTrigger, &refusesGoneTask<taskTrigger>),
        goneGroupRule(u"task.moveToGroup"_s, &moveToGoneGroup),
        goneGroupRule(u"group.get"_s, &getOfGoneGroup),
        goneGroupRule(u"group.update"_s, &updateOfGoneGroup),
        goneGroupRule(u"group.delete"_s, &removalOfGoneGroup),
    };
}

} // namespace Scheduler::ProtocolCheck
