#pragma once

#include <QJsonValue>
#include <QString>

namespace Scheduler::ProtocolCheck {

/// The text in one line, and cut where it would be too long for a report.
[[nodiscard]] QString shortened(const QString &text);

/// The value as compact JSON, shortened; "nothing" for what is not there.
[[nodiscard]] QString textOf(const QJsonValue &value);

} // namespace Scheduler::ProtocolCheck
