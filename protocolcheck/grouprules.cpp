#include "answerform.h"
#include "mcscheckbench.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

void create(MCsCheckBench &bench)
{
    const QJsonObject document = bench.groupDocument();
    const QJsonValue id = bench.succeed(u"group.create"_s, {{u"group"_s, document}}).value("groupId"_L1);
    bench.adoptGroup(id.toString());
    bench.expect(isId(id), u"'groupId' to be a string, not empty and without a comma"_s, id);
}

void get(MCsCheckBench &bench)
{
    const QString id = bench.makeGroup();
    const QJsonObject group = bench.succeed(u"group.get"_s, {{u"groupId"_s, id}}).value("group"_L1).toObject();
    bench.expectMembers({{u"id"_s, id}}, group);
    const QString problem = recordProblem(group, groupMembers());
    bench.expect(problem.isEmpty(), u"a group in its form"_s, problem);
}

void keepsDocument(MCsCheckBench &bench)
{
    QJsonObject document = bench.groupDocument({{u"description"_s, u"\"two\"\nlines, <b>\\ \u00e9 \u65e5\u672c"_s}});
    document.insert(u"name"_s, document.value("name"_L1).toString() + u" <i>\"\\ \u00e9 \U0001f4c5"_s);
    bench.expectMembers(document, bench.storedGroup(bench.makeGroup(document)));
}

void update(MCsCheckBench &bench)
{
    const QString id = bench.makeGroup();
    const QJsonObject document =
        bench.groupDocument({{u"description"_s, u"Another one"_s}, {u"color"_s, u"#27ae60"_s}, {u"displayOrder"_s, 8}});
    bench.succeed(u"group.update"_s, {{u"groupId"_s, id}, {u"group"_s, document}});
    bench.expectMembers(document, bench.storedGroup(id));
}

void child(MCsCheckBench &bench)
{
    const QString parent = bench.makeGroup();
    const QString id = bench.makeGroup({{u"parentId"_s, parent}});
    bench.expectMembers({{u"parentId"_s, parent}}, bench.storedGroup(id));
}

void remove(MCsCheckBench &bench)
{
    const QString id = bench.makeGroup();
    bench.succeed(u"group.delete"_s, {{u"groupId"_s, id}, {u"deleteChildGroups"_s, false}});
    const QString type = bench.workingType();
    const QJsonArray groups =
        bench.prepare(u"group.listByTaskType"_s, {{u"taskType"_s, type}}).value("groups"_L1).toArray();
    for (const QJsonValue &group : groups)
        bench.expect(group["id"_L1].toString() != id, u"a deleted group not to be listed"_s, group);
}

void removeKeepsTasks(MCsCheckBench &bench)
{
    const QString groupId = bench.makeGroup();
    const QString taskId = bench.makeTask({{u"groupId"_s, groupId}});
    bench.prepare(u"group.delete"_s, {{u"groupId"_s, groupId}, {u"deleteChildGroups"_s, false}});
    const QJsonObject task = bench.succeed(u"task.get"_s, {{u"taskId"_s, taskId}}).value("task"_L1).toObject();
    bench.expectMembers({{u"groupId"_s, QString()}}, task);
}

} // namespace

QList<Rule> groupRules()
{
    return {
        {u"group.create"_s, u"group.create"_s, u"A group is stored, and its id answered."_s, &create},
        {u"group.create.document"_s, u"group.create"_s, u"A group is stored as it was sent, whatever its texts hold."_s,
         &keepsDocument},
        {u"group.create.child"_s, u"group.create"_s, u"A group can stand below another one."_s, &child},
        {u"group.get"_s, u"group.get"_s, u"One group is answered, in its form."_s, &get},
        {u"group.update"_s, u"group.update"_s, u"A group is replaced as a whole."_s, &update},
        {u"group.delete"_s, u"group.delete"_s, u"A deleted group is listed no more."_s, &remove},
        {u"group.delete.tasks"_s, u"group.delete"_s, u"The tasks of a deleted group are there without a group."_s,
         &removeKeepsTasks},
    };
}

} // namespace Scheduler::ProtocolCheck
