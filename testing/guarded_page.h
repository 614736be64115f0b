#pragma once

#include <cstddef>
#include <string_view>

namespace quillon {

/// A block of x's between two unreadable pages.
class GuardedPage {
 public:
  GuardedPage();
  GuardedPage(const GuardedPage&) = delete;
  GuardedPage(GuardedPage&&) = delete;
  GuardedPage& operator=(const GuardedPage&) = delete;
  GuardedPage& operator=(GuardedPage&&) = delete;
  ~GuardedPage();

  [[nodiscard]] std::string_view FirstBytes(std::size_t count) const { return {start_, count}; }
  [[nodiscard]] std::string_view LastBytes(std::size_t count) const { return {start_ + size_ - count, count}; }

 private:
  std::size_t size_;
  char* start_;
};

}  // namespace quillon
