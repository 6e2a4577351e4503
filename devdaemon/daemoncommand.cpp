#include "daemoncommand.h"

#include "daemontasktypes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

bool isWholeNumber(const QJsonValue &value)
{
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    return std::trunc(number) == number && std::abs(number) <= std::numeric_limits<int>::max();
}

bool isTextList(const QJsonValue &value)
{
    const QJsonArray array = value.toArray();
    return value.isArray() &&
           std::all_of(array.begin(), array.end(), [](const QJsonValue &element) { return element.isString(); });
}

bool isOfKind(const QJsonValue &value, JsonKind kind)
{
    switch (kind) {
    case JsonKind::Text:
        return value.isString();
    case JsonKind::Flag:
        return value.isBool();
    case JsonKind::WholeNumber:
        return isWholeNumber(value);
    case JsonKind::Object:
        return value.isObject();
    case JsonKind::TextList:
        return isTextList(value);
    }
    return false;
}

QString nameOf(JsonKind kind)
{
    switch (kind) {
    case JsonKind::Text:
        return u"a string"_s;
    case JsonKind::Flag:
        return u"a boolean"_s;
    case JsonKind::WholeNumber:
        return u"a whole number"_s;
    case JsonKind::Object:
        return u"an object"_s;
    case JsonKind::TextList:
        return u"an array of strings"_s;
    }
    return {};
}

AuditEntry entryBy(const CommandContext &context, const QString &action)
{
    AuditEntry entry;
    entry.action = action;
    entry.operatorName = context.actor;
    entry.createdAt = context.now;
    return entry;
}

} // namespace

QString problemOf(const QJsonObject &object, const QList<KeyRule> &rules)
{
    for (const KeyRule &rule : rules) {
        const QJsonValue value = object.value(rule.key);
        if (value.isUndefined() && !rule.required)
            continue;
        if (!isOfKind(value, rule.kind))
            return u"'%1' must be %2"_s.arg(rule.key, nameOf(rule.kind));
    }
    return {};
}

QString typeScope(const CommandContext &context)
{
    return isTaskType(context.actor) ? context.actor : QString();
}

AuditEntry entryFor(const CommandContext &context, const QString &action, const Task &task)
{
    AuditEntry entry = entryBy(context, action);
    entry.taskType = task.type;
    entry.entityId = task.id;
    entry.entityName = task.name;
    return entry;
}

AuditEntry entryFor(const CommandContext &context, const QString &action, const Group &group)
{
    AuditEntry entry = entryBy(context, action);
    entry.taskType = group.taskType;
    entry.entityId = group.id;
    entry.entityName = group.name;
    return entry;
}

} // namespace Scheduler::DevDaemon
