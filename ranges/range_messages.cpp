#include "ranges/range_messages.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "ranges/range_text.h"
#include "support/joined_text.h"

namespace quillon {
namespace {

Message Asked(std::string_view title, std::string text) {
  return {std::string(title), std::move(text), MessageIcon::kQuestion, MessageButtons::kYesNoCancel};
}

}  // namespace

Message RangeSavedMessage(std::string_view name) {
  return {.text = "The range " + Quoted(name) + " was saved successfully!"};
}

Message RangeRenamedMessage(std::string_view oldName, std::string_view newName) {
  return {.text = Joined({"The range was successfull renamed: \r\n\r\nOld: \t", oldName, "\r\nNew: \t", newName})};
}

Message DeleteRangeQuestion(std::string_view name) {
  return Asked("Delete?", "Do you really want to delete " + Quoted(name) + "?");
}

Message SaveRangeQuestion(std::string_view name) {
  return Asked("Save Range?", "The range " + Quoted(name) +
                                  " has changed since you last saved it.\r\n\r\n"
                                  "Do you want to save the range now?");
}

Message NotARangeMessage(std::string_view notation, const NotationError& error) {
  constexpr std::size_t kAroundPlace = 25;  // twice this fits on one line of a box
  std::string text = MarkedPlace(notation, error, kAroundPlace);
  text.insert(text.find('\n'), "\r");
  return {.title = "This Is Not a Range", .text = std::move(text), .icon = MessageIcon::kExclamation, .columns = true};
}

Message NotAShareMessage() {
  return {.title = std::string(kAskTopShare.Title),
          .text = "A share is a number from 0 to 100, such as 15 or 12.5.",
          .icon = MessageIcon::kExclamation};
}

std::string LostWeightsNote(std::string_view name, std::span<const double, kHandClassCount> weights) {
  constexpr std::size_t kLongest = 100;
  ClassWeights lost{};
  std::ranges::transform(weights, lost.begin(),
                         [](double weight) { return weight == 0.5 || weight == 1 ? 0 : weight; });
  if (lost == ClassWeights{}) return {};
  std::string notation = RangeNotation(lost);
  if (notation.size() > kLongest) notation = notation.substr(0, notation.rfind(',', kLongest)) + ", ...";
  return "The range " + Quoted(name) + " has weights that the grid cannot show, and saving drops them:\r\n" + notation;
}

}  // namespace quillon
