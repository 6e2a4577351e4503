#include "mcsschedulerclient.h"

#include "mcslogger.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

bool isOk(const QJsonObject &response)
{
    return response.value("ok"_L1).toBool();
}

QJsonObject dataOf(const QJsonObject &response)
{
    return isOk(response) ? response.value("data"_L1).toObject() : QJsonObject();
}

/// The records in the daemon's order. An element that is no object gives a default record, so that none is lost.
template <typename Record> QList<Record> toRecords(const QJsonValue &value)
{
    const QJsonArray array = value.toArray();
    QList<Record> records;
    records.reserve(array.size());
    for (const QJsonValueConstRef element : array)
        records.append(Record::fromJson(element.toObject()));
    return records;
}

QJsonObject auditPayload(const QString &taskType, int limit, bool ascending, const QDateTime &from, const QDateTime &to)
{
    QJsonObject payload{{u"taskType"_s, taskType}, {u"limit"_s, limit}, {u"ascending"_s, ascending}};
    if (from.isValid())
        payload.insert("from"_L1, from.toString(Qt::ISODate));
    if (to.isValid())
        payload.insert("to"_L1, to.toString(Qt::ISODate));
    return payload;
}

} // namespace

bool MCsSchedulerClient::succeeds(const QString &cmd, const QJsonObject &payload)
{
    return isOk(sendRequest(cmd, payload, m_commandTimeout));
}

QJsonObject MCsSchedulerClient::requestData(const QString &cmd, const QJsonObject &payload)
{
    return dataOf(sendRequest(cmd, payload, m_commandTimeout));
}

// Some commands know the task type as "type" and others as "taskType". The daemon expects exactly that.

QString MCsSchedulerClient::createTask(const QJsonObject &task)
{
    return requestData(u"task.create"_s, {{u"task"_s, task}}).value("taskId"_L1).toString();
}

bool MCsSchedulerClient::updateTask(const QString &taskId, const QJsonObject &task)
{
    return succeeds(u"task.update"_s, {{u"taskId"_s, taskId}, {u"task"_s, task}});
}

bool MCsSchedulerClient::deleteTask(const QString &taskId)
{
    return succeeds(u"task.delete"_s, {{u"taskId"_s, taskId}});
}

bool MCsSchedulerClient::enableTask(const QString &taskId)
{
    return succeeds(u"task.enable"_s, {{u"taskId"_s, taskId}});
}

bool MCsSchedulerClient::disableTask(const QString &taskId)
{
    return succeeds(u"task.disable"_s, {{u"taskId"_s, taskId}});
}

bool MCsSchedulerClient::triggerTask(const QString &taskId)
{
    return succeeds(u"task.trigger"_s, {{u"taskId"_s, taskId}});
}

bool MCsSchedulerClient::moveTaskToGroup(const QString &taskId, const QString &groupId)
{
    return succeeds(u"task.moveToGroup"_s, {{u"taskId"_s, taskId}, {u"groupId"_s, groupId}});
}

bool MCsSchedulerClient::batchMoveTasksToGroup(const QStringList &taskIds, const QString &groupId)
{
    return succeeds(u"task.batchMoveToGroup"_s,
                    {{u"taskIds"_s, QJsonArray::fromStringList(taskIds)}, {u"groupId"_s, groupId}});
}

TaskInfo MCsSchedulerClient::getTask(const QString &taskId)
{
    return TaskInfo::fromJson(requestData(u"task.get"_s, {{u"taskId"_s, taskId}}).value("task"_L1).toObject());
}

QList<TaskInfo> MCsSchedulerClient::listTasks()
{
    return listTasksByType(m_clientType);
}

QList<TaskInfo> MCsSchedulerClient::listTasksByType(const QString &type)
{
    return toRecords<TaskInfo>(requestData(u"task.listByType"_s, {{u"type"_s, type}}).value("tasks"_L1));
}

QList<TaskInfo> MCsSchedulerClient::listTasksByGroup(const QString &groupId)
{
    return listTasksByGroupAndType(groupId, m_clientType);
}

