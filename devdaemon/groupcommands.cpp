#include "daemoncommand.h"

#include "daemonresponse.h"
#include "daemontasktypes.h"
#include "wireprotocol.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

/// The members of a group document. A key that is left out keeps its stored value.
const QList<KeyRule> &documentRules()
{
    static const QList<KeyRule> rules{
        {"name"_L1, JsonKind::Text, false},     {"description"_L1, JsonKind::Text, false},
        {"color"_L1, JsonKind::Text, false},    {"parentId"_L1, JsonKind::Text, false},
        {"taskType"_L1, JsonKind::Text, false}, {"displayOrder"_L1, JsonKind::WholeNumber, false},
    };
    return rules;
}

void applyDocument(Group &group, const QJsonObject &document)
{
    group.name = document.value("name"_L1).toString(group.name).trimmed();
    group.description = document.value("description"_L1).toString(group.description);
    group.color = document.value("color"_L1).toString(group.color);
    group.parentId = document.value("parentId"_L1).toString(group.parentId);
    group.displayOrder = document.value("displayOrder"_L1).toInt(group.displayOrder);
    const QString taskType = document.value("taskType"_L1).toString();
    if (!taskType.isEmpty())
        group.taskType = taskType;
}

/// Why the group cannot stand below its parent; empty when it can. The group's id is empty for a new group.
QJsonObject parentRefusal(const MCsDaemonStore &store, const Group &group)
{
    if (group.parentId.isEmpty())
        return {};
    if (group.parentId == ungroupedId)
        return errorResponse(u"GROUP_RESERVED"_s, u"'Ungrouped' cannot have child groups"_s);
    const Group *parent = store.group(group.parentId);
    if (parent == nullptr)
        return groupNotFound(group.parentId);
    if (parent->id == group.id)
        return errorResponse(u"CIRCULAR_GROUP"_s, u"A group cannot be its own parent"_s);
    if (!group.id.isEmpty() && parent->parentId == group.id)
        return errorResponse(u"CIRCULAR_GROUP"_s, u"A group cannot stand below one of its own child groups"_s);
    const bool hasChildren = !group.id.isEmpty() && !store.childGroupIds(group.id).isEmpty();
    if (!parent->parentId.isEmpty() || hasChildren)
        return errorResponse(u"GROUP_NESTING_TOO_DEEP"_s, u"Groups can be nested up to 2 levels deep"_s);
    return {};
}

/// Lays the document over the group. Returns the refusal, or an empty object when the group may be stored.
QJsonObject takeDocument(const CommandContext &context, Group &group, const QJsonObject &document)
{
    const QString problem = problemOf(document, documentRules());
    if (!problem.isEmpty())
        return invalidPayload(u"Group: "_s + problem);
    applyDocument(group, document);
    if (group.name.isEmpty())
        return invalidPayload(u"A group must have a name"_s);
    if (!isTaskType(group.taskType))
        return errorResponse(u"TASK_TYPE_NOT_FOUND"_s, u"There is no task type '%1'"_s.arg(group.taskType));
    return parentRefusal(context.store, group);
}

/// The refusal of a command that changes a group; empty when the group exists.
QJsonObject changeRefusal(const CommandContext &context, const QString &groupId)
{
    if (groupId == ungroupedId)
        return errorResponse(u"GROUP_RESERVED"_s, u"'Ungrouped' cannot be changed"_s);
    return context.store.group(groupId) == nullptr ? groupNotFound(groupId) : QJsonObject();
}

QJsonObject createGroup(CommandContext &context, const QJsonObject &payload)
{
    Group group;
    QJsonObject refusal = takeDocument(context, group, payload.value("group"_L1).toObject());
    if (!refusal.isEmpty())
        return refusal;
    group.id = newId();
    group.createdAt = context.now;
    group.updatedAt = context.now;
    context.store.addGroup(group);
    AuditEntry entry = entryFor(context, u"group.created"_s, group);
    entry.message = u"Group created"_s;
    context.store.record(entry);
    return success({{u"groupId"_s, group.id}});
}

QJsonObject updateGroup(CommandContext &context, const QJsonObject &payload)
{
    const QString groupId = payload.value("groupId"_L1).toString();
    QJsonObject refusal = changeRefusal(context, groupId);
    if (!refusal.isEmpty())
        return refusal;
    Group group = *context.store.group(groupId);
    refusal = takeDocument(context, group, payload.value("group"_L1).toObject());
    if (!refusal.isEmpty())
        return refusal;
    group.updatedAt = context.now;
    *context.store.editGroup(groupId) = group;
    AuditEntry entry = entryFor(context, u"group.updated"_s, group);
    entry.message = u"Group updated"_s;
    context.store.record(entry);
    return success();
}

void removeGroup(CommandContext &context, const QString &groupId)
{
    AuditEntry entry = entryFor(context, u"group.deleted"_s, *context.store.group(groupId));
    entry.message = u"Group deleted"_s;
    entry.detailsJson = {{u"ungroupedTasks"_s, context.store.counts(groupId, {}).all},
                         {u"raisedGroups"_s, context.store.childGroupIds(groupId).size()}};
    context.store.removeGroup(groupId);
    context.store.record(entry);
}

QJsonObject deleteGroup(CommandContext &context, const QJsonObject &payload)
{
    const QString groupId = payload.value("groupId"_L1).toString();
    QJsonObject refusal = changeRefusal(context, groupId);
    if (!refusal.isEmpty())
        return refusal;
    if (payload.value("deleteChildGroups"_L1).toBool()) {
        const QStringList childIds = context.store.childGroupIds(groupId);
        for (const QString &childId : childIds)
            removeGroup(context, childId);
    }
    removeGroup(context, groupId);
    return success();
}

} // namespace

QList<Command> groupCommands()
{
    const KeyRule groupId{"groupId"_L1};
    const KeyRule document{"group"_L1, JsonKind::Object};
    return {
        {u"group.create"_s, {document}, &createGroup},
        {u"group.update"_s, {groupId, document}, &updateGroup},
        {u"group.delete"_s, {groupId, {"deleteChildGroups"_L1, JsonKind::Flag, false}}, &deleteGroup},
    };
}

} // namespace Scheduler::DevDaemon
