#include "answerform.h"
#include "jsontext.h"
#include "mcscheckbench.h"
#include "wireprotocol.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

/// Sends a frame that is no request, on a connection of its own, and expects the error. An empty message stands for
/// whatever the parser says.
void expectError(MCsCheckBench &bench, const QByteArray &bytes, const QString &code, const QString &message = {})
{
    const std::unique_ptr<MCsCheckLink> link = bench.secondLink();
    if (link == nullptr)
        return;
    link->send(bytes + '\n');
    const MCsCheckLink::Frame answer = link->frameWithoutId(bench.settings().answerMs);
    const QJsonValue error = answer.value_or(QJsonObject()).value("error"_L1);
    const QString said = error["message"_L1].toString();
    const bool fits = answer && answerProblem(*answer).isEmpty() && answer->value("ok"_L1) == QJsonValue(false) &&
                      error["code"_L1].toString() == code && (message.isEmpty() ? !said.isEmpty() : said == message);
    bench.expect(fits,
                 u"a refusal without an id, with the code %1 and %2"_s.arg(
                     code, message.isEmpty() ? u"a message"_s : u"the message \"%1\""_s.arg(message)),
                 answer ? textOf(*answer) : u"nothing"_s);
}

const QString &missingKeyMessage()
{
    static const QString message = u"Request must contain 'id' and 'cmd' fields"_s;
    return message;
}

void noJson(MCsCheckBench &bench)
{
    expectError(bench, R"({"id":"a","cmd":)", u"INVALID_JSON"_s);
}

void noObject(MCsCheckBench &bench)
{
    expectError(bench, "[1,2]", u"INVALID_REQUEST"_s, u"Request must be a JSON object"_s);
}

void noId(MCsCheckBench &bench)
{
    expectError(bench, R"({"cmd":"tasktype.list","payload":{}})", u"INVALID_REQUEST"_s, missingKeyMessage());
}

void noCommand(MCsCheckBench &bench)
{
    expectError(bench, R"({"id":"a","payload":{}})", u"INVALID_REQUEST"_s, missingKeyMessage());
}

void connectionStays(MCsCheckBench &bench)
{
    const std::unique_ptr<MCsCheckLink> link = bench.secondLink();
    if (link == nullptr)
        return;
    const QString id = bench.newId();
    const QJsonObject request{{u"id"_s, id}, {u"cmd"_s, u"tasktype.list"_s}, {u"payload"_s, QJsonObject()}};
    bench.answerOn(*link, "no JSON\n[]\n{}\n" + encodeFrame(request), id);
}

void unknownCommand(MCsCheckBench &bench)
{
    bench.refused(u"protocol.check"_s, {});
}

/// A payload that is missing or no object is nothing to leave a client waiting for.
void oddPayload(MCsCheckBench &bench)
{
    const QList<QJsonValue> payloads{QJsonValue::Undefined, QJsonValue::Null, 5, u"text"_s, QJsonArray{1}};
    for (const QJsonValue &payload : payloads) {
        const QString id = bench.newId();
        bench.askRaw(encodeFrame({{u"id"_s, id}, {u"cmd"_s, u"task.get"_s}, {u"payload"_s, payload}}), id);
    }
}

} // namespace

QList<Rule> errorRules()
{
    return {
        {u"error.no-json"_s, {}, u"A frame that is no JSON is answered with `INVALID_JSON`, without an id."_s, &noJson},
        {u"error.no-object"_s,
         {},
         u"JSON that is no object is answered with `INVALID_REQUEST`, without an id."_s,
         &noObject},
        {u"error.no-id"_s, {}, u"An object without `id` is answered with `INVALID_REQUEST`, without an id."_s, &noId},
        {u"error.no-cmd"_s,
         {},
         u"An object without `cmd` is answered with `INVALID_REQUEST`, without an id."_s,
         &noCommand},
        {u"error.connection"_s,
         {},
         u"The connection stays open after frames that are no requests."_s,
         &connectionStays},
        {u"error.unknown-command"_s,
         {},
         u"A command that there is not is refused, with the request's id."_s,
         &unknownCommand},
        {u"error.payload"_s,
         {},
         u"A request whose payload is missing or no object is answered, with its id."_s,
         &oddPayload},
    };
}

} // namespace Scheduler::ProtocolCheck
