#include "shell/ini_text.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "support/ascii_text.h"
#include "support/utf8.h"

namespace quillon {
namespace {

constexpr std::string_view kLineEnds = "\r\n";

std::string_view WithoutBlanks(std::string_view text) {
  return Trimmed(text, kSpaceAndTab);
}

bool IsInQuotes(std::string_view value) {
  return value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
}

std::optional<std::string_view> SectionName(std::string_view line) {
  line = WithoutBlanks(line);
  const std::size_t end = line.find(']');
  if (!line.starts_with('[') || end == std::string_view::npos) return std::nullopt;
  return WithoutBlanks(line.substr(1, end - 1));
}

struct KeyLine {
  std::string_view key;
  std::string_view value;  // a part of the line, even if empty
};

std::optional<KeyLine> ReadKeyLine(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || WithoutBlanks(line).starts_with(';')) return std::nullopt;
  return KeyLine{WithoutBlanks(line.substr(0, equals)), WithoutBlanks(line.substr(equals + 1))};
}

struct KeyPlace {
  bool sectionFound = false;
  std::size_t newLine = 0;  // where to insert the key, if the section was found
  std::optional<std::string_view> value;  // a part of the text
};

std::size_t StartOfLines(std::string_view text) {
  return text.starts_with(kUtf8Mark) ? kUtf8Mark.size() : 0;
}

// The line end at this position, CR LF as one; the empty text at the end.
std::string_view LineEndAt(std::string_view text, std::size_t place) {
  return text.substr(place, text.substr(place).starts_with("\r\n") ? 2 : 1);
}

KeyPlace FindKey(std::string_view text, std::string_view section, std::string_view key) {
  KeyPlace place;
  std::size_t begin = StartOfLines(text);
  while (begin < text.size()) {
    const std::size_t end = std::min(text.find_first_of(kLineEnds, begin), text.size());
    const std::size_t next = end + LineEndAt(text, end).size();
    const std::string_view line = text.substr(begin, end - begin);
    begin = next;

    if (const auto name = SectionName(line)) {
      if (place.sectionFound) return place;
      place.sectionFound = EqualButForCase(*name, section);
      place.newLine = next;
    } else if (const auto keyLine = ReadKeyLine(line); keyLine && place.sectionFound) {
      // A comment above the next heading belongs to it, so new keys go after the last key.
      place.newLine = next;
      if (EqualButForCase(keyLine->key, key)) {
        place.value = keyLine->value;
        return place;
      }
    }
  }
  return place;
}

std::string_view LineEndOf(std::string_view text) {
  const std::size_t first = text.find_first_of(kLineEnds);
  return first == std::string_view::npos ? "\r\n" : LineEndAt(text, first);
}

std::string StoredForm(std::string_view value) {
  value = value.substr(0, value.find_first_of(kLineEnds));
  const bool needsQuotes = WithoutBlanks(value) != value || IsInQuotes(value);
  const std::string_view quote = needsQuotes ? "\"" : "";
  return std::string(quote).append(value).append(quote);
}

}  // namespace

bool IsUtf16(std::string_view text) {
  const std::string_view start = text.substr(0, 2);
  return start == "\xFF\xFE" || start == "\xFE\xFF" || std::count(start.begin(), start.end(), '\0') == 1;
}

std::string IniValue(std::string_view text, std::string_view section, std::string_view key) {
  std::string_view value = FindKey(text, section, key).value.value_or("");
  if (IsInQuotes(value)) value = value.substr(1, value.size() - 2);
  return std::string(value);
}

std::string WithIniValue(std::string_view text, std::string_view section, std::string_view key,
                         std::string_view value) {
  const KeyPlace place = FindKey(text, section, key);
  const std::string stored = StoredForm(value);
  std::string result(text);
  if (place.value) {
    const auto offset = static_cast<std::size_t>(place.value->data() - text.data());
    return result.replace(offset, place.value->size(), stored);
  }

  const std::string_view lineEnd = LineEndOf(text);
  const std::size_t newLine = place.sectionFound ? place.newLine : text.size();
  std::string added;
  if (newLine > StartOfLines(text) && kLineEnds.find(text[newLine - 1]) == std::string_view::npos) added += lineEnd;
  if (!place.sectionFound) added.append("[").append(section).append("]").append(lineEnd);
  added.append(key).append("=").append(stored).append(lineEnd);
  return result.insert(newLine, added);
}

}  // namespace quillon
