#include "jsontext.h"
#include "mcscheckbench.h"
#include "wireprotocol.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

QByteArray typesRequest(const QString &id, const QJsonObject &payload = {})
{
    return encodeFrame({{u"id"_s, id}, {u"cmd"_s, u"tasktype.list"_s}, {u"payload"_s, payload}});
}

void inPieces(MCsCheckBench &bench)
{
    const QString id = bench.newId();
    const QByteArray request = typesRequest(id);
    for (const char byte : request.chopped(1))
        bench.link().send(QByteArray(1, byte));
    bench.askRaw(request.last(1), id);
}

void together(MCsCheckBench &bench)
{
    const QString first = bench.newId();
    const QString second = bench.newId();
    bench.askRaw(typesRequest(first) + typesRequest(second), second);
    // Taken whatever came of the second one, since it was asked for.
    const MCsCheckLink::Frame answer = bench.link().answerTo(first, bench.settings().answerMs);
    bench.expect(answer.has_value(), u"an answer to the first request, too"_s, u"nothing"_s);
}

void emptyFrames(MCsCheckBench &bench)
{
    const QString id = bench.newId();
    bench.askRaw("\n\n" + typesRequest(id), id);
    // Frames are answered one after the other, so whatever the empty ones caused is here by now.
    const MCsCheckLink::Frame caused = bench.link().frameWithoutId(0);
    bench.expect(!caused, u"no answer to an empty frame"_s, textOf(caused.value_or(QJsonObject())));
}

void carriageReturn(MCsCheckBench &bench)
{
    const QString id = bench.newId();
    bench.askRaw(typesRequest(id).chopped(1) + "\r\n", id);
}

void largeFrame(MCsCheckBench &bench)
{
    constexpr qsizetype size = 1024 * 1024;
    const QString id = bench.newId();
    bench.askRaw(typesRequest(id, {{u"filler"_s, QString(size, u'x')}}), id);
}

void keyOrder(MCsCheckBench &bench)
{
    const QString id = bench.newId();
    const QByteArray request = R"({"payload":{},"id":")" + id.toUtf8() + R"(","cmd":"tasktype.list"})";
    const QJsonObject answer = bench.askRaw(request + '\n', id);
    bench.expect(answer.value("ok"_L1) == QJsonValue(true), u"tasktype.list to succeed"_s, answer);
}

void idUnchanged(MCsCheckBench &bench)
{
    const QString id = bench.newId() + u" \"\\/\n\u00e9\u65e5"_s;
    bench.askRaw(typesRequest(id), id);
}

} // namespace

QList<Rule> frameRules()
{
    return {
        {u"frame.pieces"_s, {}, u"A request that comes byte by byte is answered."_s, &inPieces},
        {u"frame.together"_s, {}, u"Two requests that come in one piece are both answered."_s, &together},
        {u"frame.empty"_s, {}, u"An empty frame is skipped without an answer."_s, &emptyFrames},
        {u"frame.carriage-return"_s, {}, u"A 0x0D in front of the 0x0A is white space."_s, &carriageReturn},
        {u"frame.large"_s, {}, u"A request of 1 MiB is answered."_s, &largeFrame},
        {u"frame.keys"_s, {}, u"The order of the keys means nothing."_s, &keyOrder},
        {u"frame.id"_s,
         {},
         u"The answer bears the request's id unchanged, whatever characters it has."_s,
         &idUnchanged},
    };
}

} // namespace Scheduler::ProtocolCheck
