#include "heapinuse.h"

#include <malloc.h>

qint64 TestSupport::heapInUse()
{
    const auto info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}
