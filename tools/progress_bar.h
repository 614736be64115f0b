#pragma once

// A progress bar, redrawn on one line of standard error. Most runs are too short to show it.

#include <chrono>
#include <cstddef>

#include "tools/companion.h"

namespace quillon {

class ProgressBar {
 public:
  /// A bar that starts now. `surroundings` must outlive it.
  explicit ProgressBar(const Surroundings& surroundings) : surroundings_(surroundings), start_(surroundings.Now()) {}
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  /// Clears the line, so that the text of a failure does not follow the bar.
  ~ProgressBar();

  /// Shows that `done` of `all` is done; nothing within the first half second, or if the terminal does not support it.
  void Show(std::size_t done, std::size_t all);

 private:
  const Surroundings& surroundings_;
  std::chrono::steady_clock::time_point start_;
  bool shows_ = false;
};

}  // namespace quillon
