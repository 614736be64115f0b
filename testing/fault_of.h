#pragma once

#include <optional>
#include <string>

#include "support/run_time_error.h"

namespace quillon {

/// The fault that `call` fails with, nothing if it does not fail.
template <typename Call>
std::optional<RunTimeFault> FaultOf(Call call) {
  try {
    static_cast<void>(call());
  } catch (const RunTimeError& error) {
    return error.Fault();
  }
  return std::nullopt;
}

/// The text of the failure of `call`, empty if it does not fail.
template <typename Call>
std::string FaultTextOf(Call call) {
  try {
    static_cast<void>(call());
  } catch (const RunTimeError& error) {
    return error.what();
  }
  return {};
}

}  // namespace quillon
