#pragma once

#include "commandfixture.h"
#include "faults.h"
#include "views.h"

#include <QPointer>

#include <optional>

namespace Scheduler {
class MCsSchedulerClient;
}

namespace TestSupport {

/// A connected window, and a daemon whose data changes and one of whose answers goes wrong. It serves one fault after
/// the other, since a window must stay usable after each of them.
class Stage : public CommandFixture {
public:
    Stage();

    /// Connects, and shows everything that the daemon has.
    [[nodiscard]] bool setUp();

    /// The daemon's data changes.
    void renew();
    /// Strikes the answer to the request of this command that comes as the given one from now on. Where no other
    /// request comes before it, its time-out can be very short.
    void arm(const Fault &fault, const QString &command, int number, bool comesFirst);
    /// The armed strike comes next.
    void hasten();
    [[nodiscard]] bool hasStruck() const;
    /// Ends the fault: what comes late comes, the daemon listens again, and the client is connected again. Checks that
    /// a lost connection was shown as such, unless it is again already. Does nothing when it was done before.
    void mend();
    /// Mends as soon as a loss is shown, where the loss comes right behind an answer: its dialog then covers whatever
    /// the answer brings up.
    void mendWhenCovered();
    /// The daemon drops the connection. Returns when the window shows that, before it has begun to look for another.
    void loseConnection();
    /// After loseConnection(): begins to look, in the next event loop.
    void seekConnection();
    /// Waits until the window is connected, without the pauses that it makes, while the daemon listens.
    void settle();

    /// Compares what the window shows with what it should.
    void expect(const Views &expected, const std::source_location &where = std::source_location::current()) const;
    [[nodiscard]] Views before() const; ///< what was shown when the daemon's data changed last
    [[nodiscard]] Views newest() const; ///< what the daemon has, as long as no group is selected
    Content content;

    /// Why a command that the armed fault struck has failed, as the client puts it.
    [[nodiscard]] QString reason() const;
    [[nodiscard]] const Fault &fault() const;
    [[nodiscard]] bool isReconnecting() const;
    Scheduler::MCsSchedulerClient *client = nullptr;

private:
    void script();
    void strike(const QJsonObject &answer);
    void awaitLoss() const;
    void expectLoss() const;
    void setPace(int pauseMs);
    void paceReconnection();

    Views m_before;
    Fault m_fault;
    QString m_command;
    int m_countdown = 0; ///< requests of the command until the strike; 0 when none is to come
    int m_timeout = 0;
    std::optional<QJsonObject> m_struck; ///< the good answer that was not given
    bool m_mended = true;
    bool m_settled = false;  ///< since the strike was armed
    bool m_wasPaced = false; ///< when the connection was lost
    int m_formerPause = 0;
    int m_pause = 0; ///< what the client's pauses are made to be while the pacer runs
    QTimer m_pacer;
    QTimer m_watch;
};

} // namespace TestSupport
