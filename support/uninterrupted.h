#pragma once

// System calls that a signal may interrupt before they have done anything. That is not a failure; they are repeated.

#include <cerrno>

namespace quillon {

/// What `call` gives, a result or a negated error number, once that is not "interrupted".
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result == -EINTR)
    result = call();
  return result;
}

}  // namespace quillon
