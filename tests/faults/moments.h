#pragma once

#include "stage.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

namespace TestSupport {

/// Something that the window asks of the daemon, and what is to be seen when the answer goes wrong.
struct Moment {
    QByteArray name;
    QString command; ///< whose answer goes wrong
    int number = 1;  ///< the request of that command whose answer it is, counted from the first that the moment makes
    bool comesFirst = true; ///< the moment asks nothing else before it
    bool lists = false;     ///< the answer is a list
    bool pauses = false;    ///< a success is followed by a pause of the window's own
    bool asksMore = false;  ///< whatever comes of it, the moment goes on asking
    bool warns = false;     ///< of what it has asked in vain
    bool connects = false;  ///< the connection does not stand yet
    std::function<void(Stage &)> prepare = {};
    /// Does what a user does, and looks at what comes of it.
    std::function<void(Stage &)> meet = {};
};

[[nodiscard]] QList<Moment> allMoments();
/// All but those of the two dialogs.
[[nodiscard]] QList<Moment> windowMoments();
[[nodiscard]] QList<Moment> dialogMoments();

// Parts of allMoments().
[[nodiscard]] QList<Moment> viewMoments();
[[nodiscard]] QList<Moment> commandMoments();
[[nodiscard]] QList<Moment> taskDialogMoments();
[[nodiscard]] QList<Moment> groupDialogMoments();
[[nodiscard]] QList<Moment> connectionMoments();
[[nodiscard]] QList<Moment> occupiedMoments();

/// A command that fails although the daemon is there, or is there again.
[[nodiscard]] bool isFailure(Outcome outcome);
/// The connection has gone before the command has ended, and does not stand when it has.
[[nodiscard]] bool isGone(Outcome outcome);

} // namespace TestSupport
