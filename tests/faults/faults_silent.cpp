#include "faults.h"

#include "scripteddaemon.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

Fault silent(const QByteArray &name, const std::function<void(const Strike &)> &strike,
             const std::function<void(const Strike &)> &afterwards = {})
{
    return {name, Outcome::Silent, strike, afterwards, {}};
}

Fault answeredTo(const QByteArray &name, const QJsonValue &id)
{
    return silent("answers to " + name, [id](const Strike &strike) { strike.sendWith({{u"id"_s, id}}); });
}

Fault silentBytes(const QByteArray &name, const std::function<QByteArray(const QByteArray &frame)> &bytes)
{
    return silent(name, [bytes](const Strike &strike) { strike.daemon.sendRaw(bytes(strike.frame())); });
}

/// The answer with so many brackets in it, one within the other.
Fault nested(int depth)
{
    return silentBytes("nested " + QByteArray::number(depth) + " deep", [depth](const QByteArray &frame) {
        return "{\"deep\":" + QByteArray(depth, '[') + QByteArray(depth, ']') + ',' + frame.sliced(1);
    });
}

void sendFrame(const Strike &strike)
{
    strike.daemon.sendRaw(strike.frame());
}

void removeId(const Strike &strike)
{
    strike.sendWithout("id"_L1);
}

} // namespace

QList<Fault> silentFaults()
{
    const auto nothing = [](const Strike &) {};
    const auto unterminated = [](const Strike &strike) { strike.daemon.sendRaw(strike.frame().chopped(1)); };
    const auto lineEnd = [](const Strike &strike) { strike.daemon.sendRaw("\n"); };
    Fault deaf = silent("stops reading", sendFrame);
    deaf.stopsReading = deaf.lasts = true;
    Fault open = silent("ends the line after the time-out", unterminated, lineEnd);
    open.lasts = true;
    return {silent("never answers", nothing),
            silent("answers after the time-out", nothing, sendFrame),
            open,
            answeredTo("an unknown id", u"req_1_999"_s),
            answeredTo("a numeric id", 1),
            answeredTo("a null id", QJsonValue::Null),
            answeredTo("an object as id", QJsonObject()),
            silent("answers to no id", removeId),
            silentBytes("garbage in its place", [](const QByteArray &) { return "{]\n"; }),
            silentBytes("garbage in its line", [](const QByteArray &frame) { return "{]" + frame; }),
            silentBytes("zero byte in its line", [](const QByteArray &frame) { return QByteArray(1, '\0') + frame; }),
            silentBytes("zero byte behind it",
                        [](const QByteArray &frame) { return frame.chopped(1) + QByteArray("\0\n", 2); }),
            silentBytes("0xFF in its line", [](const QByteArray &frame) { return "\xFF" + frame; }),
            silentBytes("half a character in it",
                        [](const QByteArray &frame) { return "{\"x\":\"\xC3\"," + frame.sliced(1); }),
            silentBytes("an array around it", [](const QByteArray &frame) { return '[' + frame.chopped(1) + "]\n"; }),
            silentBytes("cut in two lines",
                        [](const QByteArray &frame) {
                            return frame.first(frame.size() / 2) + '\n' + frame.sliced(frame.size() / 2);
                        }),
            nested(1025),
            nested(100'000),
            deaf};
}

} // namespace TestSupport
