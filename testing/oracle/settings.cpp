#include "testing/oracle/settings.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <locale>
#include <map>
#include <sstream>

namespace quillon::plain {
namespace {

std::string Trimmed(std::string text) {
  constexpr const char* kSpaces = " \t";
  text.erase(0, text.find_first_not_of(kSpaces));
  return text.substr(0, text.find_last_not_of(kSpaces) + 1);
}

std::string LowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

bool IsSame(const std::string& text, std::string_view name) {
  return LowerCase(Trimmed(text)) == LowerCase(std::string(name));
}

std::string WithoutQuotes(const std::string& value) {
  for (const char quote : {'"', '\''}) {
    if (value.size() >= 2 && value.front() == quote && value.back() == quote) return value.substr(1, value.size() - 2);
  }
  return value;
}

// The characters for 80 to 9F; every other byte is the character of the same number.
constexpr std::array<char32_t, 32> kMiddle = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                              0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t CharacterOf(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 && byte < 0xA0 ? kMiddle.at(byte - 0x80U) : byte;
}

std::map<char32_t, char> BytesOfCharacters() {
  std::map<char32_t, char> bytes;
  for (int byte = 0; byte < 256; ++byte)
    bytes[CharacterOf(static_cast<char>(byte))] = static_cast<char>(byte);
  return bytes;
}

struct Character {
  char32_t value;
  std::size_t length;
};

constexpr char32_t kInvalid = 0xFFFFFFFF;

// The first character as the standard library decodes it.
Character FirstCharacter(std::string_view text) {
  using Decoder = std::codecvt<char32_t, char8_t, std::mbstate_t>;
  const auto& decoder = std::use_facet<Decoder>(std::locale::classic());
  const std::string_view start = text.substr(0, 4);
  const std::u8string bytes(start.begin(), start.end());
  std::mbstate_t state{};
  char32_t value = 0;
  const char8_t* next = nullptr;
  char32_t* end = nullptr;
  decoder.in(state, bytes.data(), bytes.data() + bytes.size(), next, &value, &value + 1, end);
  if (end == &value || (value >= 0xD800 && value <= 0xDFFF)) return {kInvalid, 1};
  return {value, static_cast<std::size_t>(next - bytes.data())};
}

}  // namespace

std::string IniValue(std::string_view file, std::string_view section, std::string_view key) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  std::string text(file.starts_with(kMark) ? file.substr(kMark.size()) : file);
  std::replace(text.begin(), text.end(), '\r', '\n');
  std::istringstream lines(text);
  bool inside = false;
  for (std::string line; std::getline(lines, line);) {
    line = Trimmed(line);
    const std::size_t bracket = line.find(']');
    const std::size_t equals = line.find('=');
    if (line.starts_with("[") && bracket != std::string::npos) {
      if (inside) return {};
      inside = IsSame(line.substr(1, bracket - 1), section);
    } else if (inside && !line.starts_with(";") && equals != std::string::npos && IsSame(line.substr(0, equals), key)) {
      return WithoutQuotes(Trimmed(line.substr(equals + 1)));
    }
  }
  return {};
}

bool IsUtf16(std::string_view file) {
  const bool firstIsZero = file.starts_with('\0');
  const bool secondIsZero = file.size() > 1 && file[1] == '\0';
  return file.starts_with("\xFF\xFE") || file.starts_with("\xFE\xFF") || firstIsZero != secondIsZero;
}

std::string SettingIn(std::string_view file, std::string_view section, std::string_view key) {
  constexpr std::size_t kLongest = 2999;
  return IsUtf16(file) ? "" : IniValue(file, section, key).substr(0, kLongest);
}

std::string Utf8(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const char32_t code = CharacterOf(c);
    if (code < 0x80) {
      text += static_cast<char>(code);
      continue;
    }
    if (code < 0x800) {
      text += static_cast<char>(0xC0U | (code >> 6U));
    } else {
      text += static_cast<char>(0xE0U | (code >> 12U));
      text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
    }
    text += static_cast<char>(0x80U | (code & 0x3FU));
  }
  return text;
}

std::string CodePage(std::string_view text) {
  static const std::map<char32_t, char> bytesOfCharacters = BytesOfCharacters();
  std::string bytes;
  while (!text.empty()) {
    const Character character = FirstCharacter(text);
    const auto found = bytesOfCharacters.find(character.value);
    bytes += found == bytesOfCharacters.end() ? '?' : found->second;
    text.remove_prefix(character.length);
  }
  return bytes;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const Character character = FirstCharacter(text);
    if (character.value == kInvalid) return false;
    text.remove_prefix(character.length);
  }
  return true;
}

}  // namespace quillon::plain
