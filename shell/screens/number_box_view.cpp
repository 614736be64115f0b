#include "shell/screens/number_box_view.h"

#include <QSignalBlocker>
#include <utility>

#include "analysis/expressions.h"
#include "analysis/input_screens.h"
#include "toolkit/text.h"

namespace quillon {

NumberBoxView::NumberBoxView(const MainControls& controls, MessageBoxes& messages, std::function<void()> hideResults)
    : controls_(controls), messages_(messages), hideResults_(std::move(hideResults)) {
  for (std::int16_t i = 0; i < controls_.CountOf("txtNumber"); ++i)
    Bind(i);
}

std::string NumberBoxView::Text(std::int16_t index) const {
  return FromQt(Box(index).text());
}

std::vector<std::string> NumberBoxView::Texts() const {
  std::vector<std::string> texts;
  for (std::int16_t i = 0; i < controls_.CountOf("txtNumber"); ++i)
    texts.push_back(Text(i));
  return texts;
}

void NumberBoxView::Set(std::int16_t index, std::string_view text) {
  {
    const QSignalBlocker quiet(Box(index));
    Box(index).setText(ToQt(text));
  }
  Change(index, OddsOfRestoredBoxes);
}

void NumberBoxView::Restore(std::span<const std::string> texts) {
  for (std::int16_t i = 0; i < static_cast<std::int16_t>(texts.size()); ++i) {
    const std::string& text = texts[static_cast<std::size_t>(i)];
    if (!text.empty()) Set(i, text);
  }
}

void NumberBoxView::Bind(std::int16_t index) {
  TextBox& box = Box(index);
  Shape& border = controls_.ShapeAt("ShapeBorder", index);
  QObject::connect(&box, &TextBox::textChanged, &box, [this, index] { Change(index, OddsOfBoxes); });
  QObject::connect(&box, &TextBox::FocusGot, &border, [&border] { border.SetLineWidth(kFocusedBorderWidth); });
  QObject::connect(&box, &TextBox::FocusLost, &border, [this, index, &border] {
    border.SetLineWidth(kRestingBorderWidth);
    WorkOut(index);
  });
  QObject::connect(&box, &TextBox::EnterPressed, &box, [this, index, &box] {
    WorkOut(index);
    box.end(false);
  });
}

void NumberBoxView::Change(std::int16_t index, OpponentOdds (*oddsOf)(const ShoveBoxTexts& boxes)) {
  hideResults_();
  if (index != kRaiseShoveBox) return;
  const OpponentOdds odds =
      oddsOf({.Pot = Text(kRaisePotBox), .Call = Text(kRaiseCallBox), .Shove = Text(kRaiseShoveBox)});
  controls_.LabelAt("lblHisOdds").SetText(ToQt(odds.HisOdds));
  controls_.LabelAt("lblHisBEP").SetText(ToQt(odds.HisBreakEven));
}

void NumberBoxView::WorkOut(std::int16_t index) {
  const std::string before = Text(index);
  const std::string after = EvalTextBox(before, messages_);
  // An unchanged text is not set: that would count as a change and hide the results.
  if (after != before) Box(index).setText(ToQt(after));
}

}  // namespace quillon
