#pragma once

#include <QJsonArray>
#include <QString>

namespace Scheduler::DevDaemon {

// Keys and values of the test type's fields that steer the simulation of its runs.
inline constexpr QLatin1StringView simulatedOutcomeKey{"simulatedOutcome"};
inline constexpr QLatin1StringView simulatedSecondsKey{"simulatedSeconds"};
inline constexpr QLatin1StringView outcomeSuccess{"Success"};
inline constexpr QLatin1StringView outcomeFailure{"Failure"};
inline constexpr QLatin1StringView outcomeTimeout{"Timeout"};

/// The task types with their parameter fields, as "tasktype.list" sends them.
[[nodiscard]] const QJsonArray &taskTypes();

/// True for the id of one of taskTypes(); false for "task_type.all", which is no type of its own.
[[nodiscard]] bool isTaskType(const QString &id);

} // namespace Scheduler::DevDaemon
