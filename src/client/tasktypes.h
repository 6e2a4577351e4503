#pragma once

#include <QString>
#include <QStringList>

namespace Scheduler {

/// The id under which a manager serves every task type. It is no real type.
inline constexpr QStringView allTaskTypesId = u"task_type.all";

/// "All Types", fixed while the program loads. No translator can be installed at that moment, so it stays English in
/// every language, and code may compare a filter's text with it.
extern const QString allTypesText;

/// The ids that a host may ask for on the command line.
[[nodiscard]] QStringList allowedTaskTypes();

/// The translated name of a task type; "Custom" for every id without a name of its own.
[[nodiscard]] QString taskTypeDisplayName(const QString &id);

} // namespace Scheduler
