#include "faults.h"

#include "mcsmainwindow.h"
#include "scripteddaemon.h"

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

struct Bytes {
    QByteArray name;
    QByteArray bytes;
};

/// Lines that are no response.
QList<Bytes> garbageLines()
{
    return {{"{]", "{]\n"},
            {"a zero byte", QByteArray("\0\n", 2)},
            {"0xFF", "\xFF\n"},
            {"half a character", "{\"id\":\"\xC3\"}\n"},
            {"a byte order mark", "\xEF\xBB\xBF\n"},
            {"blank lines", "\n\n\n"},
            {"a carriage return", "\r\n"},
            {"an array", "[{\"id\":\"x\"}]\n"},
            {"a bare null", "null\n"}};
}

QByteArray strangersFrame()
{
    return "{\"data\":{},\"id\":\"req_0_0\",\"ok\":false}\n";
}

/// Lets the window send another request while the struck one waits, and gives both answers at once.
void answerAround(const Strike &strike, bool newestFirst)
{
    ScriptedDaemon *daemon = &strike.daemon;
    const QString inner = u"audit.list"_s;
    daemon->deliverWith(inner, [daemon, inner, newestFirst, outer = strike.answer](const QJsonObject &response) {
        daemon->deliverWith(inner, {});
        daemon->sendResponse(newestFirst ? response : outer);
        daemon->sendResponse(newestFirst ? outer : response);
    });
    QMetaObject::invokeMethod(&strike.window, &Scheduler::MCsMainWindow::onRefreshAuditLog, Qt::QueuedConnection);
}

Fault harmless(const QByteArray &name, const std::function<void(const Strike &)> &strike)
{
    return {name, Outcome::Answered, strike, {}, {}};
}

/// Two answers in one go.
Fault overlapping(const QByteArray &name, bool newestFirst)
{
    Fault fault = harmless(name, [newestFirst](const Strike &strike) { answerAround(strike, newestFirst); });
    fault.readsLog = true;
    return fault;
}

Fault harmlessBytes(const QByteArray &name, const std::function<QByteArray(const QByteArray &frame)> &bytes)
{
    return harmless(name, [bytes](const Strike &strike) { strike.daemon.sendRaw(bytes(strike.frame())); });
}

QList<Fault> splitFaults()
{
    QList<Fault> faults;
    for (const int size : {1, 2, 3, 137}) {
        faults.append(harmless("in pieces of " + QByteArray::number(size),
                               [size](const Strike &strike) { sendInPieces(strike.daemon, strike.frame(), size); }));
    }
    return faults;
}

} // namespace

QList<Fault> garbageFaults()
{
    QList<Fault> faults;
    for (const Bytes &garbage : garbageLines()) {
        const QByteArray line = garbage.bytes;
        faults.append(
            harmlessBytes(garbage.name + " before", [line](const QByteArray &frame) { return line + frame; }));
        faults.append(harmlessBytes(garbage.name + " after", [line](const QByteArray &frame) { return frame + line; }));
        faults.append(harmlessBytes(garbage.name + " between", [line](const QByteArray &frame) {
            return strangersFrame() + line + frame + line + strangersFrame();
        }));
    }
    return faults;
}

QList<Fault> harmlessFaults()
{
    const auto carriageReturn = [](const QByteArray &frame) { return frame.chopped(1) + "\r\n"; };
    const auto glued = [](const QByteArray &frame) {
        return strangersFrame().repeated(50) + frame + strangersFrame().repeated(49);
    };
    return QList<Fault>{harmless("nothing wrong", [](const Strike &strike) { strike.sendWith({}); }),
                        overlapping("in reverse order", true),
                        overlapping("with a later one's", false),
                        harmlessBytes("twice", [](const QByteArray &frame) { return frame + frame; }),
                        harmlessBytes("CR before the line end", carriageReturn),
                        harmlessBytes("byte order mark in front",
                                      [](const QByteArray &frame) { return "\xEF\xBB\xBF" + frame; }),
                        harmlessBytes("a hundred frames at once", glued),
                        harmless("unknown members",
                                 [](const Strike &strike) {
                                     strike.sendWith({{u"extra"_s, 1}});
                                 })} +
           splitFaults();
}

} // namespace TestSupport
