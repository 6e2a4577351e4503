#pragma once

#include <QtGlobal>

namespace TestSupport {

/// The bytes of the heap that are in use, without what the allocator keeps for later; -1 where the allocator does not
/// tell.
[[nodiscard]] qint64 heapInUse();

} // namespace TestSupport
