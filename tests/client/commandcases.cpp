#include "commandcases.h"

#include "mcsschedulerclient.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

using Client = MCsSchedulerClient;

constexpr Outcome success{Outcome::Success, nullptr, nullptr};
constexpr Outcome newTaskId{Outcome::Text, "taskId", nullptr};
constexpr Outcome newGroupId{Outcome::Text, "groupId", nullptr};
constexpr Outcome count{Outcome::Count, "count", nullptr};
constexpr Outcome oneTask{Outcome::Record, "task", "id"};
constexpr Outcome oneGroup{Outcome::Record, "group", "id"};
constexpr Outcome tasks{Outcome::List, "tasks", "id"};
constexpr Outcome groups{Outcome::List, "groups", "id"};
constexpr Outcome taskTypes{Outcome::List, "taskTypes", "type"};
constexpr Outcome logs{Outcome::List, "logs", "entityId"};

template <auto id, typename Record> QVariant ids(const QList<Record> &records)
{
    QStringList result;
    for (const Record &record : records)
        result.append(record.*id);
    return result;
}

constexpr auto taskIds = ids<&TaskInfo::id, TaskInfo>;
constexpr auto groupIds = ids<&GroupInfo::id, GroupInfo>;
constexpr auto typeIds = ids<&TaskTypeInfo::type, TaskTypeInfo>;
constexpr auto entityIds = ids<&AuditLogEntry::entityId, AuditLogEntry>;

// The client passes on what it is given, whether it makes sense or not.

QJsonObject someTask()
{
    return {{u"name"_s, u"Büro\n\"1\""_s},
            {u"enabled"_s, false},
            {u"groupId"_s, QJsonValue()},
            {u"paramsJson"_s, QJsonObject{{u"bytes"_s, qint64(5368709120)}, {u"any"_s, QJsonArray{1, 2.5}}}}};
}

QJsonObject someGroup()
{
    return {{u"name"_s, u"G"_s}, {u"color"_s, u"#ff0000"_s}, {u"displayOrder"_s, 3}};
}

const QByteArray someTaskText =
    R"({"enabled":false,"groupId":null,"name":"Büro\n\"1\"","paramsJson":{"any":[1,2.5],"bytes":5368709120}})";
const QByteArray someGroupText = R"({"color":"#ff0000","displayOrder":3,"name":"G"})";

const QByteArray task1 = R"({"taskId":"t1"})";
const QByteArray group1 = R"({"groupId":"g1"})";
const QByteArray group1OwnType = R"({"groupId":"g1","taskType":"task_type.test"})";
const QByteArray group1OtherType = R"({"groupId":"g1","taskType":"task_type.x"})";

QList<CommandCase> taskCommands()
{
    return {
        {"createTask", [](Client &c) { return c.createTask(someTask()); }, "task.create",
         "{\"task\":" + someTaskText + '}', newTaskId},
        {"createTask, empty", [](Client &c) { return c.createTask({}); }, "task.create", R"({"task":{}})", newTaskId},
        {"updateTask", [](Client &c) { return c.updateTask(u"t1"_s, someTask()); }, "task.update",
         "{\"task\":" + someTaskText + R"(,"taskId":"t1"})", success},
        {"deleteTask", [](Client &c) { return c.deleteTask(u"t1"_s); }, "task.delete", task1, success},
        {"deleteTask, no id", [](Client &c) { return c.deleteTask({}); }, "task.delete", R"({"taskId":""})", success},
        {"enableTask", [](Client &c) { return c.enableTask(u"t1"_s); }, "task.enable", task1, success},
        {"disableTask", [](Client &c) { return c.disableTask(u"t1"_s); }, "task.disable", task1, success},
        {"triggerTask", [](Client &c) { return c.triggerTask(u"t1"_s); }, "task.trigger", task1, success},
        {"moveTaskToGroup", [](Client &c) { return c.moveTaskToGroup(u"t1"_s, u"g1"_s); }, "task.moveToGroup",
         R"({"groupId":"g1","taskId":"t1"})", success},
        {"batchMoveTasksToGroup",
         [](Client &c) {
             return c.batchMoveTasksToGroup(QStringList{u"b"_s, u"a"_s, u"b"_s}, u"g1"_s);
         },
         "task.batchMoveToGroup", R"({"groupId":"g1","taskIds":["b","a","b"]})", success},
        {"batchMoveTasksToGroup, no tasks", [](Client &c) { return c.batchMoveTasksToGroup({}, u"g1"_s); },
         "task.batchMoveToGroup", R"({"groupId":"g1","taskIds":[]})", success},
        {"getTask", [](Client &c) { return c.getTask(u"t1"_s).id; }, "task.get", task1, oneTask},
        {"listTasks", [](Client &c) { return taskIds(c.listTasks()); }, "task.listByType",
         R"({"type":"task_type.test"})", tasks},
        {"listTasksByType", [](Client &c) { return taskIds(c.listTasksByType(u"task_type.all"_s)); }, "task.listByType",
         R"({"type":"task_type.all"})", tasks},
        {"listTasksByGroup", [](Client &c) { return taskIds(c.listTasksByGroup(u"g1"_s)); }, "task.listByGroupAndType",
         group1OwnType, tasks},
        {"listTasksByGroupAndType",
         [](Client &c) { return taskIds(c.listTasksByGroupAndType(u"g1"_s, u"task_type.x"_s)); },
         "task.listByGroupAndType", group1OtherType, tasks},
        {"getTaskCount", [](Client &c) { return c.getTaskCount(); }, "task.countByType", R"({"type":"task_type.test"})",
         count},
        {"getTaskCountByType", [](Client &c) { return c.getTaskCountByType(u"task_type.x"_s); }, "task.countByType",
         R"({"type":"task_type.x"})", count},
        {"getTaskCountByGroup", [](Client &c) { return c.getTaskCountByGroup(u"g1"_s); }, "task.countByGroupAndType",
         group1OwnType, count},
        {"getTaskCountByGroupAndType",
         [](Client &c) { return c.getTaskCountByGroupAndType(u"g1"_s, u"task_type.x"_s); }, "task.countByGroupAndType",
         group1OtherType, count},
    };
}

