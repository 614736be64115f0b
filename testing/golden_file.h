#pragma once

// The files in tests/golden are what the program must write, to the last character. After a change that should change
// them, write them anew, and look at the difference before it is committed:
//
//     QUILLON_WRITE_GOLDEN=1 build/dev/bin/study_test --gtest_filter='*Golden*'

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string_view>

#include "testing/file_bytes.h"

namespace quillon {

/// Fails the test where the text differs from that file, or writes it.
inline void ExpectGolden(std::string_view text, const std::filesystem::path& path) {
  if (std::getenv("QUILLON_WRITE_GOLDEN") != nullptr) {  // NOLINT(concurrency-mt-unsafe): there is one thread
    Put(path, text);
    return;
  }
  EXPECT_EQ(text, BytesOf(path)) << path;
}

}  // namespace quillon
