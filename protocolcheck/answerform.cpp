#include "answerform.h"

#include "jsontext.h"

#include <QDateTime>
#include <QRegularExpression>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

bool isEntryNumber(const QJsonValue &value)
{
    bool isNumber = value.isDouble();
    if (value.isString())
        (void)value.toString().toLongLong(&isNumber);
    return isNumber;
}

bool isDate(const QJsonValue &value)
{
    const QString text = value.toString();
    return value.isString() && (text.isEmpty() || QDateTime::fromString(text, Qt::ISODate).isValid());
}

bool isOfKind(const QJsonValue &value, JsonKind kind)
{
    switch (kind) {
    case JsonKind::Text:
        return value.isString();
    case JsonKind::Flag:
        return value.isBool();
    case JsonKind::Number:
        return value.isDouble();
    case JsonKind::Object:
        return value.isObject();
    case JsonKind::List:
        return value.isArray();
    case JsonKind::Date:
        return isDate(value);
    case JsonKind::Id:
        return isId(value);
    case JsonKind::EntryNumber:
        return isEntryNumber(value);
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
    case JsonKind::Number:
        return u"a number"_s;
    case JsonKind::Object:
        return u"an object"_s;
    case JsonKind::List:
        return u"an array"_s;
    case JsonKind::Date:
        return u"an ISO 8601 date"_s;
    case JsonKind::Id:
        return u"a string that is not empty and holds no comma"_s;
    case JsonKind::EntryNumber:
        return u"a number or a string of digits"_s;
    }
    return {};
}

QString errorProblem(const QJsonObject &error)
{
    static const QRegularExpression word(u"^[A-Z][A-Z0-9]*(_[A-Z0-9]+)*$"_s);
    if (!word.match(error.value("code"_L1).toString()).hasMatch())
        return u"'error.code' is no upper-case word with underscores"_s;
    return error.value("message"_L1).isString() ? QString() : u"'error.message' is no string"_s;
}

} // namespace

const QList<Member> &taskMembers()
{
    using enum JsonKind;
    static const QList<Member> members{
        {"id"_L1, Id},
        {"name"_L1, Text},
        {"type"_L1, Text},
        {"enabled"_L1, Flag},
        {"groupId"_L1, Text},
        {"scheduleMode"_L1, Text},
        {"scheduleCron"_L1, Text},
        {"scheduleIntervalSec"_L1, Number},
        {"scheduleStartAt"_L1, Date},
        {"nextRunAt"_L1, Date},
        {"lastRunStatus"_L1, Text},
        {"createdAt"_L1, Date},
        {"updatedAt"_L1, Date},
        {"paramsJson"_L1, Object},
    };
    return members;
}

const QList<Member> &groupMembers()
{
    using enum JsonKind;
    static const QList<Member> members{
        {"id"_L1, Id},          {"name"_L1, Text},      {"description"_L1, Text},        {"color"_L1, Text},
        {"parentId"_L1, Text},  {"taskType"_L1, Text},  {"displayOrder"_L1, Number},     {"taskCount"_L1, Number},
        {"createdAt"_L1, Date}, {"updatedAt"_L1, Date}, {"enabledTaskCount"_L1, Number},
    };
    return members;
}

const QList<Member> &auditMembers()
{
    using enum JsonKind;
    static const QList<Member> members{
        {"id"_L1, EntryNumber},     {"action"_L1, Text},    {"taskType"_L1, Text}, {"entityId"_L1, Text},
        {"entityName"_L1, Text},    {"operator"_L1, Text},  {"result"_L1, Flag},   {"message"_L1, Text},
        {"detailsJson"_L1, Object}, {"createdAt"_L1, Date},
    };
    return members;
}

const QList<Member> &taskTypeMembers()
{
    using enum JsonKind;
    static const QList<Member> members{
        {"type"_L1, Id},       {"name"_L1, Text},        {"description"_L1, Text},
        {"category"_L1, Text}, {"requiresGui"_L1, Flag}, {"fields"_L1, List},
    };
    return members;
}

const QList<Member> &fieldMembers()
{
    using enum JsonKind;
    static const QList<Member> members{
        {"key"_L1, Text},      {"type"_L1, Text},    {"label"_L1, Text},       {"defaultValue"_L1, Text},
        {"required"_L1, Flag}, {"options"_L1, List}, {"visibleIf"_L1, Object}, {"placeholder"_L1, Text},
        {"min"_L1, Number},    {"max"_L1, Number},
    };
    return members;
}

QString recordProblem(const QJsonObject &record, const QList<Member> &members)
{
    for (const Member &member : members) {
        const QJsonValue value = record.value(member.key);
        const bool mayBeMissing = member.kind != JsonKind::Id;
        if (mayBeMissing && (value.isUndefined() || value.isNull()))
            continue;
        if (!isOfKind(value, member.kind))
            return u"'%1' must be %2, but it is %3"_s.arg(member.key, nameOf(member.kind), textOf(value));
    }
    return {};
}

QString listProblem(const QJsonArray &records, const QList<Member> &members)
{
    for (const QJsonValue &record : records) {
        const QString problem =
            record.isObject() ? recordProblem(record.toObject(), members) : u"an element is no object"_s;
        if (!problem.isEmpty())
            return u"%1 in %2"_s.arg(problem, textOf(record));
    }
    return {};
}

QString answerProblem(const QJsonObject &answer)
{
    const QJsonValue ok = answer.value("ok"_L1);
    if (!ok.isBool())
        return u"'ok' is no boolean"_s;
    if (!ok.toBool())
        return errorProblem(answer.value("error"_L1).toObject());
    return answer.contains("data"_L1) && !answer.value("data"_L1).isObject() ? u"'data' is no object"_s : QString();
}

bool isId(const QJsonValue &value)
{
    const QString id = value.toString();
    return !id.isEmpty() && !id.contains(u',');
}

} // namespace Scheduler::ProtocolCheck
