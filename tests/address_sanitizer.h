#pragma once

// For tests: what differs under AddressSanitizer and its leak detector.

#if defined(__SANITIZE_ADDRESS__)
#define QUILLON_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QUILLON_ADDRESS_SANITIZER
#endif
#endif

#if defined(QUILLON_ADDRESS_SANITIZER)
#include <sanitizer/lsan_interface.h>
#endif

namespace quillon {

/// While it lives, no leak counts. A run-time error that passes through Qt ends the program, so Qt frees nothing
/// on its way; a test goes on after it.
class LeaksDoNotCount {
 public:
  LeaksDoNotCount() {
#if defined(QUILLON_ADDRESS_SANITIZER)
    __lsan_disable();
#endif
  }
  LeaksDoNotCount(const LeaksDoNotCount&) = delete;
  LeaksDoNotCount(LeaksDoNotCount&&) = delete;
  LeaksDoNotCount& operator=(const LeaksDoNotCount&) = delete;
  LeaksDoNotCount& operator=(LeaksDoNotCount&&) = delete;
  ~LeaksDoNotCount() {
#if defined(QUILLON_ADDRESS_SANITIZER)
    __lsan_enable();
#endif
  }
};

}  // namespace quillon
