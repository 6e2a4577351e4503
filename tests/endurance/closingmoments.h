#pragma once

#include "commandfixture.h"
#include "fakeservicetools.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace TestSupport {

/// What a moment is brought about with.
struct ClosingScene {
    /// Connects without the pauses that a start has. A group and a task of it are selected.
    void connect();

    FakeServiceTools tools; ///< so that no real service is asked for; not running
    CommandFixture fixture;
};

/// Runs once, from the event loop, when the moment has come.
using MomentReached = std::function<void()>;

/// A moment in which the window can be closed.
struct ClosingMoment {
    const char *name;
    bool connected; ///< the window is connected, and idle, before the moment is brought about
    std::function<void(ClosingScene &scene, const MomentReached &reached)> bringAbout;
};

/// While the window connects: attempts, start of the service, registration, first reading, boxes.
[[nodiscard]] QList<ClosingMoment> momentsOfConnecting();
/// While a connected window waits for the daemon, or has lost it.
[[nodiscard]] QList<ClosingMoment> momentsOfWaiting();
/// While a box, a dialog or a menu is up.
[[nodiscard]] QList<ClosingMoment> momentsOfDialogs();

/// Calls an action once, as soon as a condition holds; looks every few milliseconds.
void when(const std::function<bool()> &condition, const std::function<void()> &action);
/// The modal window that the user sees has this title, and is up.
[[nodiscard]] bool isUp(const QString &title);

} // namespace TestSupport
