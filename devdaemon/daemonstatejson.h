#pragma once

#include "daemonrecords.h"

#include <optional>

namespace Scheduler::DevDaemon {

/// The state as it is stored.
[[nodiscard]] QJsonObject stateToJson(const State &state);

/// Reads what stateToJson wrote. Nothing, with an explanation in error, when the object is not a state: the caller
/// must then leave the file alone, since writing a state without the unreadable parts would lose them.
[[nodiscard]] std::optional<State> stateFromJson(const QJsonObject &object, QString *error);

} // namespace Scheduler::DevDaemon
