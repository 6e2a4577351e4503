#pragma once

#include <QString>

namespace Scheduler {

/// A text for QWidget::setToolTip that shows the given one as it stands. Tool tips take a text for markup when it looks
/// like some, which a text of the daemon or the host must not be.
[[nodiscard]] QString plainToolTip(const QString &text);

} // namespace Scheduler
