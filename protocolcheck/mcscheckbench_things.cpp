#include "mcscheckbench.h"

#include <QDateTime>
#include <QStandardPaths>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

const QString &allTypes()
{
    static const QString id = u"task_type.all"_s;
    return id;
}

/// The value that a manager's form sends for a field that its user has left alone.
QJsonValue defaultOf(const QJsonObject &field)
{
    const QString type = field.value("type"_L1).toString();
    const QString text = field.value("defaultValue"_L1).toString();
    if (type == "int"_L1 || type == "double"_L1)
        return qMax(text.toDouble(), field.value("min"_L1).toDouble());
    if (type == "bool"_L1)
        return text == "true"_L1 || text == "1"_L1;
    const QJsonValue firstOption = field.value("options"_L1).toArray().first();
    return type == "select"_L1 && text.isEmpty() ? firstOption.toString() : text;
}

QJsonObject parameters(const QJsonObject &taskType)
{
    QJsonObject values;
    const QJsonArray fields = taskType.value("fields"_L1).toArray();
    for (const QJsonValue &field : fields)
        values.insert(field["key"_L1].toString(), defaultOf(field.toObject()));
    return values;
}

QJsonObject withChanges(QJsonObject document, const QJsonObject &changes)
{
    for (auto change = changes.begin(); change != changes.end(); ++change)
        document.insert(change.key(), change.value());
    return document;
}

/// A program that does nothing, since a daemon may start it: one that there is on the own system.
QString harmlessProgram()
{
    for (const auto &name : {u"true"_s, u"hostname"_s}) {
        if (const QString path = QStandardPaths::findExecutable(name); !path.isEmpty())
            return path;
    }
    return {};
}

} // namespace

QString MCsCheckBench::workingType()
{
    if (!m_type)
        lookUpTypes();
    const QString type = m_type.value_or(QJsonObject()).value("type"_L1).toString();
    if (type.isEmpty())
        notTried(u"the daemon lists no task type %1"_s.arg(m_settings.taskType));
    return type;
}

void MCsCheckBench::lookUpTypes()
{
    const MCsCheckLink::Frame answer = exchange(u"tasktype.list"_s, {});
    if (!answer)
        return;
    m_type = QJsonObject();
    const QJsonArray types = answer->value("data"_L1)["taskTypes"_L1].toArray();
    for (const QJsonValue &type : types) {
        const bool fits = m_settings.taskType == allTypes() || type["type"_L1].toString() == m_settings.taskType;
        if (fits && m_type->isEmpty())
            m_type = type.toObject();
    }
}

QJsonObject MCsCheckBench::taskDocument(const QJsonObject &changes)
{
    const QString type = workingType();
    const QJsonObject start{
        {u"mode"_s, u"SpecifiedTime"_s},
        {u"specifiedDateTime"_s, QDateTime::currentDateTime().addYears(1).toString(u"yyyy-MM-ddTHH:mm:ss"_s)}};
    const QJsonObject params{{u"startRecordingOn"_s, start},
                             {u"autoStopCondition"_s, QJsonObject{{u"mode"_s, u"None"_s}}},
                             {u"outputSettings"_s, QJsonObject{{u"mode"_s, u"UseDefault"_s}}},
                             {u"displayMode"_s, u"Hide"_s},
                             {u"dynamicParams"_s, parameters(m_type.value_or(QJsonObject()))}};
    return withChanges({{u"name"_s, mark(u"task"_s)},
                        {u"type"_s, type},
                        {u"enabled"_s, false},
                        {u"groupId"_s, QString()},
                        {u"programName"_s, u"orvel-protocol-check"_s},
                        {u"targetProgram"_s, harmlessProgram()},
                        {u"paramsJson"_s, params}},
                       changes);
}

QJsonObject MCsCheckBench::groupDocument(const QJsonObject &changes)
{
    return withChanges({{u"name"_s, mark(u"group"_s)},
                        {u"description"_s, u"Made to check the daemon"_s},
                        {u"color"_s, u"#3498db"_s},
                        {u"parentId"_s, QString()},
                        {u"taskType"_s, workingType()},
                        {u"displayOrder"_s, 7}},
                       changes);
}

