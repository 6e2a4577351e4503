#include "faults.h"

#include "scripteddaemon.h"

namespace TestSupport {

namespace {

QByteArray half(const Strike &strike)
{
    return strike.frame().first(strike.frame().size() / 2);
}

Fault loss(const QByteArray &name, Outcome outcome, const std::function<void(const Strike &)> &strike)
{
    return {name, outcome, strike, {}, {}};
}

} // namespace

QList<Fault> lossFaults()
{
    return {loss("ends before the answer", Outcome::Lost, [](const Strike &strike) { strike.daemon.stop(); }),
            loss("ends in the middle of the answer", Outcome::Lost,
                 [](const Strike &strike) {
                     strike.daemon.sendRaw(half(strike));
                     strike.daemon.stop();
                 }),
            loss("ends in the middle of garbage", Outcome::Lost,
                 [](const Strike &strike) {
                     strike.daemon.sendRaw("{]\n{]");
                     strike.daemon.stop();
                 }),
            loss("closes before the answer", Outcome::LostAndBack,
                 [](const Strike &strike) { strike.daemon.dropConnections(); }),
            loss("closes in the middle of the answer", Outcome::LostAndBack,
                 [](const Strike &strike) {
                     strike.daemon.sendRaw(half(strike));
                     strike.daemon.dropConnections();
                 }),
            loss("ends right after the answer", Outcome::AnsweredThenLost, [](const Strike &strike) {
                strike.daemon.sendRaw(strike.frame());
                strike.daemon.stop();
            })};
}

} // namespace TestSupport
