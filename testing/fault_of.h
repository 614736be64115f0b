#pragma once

#include <optional>
#include <string>

#include "support/run_time_error.h"

namespace quillon {

/// The exception of `call`; nothing if it does not fail.
template <typename Call>
std::optional<RunTimeError> FailureOf(Call call) {
  try {
    static_cast<void>(call());
  } catch (const RunTimeError& error) {
    return error;
  }
  return std::nullopt;
}

/// The fault of that exception.
template <typename Call>
std::optional<RunTimeFault> FaultOf(Call call) {
  const auto failure = FailureOf(call);
  return failure ? std::optional(failure->Fault()) : std::nullopt;
}

/// Its text; empty if there is none.
template <typename Call>
std::string FaultTextOf(Call call) {
  const auto failure = FailureOf(call);
  return failure ? failure->what() : "";
}

}  // namespace quillon