QList<TaskInfo> MCsSchedulerClient::listTasksByGroupAndType(const QString &groupId, const QString &taskType)
{
    const QJsonObject payload{{u"groupId"_s, groupId}, {u"taskType"_s, taskType}};
    return toRecords<TaskInfo>(requestData(u"task.listByGroupAndType"_s, payload).value("tasks"_L1));
}

int MCsSchedulerClient::getTaskCount()
{
    return getTaskCountByType(m_clientType);
}

int MCsSchedulerClient::getTaskCountByType(const QString &type)
{
    return requestData(u"task.countByType"_s, {{u"type"_s, type}}).value("count"_L1).toInt();
}

int MCsSchedulerClient::getTaskCountByGroup(const QString &groupId)
{
    return getTaskCountByGroupAndType(groupId, m_clientType);
}

int MCsSchedulerClient::getTaskCountByGroupAndType(const QString &groupId, const QString &taskType)
{
    const QJsonObject payload{{u"groupId"_s, groupId}, {u"taskType"_s, taskType}};
    return requestData(u"task.countByGroupAndType"_s, payload).value("count"_L1).toInt();
}

QString MCsSchedulerClient::createGroup(const QJsonObject &group)
{
    return requestData(u"group.create"_s, {{u"group"_s, group}}).value("groupId"_L1).toString();
}

bool MCsSchedulerClient::updateGroup(const QString &groupId, const QJsonObject &group)
{
    return succeeds(u"group.update"_s, {{u"groupId"_s, groupId}, {u"group"_s, group}});
}

bool MCsSchedulerClient::deleteGroup(const QString &groupId, bool deleteChildGroups)
{
    return succeeds(u"group.delete"_s, {{u"groupId"_s, groupId}, {u"deleteChildGroups"_s, deleteChildGroups}});
}

bool MCsSchedulerClient::enableAllTasksInGroup(const QString &groupId)
{
    return succeeds(u"group.enableAllTasks"_s, {{u"groupId"_s, groupId}});
}

bool MCsSchedulerClient::disableAllTasksInGroup(const QString &groupId)
{
    return succeeds(u"group.disableAllTasks"_s, {{u"groupId"_s, groupId}});
}

bool MCsSchedulerClient::triggerAllTasksInGroup(const QString &groupId)
{
    return succeeds(u"group.triggerAllTasks"_s, {{u"groupId"_s, groupId}});
}

bool MCsSchedulerClient::deleteAllTasksInGroup(const QString &groupId)
{
    return succeeds(u"group.deleteAllTasks"_s, {{u"groupId"_s, groupId}});
}

GroupInfo MCsSchedulerClient::getGroup(const QString &groupId)
{
    return GroupInfo::fromJson(requestData(u"group.get"_s, {{u"groupId"_s, groupId}}).value("group"_L1).toObject());
}

QList<GroupInfo> MCsSchedulerClient::listGroups()
{
    return listGroupsByTaskType(m_clientType);
}

QList<GroupInfo> MCsSchedulerClient::listGroupsByTaskType(const QString &taskType)
{
    return toRecords<GroupInfo>(requestData(u"group.listByTaskType"_s, {{u"taskType"_s, taskType}}).value("groups"_L1));
}

QList<TaskTypeInfo> MCsSchedulerClient::listTaskTypes()
{
    const QJsonObject response = sendRequest(u"tasktype.list"_s, {}, m_commandTimeout);
    const QByteArray text = QJsonDocument(response).toJson(QJsonDocument::Compact);
    MCsLogger::instance().debug(u"client"_s, "listTaskTypes response:"_L1 + QString::fromUtf8(text));
    return toRecords<TaskTypeInfo>(dataOf(response).value("taskTypes"_L1));
}

QList<AuditLogEntry> MCsSchedulerClient::getAuditLogs(int limit, bool ascending, const QDateTime &from,
                                                      const QDateTime &to)
{
    return getAuditLogs(m_clientType, limit, ascending, from, to);
}

QList<AuditLogEntry> MCsSchedulerClient::getAuditLogs(const QString &taskType, int limit, bool ascending,
                                                      const QDateTime &from, const QDateTime &to)
{
    const QJsonObject payload = auditPayload(taskType, limit, ascending, from, to);
    return toRecords<AuditLogEntry>(requestData(u"audit.list"_s, payload).value("logs"_L1));
}

} // namespace Scheduler
