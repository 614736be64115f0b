#include "ranges/range_lookup.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

TEST(IsReadable, IsWhatHoldsARange) {
  struct Case {
    const char* rule;
    std::string text;
    bool readable;
  };
  const TemporaryProgram program;
  for (const Case& c : std::vector<Case>{
           {"a range", RangeWith({{"AA", 1}}), true},
           {"one class alone", "72o (1), ", true},
           {"a letter", "Dear friend (of cards), ", false},
           {"an entry without its end", "22 (1", false},
           {"nothing", "", false},
       }) {
    program.Write("x.txt", c.text);
    EXPECT_EQ(IsReadable("x", program.Folder()), c.readable) << c.rule;
    EXPECT_EQ(WhyUnreadable("x", program.Folder()).has_value(), !c.readable) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
