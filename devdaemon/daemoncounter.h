#pragma once

#include <limits>

namespace Scheduler::DevDaemon {

/// A counter's next value. One that a state file has brought to its end stays there.
template <typename Number> [[nodiscard]] constexpr Number counted(Number count)
{
    return count < std::numeric_limits<Number>::max() ? count + 1 : count;
}

} // namespace Scheduler::DevDaemon
