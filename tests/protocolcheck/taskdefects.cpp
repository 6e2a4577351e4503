#include "defects.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

const QString get = u"task.get"_s;
const QString ofType = u"task.listByType"_s;
const QString ofGroup = u"task.listByGroupAndType"_s;
const QString groupCount = u"task.countByGroupAndType"_s;
const QString moveSeveral = u"task.batchMoveToGroup"_s;
const QString audit = u"audit.list"_s;

Defect accepts(const QString &rule, const QString &command)
{
    return changes(rule, command, [](QJsonObject &response) { response.insert(u"ok"_s, true); });
}

QList<Defect> actionDefects()
{
    return {
        ignores(u"task.enable"_s, u"task.enable"_s),
        ignores(u"task.disable"_s, u"task.disable"_s),
        changes(u"task.trigger"_s, u"task.trigger"_s, refusing()),
        ignores(u"task.moveToGroup"_s, u"task.moveToGroup"_s),
        ignores(u"task.moveToGroup.ungrouped"_s, u"task.moveToGroup"_s),
        ignores(moveSeveral, moveSeveral),
        accepts(moveSeveral + u".whole"_s, moveSeveral),
        accepts(u"task.get.gone"_s, get),
        accepts(u"task.update.gone"_s, u"task.update"_s),
        accepts(u"task.delete.gone"_s, u"task.delete"_s),
        accepts(u"task.enable.gone"_s, u"task.enable"_s),
        accepts(u"task.disable.gone"_s, u"task.disable"_s),
        accepts(u"task.trigger.gone"_s, u"task.trigger"_s),
        accepts(u"task.moveToGroup.gone"_s, u"task.moveToGroup"_s),
    };
}

QList<Defect> auditDefects()
{
    const QJsonArray three{QJsonObject(), QJsonObject(), QJsonObject()};
    return {
        changes(audit, audit, inFirst(u"logs"_s, u"result"_s, u"yes"_s)),
        changes(audit + u".limit"_s, audit, answering(u"logs"_s, three)),
        changes(audit + u".newest-first"_s, audit, inFirst(u"logs"_s, u"createdAt"_s, u"2001-01-01T00:00:00"_s)),
        changes(audit + u".oldest-first"_s, audit, inFirst(u"logs"_s, u"createdAt"_s, u"2101-01-01T00:00:00"_s)),
        changes(audit + u".from"_s, audit, answering(u"logs"_s, three)),
        changes(audit + u".to"_s, audit, answering(u"logs"_s, three)),
    };
}

} // namespace

QList<Defect> taskDefects()
{
    return QList<Defect>{
               changes(u"task.create"_s, u"task.create"_s, answering(u"taskId"_s, 17)),
               changes(u"task.create.document"_s, get, inObject(u"task"_s, u"paramsJson"_s, u"{}"_s)),
               changes(get, get, inObject(u"task"_s, u"enabled"_s, u"no"_s)),
               changes(u"task.get.dates"_s, get, inObject(u"task"_s, u"createdAt"_s, u"2026-11-13T10:00:00"_s)),
               changes(u"task.get.next-run"_s, get, inObject(u"task"_s, u"nextRunAt"_s, QString())),
               ignores(u"task.update"_s, u"task.update"_s),
               ignores(u"task.delete"_s, u"task.delete"_s),
               changes(ofType, ofType, answering(u"tasks"_s, QJsonArray())),
               changes(ofType + u".all"_s, ofType, answering(u"tasks"_s, QJsonArray())),
               changes(ofType + u".others"_s, ofType, inFirst(u"tasks"_s, u"type"_s, u"task_type.other"_s)),
               changes(ofType + u".form"_s, ofType, inFirst(u"tasks"_s, u"nextRunAt"_s, u"13.11.2026"_s)),
               changes(u"task.countByType"_s, u"task.countByType"_s, answering(u"count"_s, 0)),
               changes(ofGroup, ofGroup, answering(u"tasks"_s, QJsonArray())),
               changes(ofGroup + u".ungrouped"_s, ofGroup, answering(u"tasks"_s, QJsonArray())),
               changes(groupCount, groupCount, answering(u"count"_s, u"2"_s)),
               changes(groupCount + u".ungrouped"_s, groupCount, answering(u"count"_s, 0)),
           } +
           actionDefects() + auditDefects();
}

} // namespace TestSupport
