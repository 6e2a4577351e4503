#include "faults.h"

#include "scripteddaemon.h"
#include "wireprotocol.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace TestSupport {

void Strike::sendWith(const QJsonObject &members) const
{
    QJsonObject response = answer;
    for (auto member = members.begin(); member != members.end(); ++member)
        response.insert(member.key(), member.value());
    daemon.sendResponse(response);
}

void Strike::sendWithout(QLatin1StringView member) const
{
    QJsonObject response = answer;
    response.remove(member);
    daemon.sendResponse(response);
}

QByteArray Strike::frame() const
{
    return Scheduler::encodeFrame(answer);
}

QList<Fault> faultsOf(Outcome outcome)
{
    QList<Fault> all = harmlessFaults() + garbageFaults() + silentFaults() + failedFaults() + lossFaults();
    all.removeIf([outcome](const Fault &fault) { return fault.outcome != outcome; });
    return all;
}

void sendInPieces(ScriptedDaemon &daemon, const QByteArray &bytes, qsizetype size)
{
    daemon.sendRaw(bytes.first(qMin(size, bytes.size())));
    if (bytes.size() <= size)
        return;
    QTimer::singleShot(0, &daemon, [&daemon, rest = bytes.sliced(size), size] { sendInPieces(daemon, rest, size); });
}

} // namespace TestSupport
