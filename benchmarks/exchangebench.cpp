#include "benchtable.h"
#include "canneddaemon.h"
#include "handexchange.h"
#include "mcsipcconnection.h"
#include "wireprotocol.h"

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

Measured oneCommand()
{
    const DaemonProcess daemon({});
    HandExchange hand;
    Scheduler::MCsIPCConnection connection(Scheduler::defaultPipeName());
    connection.connectToServer(1, 0);
    const QJsonObject payload{{u"groupId"_s, u"group-1"_s}, {u"taskType"_s, benchTaskType}};
    return timePair([&] { (void)hand.ask(u"task.countByGroupAndType"_s, payload); },
                    [&] { (void)connection.sendRequest(u"task.countByGroupAndType"_s, payload, 2000); });
}

} // namespace

QList<Row> exchangeRows()
{
    return {{u"One command, small payload"_s,
             u"the same exchange by hand: QLocalSocket, compact JSON both ways, one nested event loop with a timer"_s,
             1.15, oneCommand}};
}

} // namespace Bench
