#include "defects.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

const QString list = u"group.listByTaskType"_s;
const QString get = u"group.get"_s;

Defect listsBackwards()
{
    return changes(list + u".order"_s, list, [](QJsonObject &response) {
        QJsonArray backwards;
        const QJsonArray groups = response["data"_L1]["groups"_L1].toArray();
        for (const QJsonValue &group : groups)
            backwards.prepend(group);
        response.insert(u"data"_s, QJsonObject{{u"groups"_s, backwards}});
    });
}

} // namespace

QList<Defect> groupDefects()
{
    return {
        changes(u"group.create"_s, u"group.create"_s, answering(u"groupId"_s, u"1,5"_s)),
        changes(u"group.create.document"_s, get, inObject(u"group"_s, u"description"_s, u"two lines"_s)),
        changes(u"group.create.child"_s, get, inObject(u"group"_s, u"parentId"_s, QString())),
        changes(get, get, inObject(u"group"_s, u"displayOrder"_s, u"7"_s)),
        ignores(u"group.update"_s, u"group.update"_s),
        ignores(u"group.delete"_s, u"group.delete"_s),
        changes(u"group.delete.tasks"_s, u"task.get"_s, inObject(u"task"_s, u"groupId"_s, u"g-1"_s)),
        changes(list, list, answering(u"groups"_s, QJsonArray())),
        changes(list + u".form"_s, list, inFirst(u"groups"_s, u"taskCount"_s, u"two"_s)),
        changes(list + u".empty"_s, list, answering(u"groups"_s, QJsonArray())),
        listsBackwards(),
        changes(list + u".counts"_s, list, inEach(u"groups"_s, u"enabledTaskCount"_s, 2)),
        ignores(u"group.enableAllTasks"_s, u"group.enableAllTasks"_s),
        ignores(u"group.disableAllTasks"_s, u"group.disableAllTasks"_s),
        changes(u"group.triggerAllTasks"_s, u"group.triggerAllTasks"_s, refusing()),
        ignores(u"group.deleteAllTasks"_s, u"group.deleteAllTasks"_s),
        changes(u"group.deleteAllTasks.group"_s, get, refusing()),
        changes(u"group.get.gone"_s, get, accepting()),
        changes(u"group.update.gone"_s, u"group.update"_s, accepting()),
        {u"group.delete.gone"_s,
         {},
         [](const SpoilingProxy::Exchange &exchange) -> SpoilingProxy::Answer {
             QJsonObject response = exchange.response;
             if (isOf(u"group.delete.gone"_s, exchange.request))
                 response.insert(u"ok"_s, true);
             return QList{response};
         }},
    };
}

} // namespace TestSupport
