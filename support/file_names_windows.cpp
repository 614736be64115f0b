#include <algorithm>
#include <array>
#include <string>
#include <windows.h>

#include "support/ascii_text.h"
#include "support/file_names.h"
#include "support/text_windows.h"

namespace quillon {
namespace {

constexpr std::string_view kForbidden = R"(<>:"/\|?*)";

// Followed by a digit 1 to 9; 1 to 3 may be superscripts.
constexpr std::array<std::string_view, 2> kNumberedDevices = {"com", "lpt"};
constexpr std::array<std::string_view, 12> kNumbers = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "¹", "²", "³"};
constexpr std::array<std::string_view, 6> kOtherDevices = {"con", "prn", "aux", "nul", "conin$", "conout$"};

bool IsDevice(std::string_view name) {
  std::string start = AsciiLower(name.substr(0, name.find('.')));
  start.resize(start.find_last_not_of(' ') + 1);  // "con .txt" is reserved too
  if (std::ranges::find(kOtherDevices, start) != kOtherDevices.end()) return true;
  constexpr std::size_t kLetters = 3;
  if (start.size() <= kLetters) return false;
  const std::string_view whole = start;
  return std::ranges::find(kNumberedDevices, whole.substr(0, kLetters)) != kNumberedDevices.end() &&
         std::ranges::find(kNumbers, whole.substr(kLetters)) != kNumbers.end();
}

bool IsForbidden(char character) {
  return (character >= '\0' && character < ' ') || kForbidden.find(character) != std::string_view::npos;
}

}  // namespace

std::string_view NameFault(std::string_view name) {
  if (std::ranges::any_of(name, IsForbidden)) return "holds a character that Windows has in no file's name";
  if (name.ends_with('.') || name.ends_with(' ')) return "ends with a dot or a space, which Windows drops";
  if (IsDevice(name)) return "is one that Windows keeps for a device";
  return {};
}

bool IsSameName(std::string_view first, std::string_view second) {
  const std::wstring one = WideText(first);
  const std::wstring other = WideText(second);
  return CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(), static_cast<int>(other.size()),
                              TRUE) == CSTR_EQUAL;
}

}  // namespace quillon
