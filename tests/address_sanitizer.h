#pragma once

// Differences under AddressSanitizer and its leak detector.

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

/// Ignores leaks during its lifetime. A run-time error that passes through Qt would end the program, so Qt frees
/// nothing on the way; a test continues.
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
