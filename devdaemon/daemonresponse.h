#pragma once

#include "daemonrecords.h"

#include <QTimeZone>

namespace Scheduler::DevDaemon {

// Records in the form in which responses carry them, and the responses themselves (without the request's id).

[[nodiscard]] QJsonObject success(const QJsonObject &data = {});
[[nodiscard]] QJsonObject invalidPayload(const QString &message);
[[nodiscard]] QJsonObject taskNotFound(const QString &taskId);
[[nodiscard]] QJsonObject groupNotFound(const QString &groupId);

[[nodiscard]] QJsonObject taskToWire(const Task &task);
[[nodiscard]] QJsonObject groupToWire(const Group &group, int taskCount, int enabledTaskCount);

/// The time of an entry goes out as wall time of the zone, since managers show it unconverted.
[[nodiscard]] QJsonObject auditEntryToWire(const AuditEntry &entry, const QTimeZone &zone);

} // namespace Scheduler::DevDaemon
