#pragma once

class QAbstractItemView;
class QRect;

namespace Scheduler {

// Repaint a view, or a part of its viewport, and tell programs that read the screen aloud that its items have changed.
// For changes that no signal of the model tells of: views take such a signal as a reason to measure each item.

void showChange(QAbstractItemView &view);
void showChange(QAbstractItemView &view, const QRect &part);

} // namespace Scheduler
