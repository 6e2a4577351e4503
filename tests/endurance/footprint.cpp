#include "footprint.h"
#include "heapinuse.h"
#include "platform.h"

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QTimer>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

/// How many of them the kernel lists of this process, or -1.
int entriesOf(const QString &directory)
{
    const QDir dir(directory);
    if (!hasKernelFiles || !dir.exists())
        return -1;
    return static_cast<int>(dir.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

/// Qt's cache of pictures has a limit of its own, and some versions fill it with the icons of message boxes.
void emptyCaches()
{
    QPixmapCache::clear();
}

void carryOutDeletions()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace

Footprint footprint(const QList<const QObject *> &roots)
{
    carryOutDeletions();
    emptyCaches();
    Footprint result;
    result.heapBytes = heapInUse();
    result.descriptors = entriesOf(u"/proc/self/fd"_s);
    result.threads = entriesOf(u"/proc/self/task"_s);
    result.widgets = static_cast<int>(QApplication::allWidgets().size());
    result.objects = result.timers = result.running = 0;
    for (const QObject *root : roots) {
        result.objects += 1 + static_cast<int>(root->findChildren<QObject *>().size());
        const QList<QTimer *> timers = root->findChildren<QTimer *>();
        result.timers += static_cast<int>(timers.size());
        result.running += static_cast<int>(std::ranges::count_if(timers, &QTimer::isActive));
    }
    return result;
}

bool tellsHeap()
{
    return heapInUse() >= 0;
}

QString describe(const Footprint &footprint)
{
    constexpr qint64 kibibyte = 1024;
    const QString heap = footprint.heapBytes < 0 ? u"heap unknown"_s : u"%1 KiB"_s.arg(footprint.heapBytes / kibibyte);
    return u"%1, %2 descriptors, %3 threads, %4 widgets, %5 objects, %6 timers (%7 running)"_s.arg(heap)
        .arg(footprint.descriptors)
        .arg(footprint.threads)
        .arg(footprint.widgets)
        .arg(footprint.objects)
        .arg(footprint.timers)
        .arg(footprint.running);
}

} // namespace TestSupport
