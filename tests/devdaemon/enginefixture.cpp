#include "enginefixture.h"

#include <QDebug>

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;

namespace TestSupport {

namespace {

QList<QJsonObject> objectsOf(const QJsonValue &array)
{
    QList<QJsonObject> objects;
    const QJsonArray values = array.toArray();
    for (const QJsonValue &value : values)
        objects.append(value.toObject());
    return objects;
}

QStringList textsOf(const QList<QJsonObject> &objects, const QString &key)
{
    QStringList texts;
    for (const QJsonObject &object : objects)
        texts.append(object.value(key).toString());
    return texts;
}

} // namespace

QJsonObject once(const QString &isoTime)
{
    return {{u"mode"_s, u"SpecifiedTime"_s}, {u"specifiedDateTime"_s, isoTime}};
}

QJsonObject daily(const QString &time)
{
    return {{u"mode"_s, u"EveryDay"_s}, {u"dailyTime"_s, time}};
}

QJsonObject weekly(const QStringList &days, const QString &time)
{
    return {{u"mode"_s, u"EveryWeek"_s}, {u"weeklyDays"_s, QJsonArray::fromStringList(days)}, {u"weeklyTime"_s, time}};
}

QJsonObject paramsWith(const QJsonObject &start)
{
    return {{u"startRecordingOn"_s, start}};
}

EngineFixture::EngineFixture(const State &state, const EngineSettings &settings)
    : now(QDateTime::fromString(u"2026-11-13T12:00:00Z"_s, Qt::ISODate))
    , engine(state, settings, [this] { return now; })
{
}

EngineSettings EngineFixture::inUtc()
{
    EngineSettings settings;
    settings.zone = QTimeZone::utc();
    return settings;
}

QJsonObject EngineFixture::call(const QString &command, const QJsonValue &payload)
{
    return engine.execute(command, payload, actor);
}

QJsonObject EngineFixture::data(const QString &command, const QJsonValue &payload)
{
    const QJsonObject response = call(command, payload);
    if (!response.value("ok"_L1).toBool())
        qWarning() << command << "failed:" << response;
    return response.value("data"_L1).toObject();
}

QString EngineFixture::errorOf(const QString &command, const QJsonValue &payload)
{
    const QJsonObject response = call(command, payload);
    if (response.value("ok"_L1).toBool())
        return {};
    return response.value("error"_L1).toObject().value("code"_L1).toString();
}

QString EngineFixture::addTask(const QString &name, const QString &groupId, const QJsonObject &start,
                               const QString &type)
{
    const QJsonObject task{{u"name"_s, name},
                           {u"type"_s, type},
                           {u"enabled"_s, true},
                           {u"groupId"_s, groupId},
                           {u"programName"_s, u"Recorder"_s},
                           {u"targetProgram"_s, u"/opt/recorder"_s},
                           {u"paramsJson"_s, paramsWith(start)}};
    return data(u"task.create"_s, QJsonObject{{u"task"_s, task}}).value("taskId"_L1).toString();
}

QString EngineFixture::addGroup(const QString &name, const QString &parentId, int displayOrder, const QString &type)
{
    const QJsonObject group{{u"name"_s, name},          {u"description"_s, u"about "_s + name},
                            {u"color"_s, u"#3498db"_s}, {u"parentId"_s, parentId},
                            {u"taskType"_s, type},      {u"displayOrder"_s, displayOrder}};
    return data(u"group.create"_s, QJsonObject{{u"group"_s, group}}).value("groupId"_L1).toString();
}

QJsonObject EngineFixture::task(const QString &taskId)
{
    return data(u"task.get"_s, QJsonObject{{u"taskId"_s, taskId}}).value("task"_L1).toObject();
}

QJsonObject EngineFixture::group(const QString &groupId)
{
    return data(u"group.get"_s, QJsonObject{{u"groupId"_s, groupId}}).value("group"_L1).toObject();
}

QList<QJsonObject> EngineFixture::groups(const QString &taskType)
{
    return objectsOf(data(u"group.listByTaskType"_s, QJsonObject{{u"taskType"_s, taskType}}).value("groups"_L1));
}

QStringList EngineFixture::groupTexts(const QString &taskType, const QString &key)
{
    return textsOf(groups(taskType), key);
}

QStringList EngineFixture::taskNamesIn(const QString &groupId, const QString &taskType)
{
    const QJsonObject payload{{u"groupId"_s, groupId}, {u"taskType"_s, taskType}};
    return textsOf(objectsOf(data(u"task.listByGroupAndType"_s, payload).value("tasks"_L1)), u"name"_s);
}

int EngineFixture::countIn(const QString &groupId, const QString &taskType)
{
    const QJsonObject payload{{u"groupId"_s, groupId}, {u"taskType"_s, taskType}};
    return data(u"task.countByGroupAndType"_s, payload).value("count"_L1).toInt(-1);
}

QList<QJsonObject> EngineFixture::audit(const QJsonObject &extra)
{
    QJsonObject payload{{u"taskType"_s, u"task_type.all"_s}, {u"limit"_s, 100}, {u"ascending"_s, false}};
    for (auto member = extra.begin(); member != extra.end(); ++member)
        payload.insert(member.key(), member.value());
    return objectsOf(data(u"audit.list"_s, payload).value("logs"_L1));
}

QStringList EngineFixture::auditActions(const QJsonObject &extra)
{
    return textsOf(audit(extra), u"action"_s);
}

void EngineFixture::pass(qint64 seconds)
{
    now = now.addSecs(seconds);
    engine.advance();
}

} // namespace TestSupport