QList<CommandCase> groupCommands()
{
    return {
        {"createGroup", [](Client &c) { return c.createGroup(someGroup()); }, "group.create",
         "{\"group\":" + someGroupText + '}', newGroupId},
        {"updateGroup", [](Client &c) { return c.updateGroup(u"g1"_s, someGroup()); }, "group.update",
         "{\"group\":" + someGroupText + R"(,"groupId":"g1"})", success},
        {"deleteGroup", [](Client &c) { return c.deleteGroup(u"g1"_s, false); }, "group.delete",
         R"({"deleteChildGroups":false,"groupId":"g1"})", success},
        {"deleteGroup, with children", [](Client &c) { return c.deleteGroup(u"g1"_s, true); }, "group.delete",
         R"({"deleteChildGroups":true,"groupId":"g1"})", success},
        {"enableAllTasksInGroup", [](Client &c) { return c.enableAllTasksInGroup(u"g1"_s); }, "group.enableAllTasks",
         group1, success},
        {"disableAllTasksInGroup", [](Client &c) { return c.disableAllTasksInGroup(u"g1"_s); }, "group.disableAllTasks",
         group1, success},
        {"triggerAllTasksInGroup", [](Client &c) { return c.triggerAllTasksInGroup(u"g1"_s); }, "group.triggerAllTasks",
         group1, success},
        {"deleteAllTasksInGroup", [](Client &c) { return c.deleteAllTasksInGroup(u"g1"_s); }, "group.deleteAllTasks",
         group1, success},
        {"getGroup", [](Client &c) { return c.getGroup(u"g1"_s).id; }, "group.get", group1, oneGroup},
        {"listGroups", [](Client &c) { return groupIds(c.listGroups()); }, "group.listByTaskType",
         R"({"taskType":"task_type.test"})", groups},
        {"listGroupsByTaskType", [](Client &c) { return groupIds(c.listGroupsByTaskType(u"task_type.x"_s)); },
         "group.listByTaskType", R"({"taskType":"task_type.x"})", groups},
    };
}

QList<CommandCase> otherCommands()
{
    static const QDateTime from = QDateTime::fromString(u"2026-03-01T08:30:00Z"_s, Qt::ISODate);
    static const QDateTime to(QDate(2026, 3, 2), QTime(9, 45, 10));
    return {
        {"listTaskTypes", [](Client &c) { return typeIds(c.listTaskTypes()); }, "tasktype.list", "{}", taskTypes},
        {"getAuditLogs", [](Client &c) { return entityIds(c.getAuditLogs(100, false, {}, {})); }, "audit.list",
         R"({"ascending":false,"limit":100,"taskType":"task_type.test"})", logs},
        {"getAuditLogs, from", [](Client &c) { return entityIds(c.getAuditLogs(100, false, from, {})); }, "audit.list",
         R"({"ascending":false,"from":"2026-03-01T08:30:00Z","limit":100,"taskType":"task_type.test"})", logs},
        {"getAuditLogs, to", [](Client &c) { return entityIds(c.getAuditLogs(5, true, {}, to)); }, "audit.list",
         R"({"ascending":true,"limit":5,"taskType":"task_type.test","to":"2026-03-02T09:45:10"})", logs},
        {"getAuditLogs, type, from and to",
         [](Client &c) { return entityIds(c.getAuditLogs(u"task_type.x"_s, -1, true, from, to)); }, "audit.list",
         R"({"ascending":true,"from":"2026-03-01T08:30:00Z","limit":-1,"taskType":"task_type.x",)"
         R"("to":"2026-03-02T09:45:10"})",
         logs},
        {"getAuditLogs, empty type", [](Client &c) { return entityIds(c.getAuditLogs({}, 0, false, {}, {})); },
         "audit.list", R"({"ascending":false,"limit":0,"taskType":""})", logs},
    };
}

} // namespace

const QList<CommandCase> &commandCases()
{
    static const QList<CommandCase> cases = taskCommands() + groupCommands() + otherCommands();
    return cases;
}