QString MCsCheckBench::makeTask(const QJsonObject &changes)
{
    const QJsonObject data = prepare(u"task.create"_s, {{u"task"_s, taskDocument(changes)}});
    const QString id = data.value("taskId"_L1).toString();
    if (id.isEmpty())
        notTried(u"it needs a task, and none could be made"_s);
    adoptTask(id);
    return id;
}

QString MCsCheckBench::makeGroup(const QJsonObject &changes)
{
    const QJsonObject data = prepare(u"group.create"_s, {{u"group"_s, groupDocument(changes)}});
    const QString id = data.value("groupId"_L1).toString();
    if (id.isEmpty())
        notTried(u"it needs a group, and none could be made"_s);
    adoptGroup(id);
    return id;
}

QString MCsCheckBench::goneTask()
{
    const QString id = makeTask();
    prepare(u"task.delete"_s, {{u"taskId"_s, id}});
    return id;
}

QString MCsCheckBench::goneGroup()
{
    const QString id = makeGroup();
    prepare(u"group.delete"_s, {{u"groupId"_s, id}, {u"deleteChildGroups"_s, false}});
    return id;
}

QJsonObject MCsCheckBench::storedTask(const QString &taskId)
{
    return prepare(u"task.get"_s, {{u"taskId"_s, taskId}}).value("task"_L1).toObject();
}

QJsonObject MCsCheckBench::storedGroup(const QString &groupId)
{
    return prepare(u"group.get"_s, {{u"groupId"_s, groupId}}).value("group"_L1).toObject();
}

void MCsCheckBench::adoptTask(const QString &taskId)
{
    if (!taskId.isEmpty())
        m_taskIds.append(taskId);
}

void MCsCheckBench::adoptGroup(const QString &groupId)
{
    if (!groupId.isEmpty())
        m_groupIds.append(groupId);
}

QStringList MCsCheckBench::removeAll()
{
    if (m_madeCount == 0)
        return {};
    m_cleaning = true;
    begin(u"removal"_s);
    for (const QString &id : ownTasks())
        if (!exchange(u"task.delete"_s, {{u"taskId"_s, id}}))
            break;
    for (const QString &id : ownGroups())
        if (!exchange(u"group.delete"_s, {{u"groupId"_s, id}, {u"deleteChildGroups"_s, false}}))
            break;
    QStringList left = ownTasks() + ownGroups();
    if (!going())
        left = {u"whatever is named '%1...' (%2)"_s.arg(m_mark, m_outcome.detail)};
    m_cleaning = false;
    return left;
}

QString MCsCheckBench::mark(const QString &kind)
{
    return u"%1 %2 %3"_s.arg(m_mark, kind, QString::number(++m_madeCount));
}

QStringList MCsCheckBench::ownTasks()
{
    return ownOf(m_taskIds, {u"task.listByType"_s, u"type"_s, u"tasks"_s}, {u"task.get"_s, u"taskId"_s, u"task"_s});
}

QStringList MCsCheckBench::ownGroups()
{
    return ownOf(m_groupIds, {u"group.listByTaskType"_s, u"taskType"_s, u"groups"_s},
                 {u"group.get"_s, u"groupId"_s, u"group"_s});
}

/// The name decides, not the id alone: a daemon may have given the id of something deleted to something of the user's,
/// and what was made without an answer has an id that nobody told.
QStringList MCsCheckBench::ownOf(const QStringList &madeIds, const Query &list, const Query &get)
{
    QStringList ids;
    const auto takeIfOwn = [&](const QJsonValue &record) {
        const QString id = record["id"_L1].toString();
        if (record["name"_L1].toString().startsWith(m_mark) && !ids.contains(id))
            ids.append(id);
    };
    const QString type = m_type.value_or(QJsonObject()).value("type"_L1).toString();
    const QJsonArray records = prepare(list.command, {{list.key, type}}).value(list.result).toArray();
    for (const QJsonValue &record : records)
        takeIfOwn(record);
    for (const QString &id : madeIds) {
        if (!ids.contains(id) && going())
            takeIfOwn(exchange(get.command, {{get.key, id}}).value_or(QJsonObject())["data"_L1][get.result]);
    }
    return ids;
}

} // namespace Scheduler::ProtocolCheck
