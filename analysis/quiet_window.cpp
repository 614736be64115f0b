#include "analysis/quiet_window.h"

#include <utility>

namespace quillon {

QuietWindow::QuietWindow(EnteredSituation situation, MessageBoxes& messages)
    : situation_(std::move(situation)), messages_(messages) {}

std::string QuietWindow::BoxText(std::int16_t index) const {
  switch (index) {
    case kCallPotBox:
    case kRaisePotBox:
      return situation_.Pot;
    case kCallCallBox:
    case kRaiseCallBox:
      return situation_.Call;
    case kRaiseShoveBox:
      return situation_.Shove;
    default:
      return {};
  }
}

std::string QuietWindow::SelectedRange(std::int16_t index) const {
  switch (index) {
    case kCallRangeList:
    case kRaiseRangeList:
    case kEquityRangeList:
      return situation_.Range;
    case kRaiseCallingRangeList:
      return situation_.CallingRange;
    default:
      return {};
  }
}

}  // namespace quillon
