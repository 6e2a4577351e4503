#pragma once

class QAbstractScrollArea;
class QLabel;
class QRadioButton;
class QWidget;

namespace Scheduler {

// The look of single widgets, applied at run time and on every platform. All of these take null, and repeating them is
// harmless: the first three leave a mark on each widget that they have treated, so that they can be called again after
// new widgets have come.

/// Gives every spin box below the root, date and time edits included, a Windows10LikeSpinBoxStyle of its own.
void applySpinBoxStyle(QWidget *root);

/// Gives every check box below the root a Windows10LikeCheckBoxStyle of its own.
void applyCheckBoxStyle(QWidget *root);

/// Dresses both scroll bars of the area.
void applyScrollBarStyle(QAbstractScrollArea *area);

/// Makes the radio button a card that shows whether it is chosen; the dialog's sheet does the rest.
void applyModeCardStyle(QRadioButton *radio);

/// Makes the label the heading of one of the task dialog's own cards.
void applySectionLabelStyle(QLabel *label);

} // namespace Scheduler
