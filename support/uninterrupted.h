#pragma once

// Retries system calls that a signal interrupts before they have done anything.

#include <cerrno>

namespace quillon {

/// The result of `call`, or its negated error number; repeats it while it is interrupted.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result == -EINTR)
    result = call();
  return result;
}

}  // namespace quillon
