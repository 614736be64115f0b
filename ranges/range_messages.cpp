#include "ranges/range_messages.h"

#include <string>
#include <utility>

namespace quillon {
namespace {

std::string Quoted(std::string_view name) {
  return "\"" + std::string(name) + "\"";
}

Message Told(std::string text) {
  return {std::string(kApplicationTitle), std::move(text), MessageIcon::kInformation, MessageButtons::kOk};
}

Message Asked(std::string_view title, std::string text) {
  return {std::string(title), std::move(text), MessageIcon::kQuestion, MessageButtons::kYesNoCancel};
}

}  // namespace

Message RangeSavedMessage(std::string_view name) {
  return Told("The range " + Quoted(name) + " was saved successfully!");
}

Message RangeRenamedMessage(std::string_view oldName, std::string_view newName) {
  return Told("The range was successfull renamed: \r\n\r\nOld: \t" + std::string(oldName) + "\r\nNew: \t" +
              std::string(newName));
}

Message DeleteRangeQuestion(std::string_view name) {
  return Asked("Delete?", "Do you really want to delete " + Quoted(name) + "?");
}

Message SaveRangeQuestion(std::string_view name) {
  return Asked("Save Range?", "The range " + Quoted(name) +
                                  " has changed since you last saved it.\r\n\r\n"
                                  "Do you want to save the range now?");
}

}  // namespace quillon
