// libFuzzer's entry point.

#include "fuzz/fuzz_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillon::CheckInput({data, size});
  return 0;
}
