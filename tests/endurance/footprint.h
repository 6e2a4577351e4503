#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QtGlobal>

namespace TestSupport {

/// What a program holds at one moment. A count is -1 where the system does not tell it.
struct Footprint {
    qint64 heapBytes = -1; ///< in use; what the allocator keeps for later does not count
    int descriptors = -1;
    int threads = -1;
    int widgets = -1; ///< of the whole program
    int objects = -1; ///< below and including the objects asked about
    int timers = -1;  ///< the timers among them
    int running = -1; ///< the running ones among those
};

/// Carries out the deletions that are due, and empties Qt's cache of pictures, before it looks.
[[nodiscard]] Footprint footprint(const QList<const QObject *> &roots);

/// Whether heapBytes is known.
[[nodiscard]] bool tellsHeap();

/// "1234 KiB, 7 descriptors, ..."
[[nodiscard]] QString describe(const Footprint &footprint);

} // namespace TestSupport
