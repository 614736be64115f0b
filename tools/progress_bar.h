#pragma once

// The progress of a run, drawn over and over on one line of standard error. Most runs are over before anyone could read
// it, and show none.

#include <chrono>
#include <cstddef>

#include "tools/companion.h"

namespace quillon {

class ProgressBar {
 public:
  /// A bar of what starts now. `surroundings` must outlive it.
  explicit ProgressBar(const Surroundings& surroundings) : surroundings_(surroundings), start_(surroundings.Now()) {}
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar(ProgressBar&&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ProgressBar& operator=(ProgressBar&&) = delete;
  /// Clears the line. A run that fails half-way leaves its bar, and the failure's text must not follow it there.
  ~ProgressBar();

  /// Shows that `done` of `all` is done; nothing within the first half second, and nothing where the terminal does not
  /// take it.
  void Show(std::size_t done, std::size_t all);

 private:
  const Surroundings& surroundings_;
  std::chrono::steady_clock::time_point start_;
  bool shows_ = false;
};

}  // namespace quillon
