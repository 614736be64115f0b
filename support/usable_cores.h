#pragma once

// How many threads are worth having.

namespace quillon {

/// The cores that the calling thread may use, which a queueing system may have made fewer than the machine has: at
/// least 1.
[[nodiscard]] unsigned UsableCores();

}  // namespace quillon
