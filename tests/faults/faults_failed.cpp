#include "faults.h"

#include "scripteddaemon.h"
#include "wireprotocol.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

Fault changed(const QByteArray &name, Outcome outcome, const QJsonObject &members, const QString &reason = {})
{
    return {name, outcome, [members](const Strike &strike) { strike.sendWith(members); }, {}, reason};
}

Fault without(QLatin1StringView member, Outcome outcome, const QString &reason = {})
{
    return {"\"" + QByteArray(member.data(), member.size()) + "\" is missing",
            outcome,
            [member](const Strike &strike) { strike.sendWithout(member); },
            {},
            reason};
}

/// Neither a code nor a message can be told.
const QString &unknownReason()
{
    static const QString reason = u": "_s;
    return reason;
}

Fault strangeOk(const QByteArray &name, const QJsonValue &ok)
{
    return changed("\"ok\" is " + name, Outcome::Refused, {{u"ok"_s, ok}}, unknownReason());
}

Fault strangeError(const QByteArray &name, const QJsonValue &error)
{
    return changed("\"error\" is " + name, Outcome::Refused, {{u"ok"_s, false}, {u"error"_s, error}}, unknownReason());
}

Fault strangeData(const QByteArray &name, const QJsonValue &data)
{
    return changed("\"data\" is " + name, Outcome::Hollow, {{u"data"_s, data}});
}

/// Something of another type.
QJsonValue mistaken(const QJsonValue &value)
{
    return value.isString() ? QJsonValue(7) : QJsonValue(u"text"_s);
}

QJsonObject withMembers(QJsonObject object, const std::function<QJsonValue(const QJsonValue &)> &change)
{
    for (auto member = object.begin(); member != object.end(); ++member)
        member.value() = change(member.value());
    return object;
}

void mistakeMembers(const Strike &strike)
{
    strike.sendWith({{u"data"_s, withMembers(strike.answer.value("data"_L1).toObject(), &mistaken)}});
}

void emptyLists(const Strike &strike)
{
    strike.sendWith({{u"data"_s, QJsonObject()}});
}

void mistakeElements(const Strike &strike)
{
    const QJsonArray elements{1, u"x"_s, QJsonValue::Null, QJsonArray{1}, true, QJsonObject()};
    const auto change = [elements](const QJsonValue &) { return elements; };
    strike.sendWith({{u"data"_s, withMembers(strike.answer.value("data"_L1).toObject(), change)}});
}

void mistakeElementMembers(const Strike &strike)
{
    QJsonArray elements;
    for (qsizetype i = 0; i < oddElementCount; ++i)
        elements.append(QJsonObject{{u"id"_s, 5},
                                    {u"name"_s, QJsonArray()},
                                    {u"type"_s, QJsonObject()},
                                    {u"enabled"_s, u"yes"_s},
                                    {u"taskCount"_s, u"many"_s},
                                    {u"parentId"_s, true},
                                    {u"color"_s, 1},
                                    {u"action"_s, 1},
                                    {u"entityName"_s, QJsonValue::Null},
                                    {u"createdAt"_s, 0},
                                    {u"fields"_s, u"none"_s}});
    const auto change = [elements](const QJsonValue &) { return elements; };
    strike.sendWith({{u"data"_s, withMembers(strike.answer.value("data"_L1).toObject(), change)}});
}

} // namespace

QList<Fault> failedFaults()
{
    return {changed("refuses", Outcome::Refused, Scheduler::errorResponse(u"BUSY"_s, u"Not <b>now</b> %1"_s),
                    u"BUSY: Not <b>now</b> %1"_s),
            strangeOk("a text", u"true"_s),
            strangeOk("a number", 1),
            strangeOk("null", QJsonValue::Null),
            without("ok"_L1, Outcome::Refused, unknownReason()),
            strangeOk("an object", QJsonObject()),
            strangeError("a text", u"BUSY"_s),
            strangeError("an array", QJsonArray{u"BUSY"_s}),
            changed("refuses without an error", Outcome::Refused, {{u"ok"_s, false}}, unknownReason()),
            strangeError("of other members", QJsonObject{{u"code"_s, 7}, {u"message"_s, QJsonArray()}}),
            strangeData("an array", QJsonArray{1}),
            strangeData("a text", u"x"_s),
            strangeData("a number", 1),
            strangeData("null", QJsonValue::Null),
            without("data"_L1, Outcome::Hollow),
            {"members of \"data\" of other types", Outcome::Hollow, &mistakeMembers, {}, {}},
            {"\"data\" is empty", Outcome::Hollow, &emptyLists, {}, {}},
            {"elements of other types", Outcome::OddElements, &mistakeElements, {}, {}},
            {"elements with members of other types", Outcome::OddElements, &mistakeElementMembers, {}, {}}};
}

} // namespace TestSupport
