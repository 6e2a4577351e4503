#pragma once

#include <QString>

namespace Scheduler {

// The style sheets of the task dialog and of what stands in it.

/// Sheet of the task dialog itself.
[[nodiscard]] QString taskDialogStyleSheet();

/// Sheet of each radio button that is a card, see applyModeCardStyle.
[[nodiscard]] QString modeRadioStyleSheet();

/// Sheet of the headings of the dialog's own cards, see applySectionLabelStyle.
[[nodiscard]] QString sectionLabelStyleSheet();

/// Sheet of the heading of the generated form's card. It differs from the other headings on purpose.
[[nodiscard]] QString formHeadingStyleSheet();

/// Sheet of the generated form's card.
[[nodiscard]] QString formCardStyleSheet();

/// Sheet that makes a check box a switch. Its images are the application's, under :/images/.
[[nodiscard]] QString switchStyleSheet();

/// Sheet of a scroll bar of either orientation, see applyScrollBarStyle.
[[nodiscard]] QString scrollBarStyleSheet();

} // namespace Scheduler
