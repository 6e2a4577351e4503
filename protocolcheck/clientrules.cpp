#include "jsontext.h"
#include "mcscheckbench.h"
#include "wireprotocol.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

void registers(MCsCheckBench &bench)
{
    const QJsonObject answer = bench.registration().value_or(QJsonObject());
    bench.expect(answer.value("ok"_L1) == QJsonValue(true), u"client.register to succeed"_s,
                 bench.registration() ? textOf(answer) : u"nothing"_s);
}

void typeIsFreeAgain(MCsCheckBench &bench)
{
    if (bench.comeBack(bench.settings().typeFreeMs))
        return;
    const QJsonObject answer = bench.registration().value_or(QJsonObject());
    bench.expect(false,
                 u"client.register to succeed within %1 ms of the end of the former connection"_s.arg(
                     bench.settings().typeFreeMs),
                 bench.registration() ? textOf(answer) : u"nothing"_s);
    // The other rules need a connection, be it late.
    bench.comeBack(bench.settings().patienceMs);
}

/// Tries to register a second client, and returns the answer.
QJsonObject secondRegistration(MCsCheckBench &bench)
{
    const std::unique_ptr<MCsCheckLink> second = bench.secondLink();
    if (second == nullptr)
        return {};
    const QString id = bench.newId();
    const QJsonObject request{{u"id"_s, id},
                              {u"cmd"_s, u"client.register"_s},
                              {u"payload"_s, QJsonObject{{u"clientType"_s, bench.settings().taskType}}}};
    return bench.answerOn(*second, encodeFrame(request), id);
}

void secondOfATypeIsRefused(MCsCheckBench &bench)
{
    const QJsonObject answer = secondRegistration(bench);
    bench.expect(answer.value("ok"_L1) == QJsonValue(false) &&
                     answer["error"_L1]["code"_L1].toString() == "CLIENT_TYPE_ALREADY_CONNECTED"_L1,
                 u"a refusal with the code CLIENT_TYPE_ALREADY_CONNECTED"_s, answer);
}

void firstOfATypeGoesOn(MCsCheckBench &bench)
{
    secondRegistration(bench);
    bench.succeed(u"tasktype.list"_s);
}

} // namespace

QList<Rule> clientRules()
{
    const QString command = u"client.register"_s;
    return {
        {u"client.register"_s, command, u"The first client of a type can register."_s, &registers},
        {u"client.register.again"_s, command,
         u"A type is free again, at the latest after 500 ms, when the connection of its client has ended."_s,
         &typeIsFreeAgain},
        {u"client.register.second"_s, command,
         u"A second client of a type is refused with the code `CLIENT_TYPE_ALREADY_CONNECTED`."_s,
         &secondOfATypeIsRefused},
        {u"client.register.first"_s, command, u"The first client of a type goes on when a second one is refused."_s,
         &firstOfATypeGoesOn},
    };
}

} // namespace Scheduler::ProtocolCheck
