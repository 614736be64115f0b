#include "support/usable_cores.h"

#include <algorithm>
#include <sched.h>
#include <thread>

namespace quillon {

unsigned UsableCores() {
  cpu_set_t cores{};
  // Fails on a machine with more cores than such a set holds.
  if (sched_getaffinity(0, sizeof cores, &cores) != 0) return std::max(1U, std::thread::hardware_concurrency());
  return std::max(1U, static_cast<unsigned>(CPU_COUNT(&cores)));
}

}  // namespace quillon
