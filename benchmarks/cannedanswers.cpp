#include "cannedanswers.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

/// Listings and counts tell the same.
constexpr int tasksInGroup = 3;

const QDateTime now = QDateTime::currentDateTimeUtc();

QString iso(qint64 seconds)
{
    return now.addSecs(seconds).toString(Qt::ISODate);
}

QByteArray bytes(const QString &key, const QJsonValue &value)
{
    return QJsonDocument(QJsonObject{{key, value}}).toJson(QJsonDocument::Compact);
}

/// About 550 bytes in compact form, as a daemon sends it.
QJsonObject task(int number, qint64 delay)
{
    const QJsonObject params{
        {u"startRecordingOn"_s, QJsonObject{{u"mode"_s, u"EveryDay"_s}, {u"dailyTime"_s, u"09:00:00"_s}}},
        {u"autoStopCondition"_s, QJsonObject{{u"mode"_s, u"None"_s}}},
        {u"outputSettings"_s, QJsonObject{{u"mode"_s, u"UseDefault"_s}}},
        {u"displayMode"_s, u"Show"_s}};
    return {{u"id"_s, u"task-%1"_s.arg(number, 8, 10, QChar(u'0'))},
            {u"name"_s, u"Recording of meeting number %1"_s.arg(number)},
            {u"type"_s, benchTaskType},
            {u"enabled"_s, number % 5 != 0},
            {u"groupId"_s, QString()},
            {u"scheduleMode"_s, u"EveryDay"_s},
            {u"scheduleCron"_s, QString()},
            {u"scheduleIntervalSec"_s, 0},
            {u"nextRunAt"_s, iso(delay)},
            {u"lastRunStatus"_s, u"success"_s},
            {u"createdAt"_s, iso(-86400 - number)},
            {u"updatedAt"_s, iso(-3600 - number)},
            {u"paramsJson"_s, params}};
}

QByteArray tasks(int count, qint64 offset)
{
    QJsonArray all;
    for (int number = 0; number < count; ++number)
        all.append(task(number, 3600 + number * 61 + offset));
    return bytes(u"tasks"_s, all);
}

QByteArray groups(const Amounts &amounts)
{
    QJsonArray all;
    for (int number = 0; number < amounts.groups; ++number) {
        const int name = number >= amounts.groups - amounts.equalNames ? number - amounts.equalNames : number;
        const bool child = number % amounts.depth != 0;
        all.append(QJsonObject{{u"id"_s, u"group-%1"_s.arg(number)},
                               {u"name"_s, u"Group number %1"_s.arg(name)},
                               {u"description"_s, u"What belongs together"_s},
                               {u"color"_s, number % 2 == 0 ? u"#3498db"_s : u"#e67e22"_s},
                               {u"parentId"_s, child ? u"group-%1"_s.arg(number - 1) : QString()},
                               {u"taskType"_s, benchTaskType},
                               {u"displayOrder"_s, number},
                               {u"taskCount"_s, tasksInGroup},
                               {u"enabledTaskCount"_s, 2},
                               {u"createdAt"_s, iso(-7200)},
                               {u"updatedAt"_s, iso(-7200)}});
    }
    return bytes(u"groups"_s, all);
}

QByteArray auditEntries(int count)
{
    QJsonArray all;
    for (int number = count; number > 0; --number)
        all.append(QJsonObject{
            {u"id"_s, number},
            {u"action"_s, number % 3 == 0 ? u"task_run.failed"_s : u"task.created"_s},
            {u"taskType"_s, benchTaskType},
            {u"entityId"_s, u"task-%1"_s.arg(number)},
            {u"entityName"_s, u"Recording of meeting number %1"_s.arg(number)},
            {u"operator"_s, u"user"_s},
            {u"result"_s, number % 3 != 0},
            {u"message"_s, QString()},
            {u"detailsJson"_s, QJsonObject{{u"scheduleMode"_s, u"EveryDay"_s}, {u"error"_s, u"the disk is full"_s}}},
            {u"createdAt"_s, iso(-number)}});
    return bytes(u"logs"_s, all);
}

QByteArray taskTypes(int fieldCount)
{
    static constexpr const char *kinds[] = {"int", "double", "bool", "select", "text"};
    QJsonArray fields;
    for (int number = 0; number < fieldCount; ++number)
        fields.append(QJsonObject{{u"key"_s, u"field%1"_s.arg(number)},
                                  {u"type"_s, QString::fromLatin1(kinds[number % 5])},
                                  {u"label"_s, u"Field number %1"_s.arg(number)},
                                  {u"defaultValue"_s, u"2"_s},
                                  {u"options"_s, QJsonArray{u"1"_s, u"2"_s, u"3"_s}},
                                  {u"placeholder"_s, u"What it is for"_s},
                                  {u"max"_s, 100}});
    return bytes(
        u"taskTypes"_s,
        QJsonArray{QJsonObject{{u"type"_s, benchTaskType}, {u"name"_s, u"Screen Recorder"_s}, {u"fields"_s, fields}}});
}

} // namespace

QStringList Amounts::toArguments() const
{
    QStringList arguments;
    for (const int value : {tasks, groups, equalNames, depth, auditEntries, fields, int(moving)})
        arguments.append(QString::number(value));
    return arguments;
}

Amounts Amounts::fromArguments(const QStringList &arguments)
{
    const auto value = [&arguments](qsizetype index) { return arguments.value(index).toInt(); };
    return {value(0), value(1), value(2), value(3), value(4), value(5), value(6) != 0};
}

Answers cannedAnswers(const Amounts &amounts)
{
    QList<QByteArray> lists{tasks(amounts.tasks, 0)};
    if (amounts.moving)
        lists.append(tasks(amounts.tasks, 30)); // far enough for every countdown to read otherwise
    const QByteArray count = bytes(u"count"_s, tasksInGroup);
    return {{u"task.listByType"_s, lists},
            {u"task.countByType"_s, {count}},
            {u"task.countByGroupAndType"_s, {count}},
            {u"group.listByTaskType"_s, {groups(amounts)}},
            {u"audit.list"_s, {auditEntries(amounts.auditEntries)}},
            {u"tasktype.list"_s, {taskTypes(amounts.fields)}}};
}

QByteArray responseFrame(const QString &id, const QByteArray &data)
{
    return "{\"data\":" + (data.isEmpty() ? QByteArrayLiteral("{}") : data) + ",\"id\":\"" + id.toUtf8() +
           "\",\"ok\":true}";
}

} // namespace Bench
