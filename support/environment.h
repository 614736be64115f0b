#pragma once

// The environment that the program was started in.

#include <cstdlib>
#include <functional>
#include <string>

namespace quillon {

/// The value of an environment variable, the empty text where it is not set.
using EnvironmentVariable = std::function<std::string(const char* name)>;

/// The same, of the process itself. For its outermost frame; what else asks is given an EnvironmentVariable, so that a
/// test can say what there is.
[[nodiscard]] inline std::string ProcessVariable(const char* name) {
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets a variable later
  return value == nullptr ? "" : value;
}

}  // namespace quillon
