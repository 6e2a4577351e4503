#include "defects.h"
#include "wireprotocol.h"

#include <QElapsedTimer>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

const QString types = u"tasktype.list"_s;

/// Changes the answer to a frame that is no request, or hangs up.
Defect onBadFrame(const QString &rule, const QByteArray &frame, const Change &change)
{
    return {rule, {}, [frame, change](const SpoilingProxy::Exchange &exchange) -> SpoilingProxy::Answer {
                if (exchange.frame != frame)
                    return QList{exchange.response};
                if (!change)
                    return std::nullopt;
                QJsonObject response = exchange.response;
                change(response);
                return QList{response};
            }};
}

Change withId()
{
    return [](QJsonObject &response) { response.insert(u"id"_s, u"a"_s); };
}

Change withCode(const QString &code)
{
    return [code](QJsonObject &response) {
        const QJsonValue id = response.value("id"_L1);
        response = Scheduler::errorResponse(code, response["error"_L1]["message"_L1].toString());
        if (!id.isUndefined())
            response.insert(u"id"_s, id);
    };
}

/// The check has registered before it tries the rule.
Defect refusesToRegister()
{
    Defect defect = changes(u"start"_s, u"client.register"_s, refusing());
    defect.rule = u"client.register"_s;
    return defect;
}

/// Keeps a type for longer than the check waits, and not for longer than it needs it for its other rules.
Defect keepsTheType()
{
    const auto since = std::make_shared<QElapsedTimer>();
    return changes(u"client.register.again"_s, u"client.register"_s, [since](QJsonObject &response) {
        if (!since->isValid())
            since->start();
        if (!since->hasExpired(600))
            withCode(u"CLIENT_TYPE_ALREADY_CONNECTED"_s)(response);
    });
}

/// Sends one more frame behind the answer, or in front of it.
Defect sendsMore(const QString &rule, const QString &where, bool inFront, const QJsonObject &more)
{
    return {rule, {}, [=](const SpoilingProxy::Exchange &exchange) -> SpoilingProxy::Answer {
                if (!isOf(where, exchange.request))
                    return QList{exchange.response};
                return inFront ? QList{more, exchange.response} : QList{exchange.response, more};
            }};
}

Defect offersAllTypesAsAType()
{
    return changes(u"tasktype.list.all"_s, types, inFirst(u"taskTypes"_s, u"type"_s, u"task_type.all"_s));
}

QList<Defect> frameDefects()
{
    return {
        hangsUp(u"frame.pieces"_s, types),
        {u"frame.together"_s,
         {},
         [](const SpoilingProxy::Exchange &exchange) -> SpoilingProxy::Answer {
             const bool second = exchange.request.value("id"_L1).toString() == "req_frame.together_2"_L1;
             return second ? QList<QJsonObject>() : QList{exchange.response};
         }},
        sendsMore(u"frame.empty"_s, u"frame.empty"_s, true,
                  Scheduler::errorResponse(u"INVALID_JSON"_s, u"An empty frame"_s)),
        hangsUp(u"frame.carriage-return"_s, types),
        hangsUp(u"frame.large"_s, types),
        changes(u"frame.keys"_s, types, refusing()),
        isSilent(u"frame.id"_s, types),
    };
}

QList<Defect> errorDefects()
{
    return {
        onBadFrame(u"error.no-json"_s, R"({"id":"a","cmd":)", withCode(u"INVALID_REQUEST"_s)),
        onBadFrame(u"error.no-object"_s, "[1,2]", withCode(u"INVALID_JSON"_s)),
        onBadFrame(u"error.no-id"_s, R"({"cmd":"tasktype.list","payload":{}})",
                   [](QJsonObject &response) { response = Scheduler::errorResponse(u"INVALID_REQUEST"_s, u"No"_s); }),
        onBadFrame(u"error.no-cmd"_s, R"({"id":"a","payload":{}})", withId()),
        onBadFrame(u"error.connection"_s, "no JSON", {}),
        changes(u"error.unknown-command"_s, u"protocol.check"_s, accepting()),
        hangsUp(u"error.payload"_s, u"task.get"_s),
    };
}

QList<Defect> answerDefects()
{
    return {
        {u"answer.form"_s,
         {},
         changes(u"task.enable"_s, u"task.enable"_s,
                 [](QJsonObject &response) { response.insert(u"data"_s, QJsonArray()); })
             .spoil},
        sendsMore(u"answer.unasked"_s, u"task.enable"_s, false, {{u"ok"_s, true}, {u"event"_s, u"task.enabled"_s}}),
    };
}

} // namespace

QList<Defect> connectionDefects()
{
    const QJsonArray fields{QJsonObject{{u"key"_s, u"rate"_s}, {u"defaultValue"_s, 5}}};
    return QList<Defect>{
               refusesToRegister(),
               keepsTheType(),
               changes(u"client.register.second"_s, u"client.register"_s, refusing()),
               isSilent(u"client.register.first"_s, types),
               changes(types, types, inFirst(u"taskTypes"_s, u"name"_s, 5)),
               changes(u"tasktype.list.fields"_s, types, inFirst(u"taskTypes"_s, u"fields"_s, fields)),
               offersAllTypesAsAType(),
           } +
           frameDefects() + errorDefects() + answerDefects();
}

} // namespace TestSupport
