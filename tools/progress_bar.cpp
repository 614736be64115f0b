#include "tools/progress_bar.h"

#include <ostream>
#include <string>

#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {

ProgressBar::~ProgressBar() {
  if (shows_) surroundings_.Errors << "\r\x1b[K" << std::flush;
}

void ProgressBar::Show(std::size_t done, std::size_t all) {
  constexpr std::chrono::milliseconds kPatience(500);
  if (!surroundings_.Terminal.ShowProgress || surroundings_.Now() - start_ <= kPatience) return;
  constexpr std::size_t kCharacters = 40;
  const std::size_t filled = kCharacters * done / all;
  const std::string bar = std::string(filled, '#') + std::string(kCharacters - filled, ' ');
  const double percent = PercentOf(static_cast<double>(done), static_cast<double>(all), 0);
  surroundings_.Errors << "\r[" << bar << "] " << NumberText(percent) << '%' << std::flush;
  shows_ = true;
}

}  // namespace quillon
