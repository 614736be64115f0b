#include "support/markup_text.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {
namespace {

TEST(MarkupText, ShowsATextAsItIs) {
  using std::string_view_literals::operator""sv;
  constexpr std::string_view kMark = "\xEF\xBF\xBD";
  struct Case {
    const char* rule;
    std::string_view text;
    std::string markup;
  };
  for (const Case& c : std::vector<Case>{
           {"plain", "88+,A2s+ Überfall €", "88+,A2s+ Überfall €"},
           {"a tag", "<script>alert(1)</script>", "&lt;script&gt;alert(1)&lt;/script&gt;"},
           {"the end of an attribute", R"("' onload="x)", "&quot;&#39; onload=&quot;x"},
           {"tab and line ends", "a\tb\r\n", "a\tb\r\n"},
           {"a zero byte", "a\0b"sv, "a" + std::string(kMark) + "b"},
           {"control characters", "\x1b\x7f\xC2\x85", std::string(kMark) + std::string(kMark) + std::string(kMark)},
           {"the last control character, and the one after it", "\xC2\x9F\xC2\xA0", std::string(kMark) + "\xC2\xA0"},
           {"bytes that are not UTF-8", "\xFF<\xC3", std::string(kMark) + "&lt;" + std::string(kMark)},
           {"no characters", "\xEF\xBF\xBF\xEF\xB7\x90", std::string(kMark) + std::string(kMark)},
       })
    EXPECT_EQ(MarkupText(c.text), c.markup) << c.rule;
}

}  // namespace
}  // namespace quillon
