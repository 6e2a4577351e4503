#pragma once

namespace Bench {

/// Plays one of the processes that are measured as a whole, and ends it at the moment that counts; the result is the
/// exit status. Arguments: "--child" and what it plays.
[[nodiscard]] int runChild(int argc, char **argv);

} // namespace Bench
