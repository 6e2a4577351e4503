#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <functional>

namespace Scheduler {
class MCsMainWindow;
}

namespace TestSupport {

class ScriptedDaemon;

/// What a fault makes of the command whose answer it strikes. Everything that is to be seen follows from this and from
/// the moment, so that faults of one outcome cannot be told apart by the user.
enum class Outcome {
    Answered,        ///< as if nothing had happened
    Silent,          ///< the command ends in its time-out; the connection stands
    Refused,         ///< the command fails at once
    Hollow,          ///< the command succeeds, and its data reads as nothing
    OddElements,     ///< each element of the listing reads as a blank record
    Lost,            ///< the daemon is gone; the command ends in its time-out
    LostAndBack,     ///< the same, but the next connection stands before the wait has ended
    AnsweredThenLost ///< the command succeeds, and the daemon is gone
};

/// What a fault has to work with when its request arrives.
struct Strike {
    ScriptedDaemon &daemon;
    Scheduler::MCsMainWindow &window;
    QJsonObject answer; ///< the good one, its id included

    /// Sends the answer with other members.
    void sendWith(const QJsonObject &members) const;
    /// Sends the answer without one of its members.
    void sendWithout(QLatin1StringView member) const;
    /// The good answer as it goes over the wire, its line end included.
    [[nodiscard]] QByteArray frame() const;
};

struct Fault {
    QByteArray name;
    Outcome outcome = Outcome::Answered;
    /// Takes the place of the answer.
    std::function<void(const Strike &)> strike;
    /// What comes once the command has ended and what follows from that has been seen.
    std::function<void(const Strike &)> afterwards = {};
    QString reason;            ///< of a refusal, as the client puts it
    bool stopsReading = false; ///< the request does not even arrive before the command has ended
    bool readsLog = false;     ///< the activity log is read anew meanwhile
    bool lasts = false;        ///< whatever is asked next suffers, too
};

/// Elements in the listing that a fault of the outcome OddElements sends.
inline constexpr qsizetype oddElementCount = 6;

[[nodiscard]] QList<Fault> faultsOf(Outcome outcome);

// Parts of faultsOf().
[[nodiscard]] QList<Fault> harmlessFaults();
[[nodiscard]] QList<Fault> garbageFaults();
[[nodiscard]] QList<Fault> silentFaults();
[[nodiscard]] QList<Fault> failedFaults();
[[nodiscard]] QList<Fault> lossFaults();

/// Sends the bytes in pieces of this size, each from a turn of the event loop of its own.
void sendInPieces(ScriptedDaemon &daemon, const QByteArray &bytes, qsizetype size);

} // namespace TestSupport
