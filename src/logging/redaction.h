#pragma once

#include <QJsonObject>
#include <QString>

namespace Scheduler {

/// The text with the values behind words such as "password", "token" or "authorization", and bearer tokens, replaced by
/// "***REDACTED***". No word boundaries are asked for, so "monkey=1" loses its value, too: better one too many.
[[nodiscard]] QString redactText(const QString &text);

/// A copy of the object in which every value under a sensitive key is replaced, and every other string has passed
/// redactText(). Nested objects are entered at any depth, arrays are not.
[[nodiscard]] QJsonObject redactJson(const QJsonObject &object);

} // namespace Scheduler
