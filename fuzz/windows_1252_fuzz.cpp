// Any bytes survive the way into memory and back, and any text comes out as one byte a character.

#include <locale>
#include <map>
#include <string>

#include "fuzz/fuzz_target.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

constexpr char32_t kInvalid = 0xFFFFFFFF;

struct Character {
  char32_t value;
  std::size_t length;
};

// The first character as the standard library decodes it.
Character PlainFirstCharacter(std::string_view text) {
  using Decoder = std::codecvt<char32_t, char8_t, std::mbstate_t>;
  const auto& decoder = std::use_facet<Decoder>(std::locale::classic());
  const std::u8string bytes(text.begin(),
                            text.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(text.size(), 4)));
  std::mbstate_t state{};
  char32_t value = 0;
  const char8_t* next = nullptr;
  char32_t* end = nullptr;
  decoder.in(state, bytes.data(), bytes.data() + bytes.size(), next, &value, &value + 1, end);
  if (end == &value || (value >= 0xD800 && value <= 0xDFFF)) return {kInvalid, 1};
  return {value, static_cast<std::size_t>(next - bytes.data())};
}

// Which byte each character of the page has, found by asking for the character of each byte.
std::map<char32_t, char> PageBytes() {
  std::map<char32_t, char> bytes;
  for (int i = 0; i < 256; ++i) {
    const char byte = static_cast<char>(i);
    bytes[PlainFirstCharacter(Utf8FromWindows1252({&byte, 1})).value] = byte;
  }
  return bytes;
}

std::string PlainWindows1252(std::string_view text) {
  static const std::map<char32_t, char> pageBytes = PageBytes();
  std::string bytes;
  while (!text.empty()) {
    const Character character = PlainFirstCharacter(text);
    const auto found = pageBytes.find(character.value);
    bytes += found == pageBytes.end() ? '?' : found->second;
    text.remove_prefix(character.length);
  }
  return bytes;
}

bool PlainIsUtf8(std::string_view text) {
  while (!text.empty()) {
    const Character character = PlainFirstCharacter(text);
    if (character.value == kInvalid) return false;
    text.remove_prefix(character.length);
  }
  return true;
}

void CheckFileName(std::string_view name) {
  const std::string text = TextOfFileName(name);
  Require(PlainIsUtf8(text), "a file name's text is UTF-8");
  Require(PlainIsUtf8(name) ? text == name : Windows1252FromUtf8(text) == name, "a file name returns from its text");
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  const std::string_view bytes = input.Rest();

  const std::string text = Utf8FromWindows1252(bytes);
  Require(Windows1252FromUtf8(text) == bytes, "every byte survives");
  Require(Utf8FromWindows1252(Windows1252FromUtf8(text)) == text, "every character of the page survives");
  Require(Windows1252FromUtf8(bytes).size() <= bytes.size(), "a character takes one byte");
  Require(Windows1252FromUtf8(bytes) == PlainWindows1252(bytes), "any text is encoded as the plain way does");
  CheckFileName(bytes);
  return 0;
}
