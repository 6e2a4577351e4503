#pragma once

#include "records.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace Scheduler {

/// What a field of the parameter form starts from: its default as text, and the options of a select field.
struct FieldDefaults {
    QString defaultValue;
    QStringList options;
};

/// The host's parameter file, keyed by field key. Text that is empty, malformed or no JSON object gives an empty
/// object.
[[nodiscard]] QJsonObject parseProgramParameters(const QString &json);

/// The defaults and options of the definition's field, with what the parameter file has for its key in their place.
[[nodiscard]] FieldDefaults effectiveDefaults(const TaskFieldInfo &field, const QJsonObject &parameters);

} // namespace Scheduler
