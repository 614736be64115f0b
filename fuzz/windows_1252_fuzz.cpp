// Any bytes survive the round trip into memory, and any text becomes one byte per character.

#include <string>

#include "fuzz/fuzz_target.h"
#include "support/windows_1252.h"
#include "testing/oracle/settings.h"

namespace quillon {
namespace {

void CheckFileName(std::string_view name) {
  const std::string text = TextOfFileName(name);
  Require(plain::IsUtf8(text), "a file name's text is UTF-8");
  Require(plain::IsUtf8(name) ? text == name : Windows1252FromUtf8(text) == name,
          "a file name is recovered from its text");
}

}  // namespace

void CheckInput(FuzzInput input) {
  const std::string_view bytes = input.Rest();

  const std::string text = Utf8FromWindows1252(bytes);
  Require(text == plain::Utf8(bytes), "any bytes are decoded as by the oracle");
  Require(Windows1252FromUtf8(text) == bytes, "every byte survives");
  Require(Utf8FromWindows1252(Windows1252FromUtf8(text)) == text, "every character of the page survives");
  Require(Windows1252FromUtf8(bytes).size() <= bytes.size(), "a character takes one byte");
  Require(Windows1252FromUtf8(bytes) == plain::CodePage(bytes), "any text is encoded as by the oracle");
  CheckFileName(bytes);
}

}  // namespace quillon
