#pragma once

// The base of the journeys with a screen reader, through the accessibility bus.

#include <algorithm>
#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "results/results_grid.h"
#include "tests/screen_reader.h"
#include "tests/window_journey.h"

namespace quillon {

class ScreenReaderJourney : public WindowJourney {
 protected:
  using Part = ScreenReader::Part;

  explicit ScreenReaderJourney(Desk desk = Desk{.IsHeard = true}) : WindowJourney(desk) {
    // First, so that the registry exists before the program starts.
    reader_ = std::make_unique<ScreenReader>(Session().BusAddress());
    StartProgramWithRanges();
    Session().WaitUntil("the screen reader knows the program", [&] { return reader_->Meet(Session().Running().Id()); });
  }

  [[nodiscard]] ScreenReader& Reader() { return *reader_; }

  /// The part, once it is visible.
  [[nodiscard]] Part The(std::string_view role, std::string_view name) {
    std::optional<Part> part;
    const std::string what = "there is a " + std::string(role) + " called \"" + std::string(name) + "\"";
    Session().WaitUntil(what, [&] { return (part = Reader().Find(role, name)).has_value(); });
    return *part;
  }
  void Press(std::string_view role, std::string_view name) { Reader().Press(The(role, name)); }
  void Choose(std::string_view question, std::string_view range) {
    const Part list = The("combo box", question);
    Reader().GiveFocus(list);
    Session().WaitUntil("the list has the focus", [&] { return Reader().HasFocus(list); });
    Session().Press({"Home"});
    for (int steps = 0; steps < 50 && Reader().Description(list) != range; ++steps) {
      const std::string before = Reader().Description(list);
      Session().Press({"Down"});
      Session().WaitUntil("the next range is chosen", [&] { return Reader().Description(list) != before; });
    }
    ASSERT_EQ(Reader().Description(list), range);
  }
  void Fill(std::string_view question, const std::string& amount) {
    const Part box = The("text", question);
    Reader().Write(box, amount);
    Session().WaitUntil("the amount is in its box", [&] { return Reader().Text(box) == amount; });
  }

  [[nodiscard]] std::string NextAnnouncement() {
    std::vector<std::string> said;
    Session().WaitUntil("something is announced", [&] {
      said = Reader().TakeAnnouncements();
      return !said.empty();
    });
    return said.front();
  }
  [[nodiscard]] std::string Figures(const char* hand) { return Reader().Description(The("label", hand)); }

  /// A whole run, whose end is announced as the situation's explanation.
  void Analyze(std::int16_t button, const EnteredSituation& situation) {
    Press("push button", "Analyze");
    std::string expected = MakeGridTexts(AnalysisOf(button, situation, Session().Program())).Results;
    std::erase(expected, '\r');
    EXPECT_EQ(NextAnnouncement(), expected);
  }

 private:
  std::unique_ptr<ScreenReader> reader_;
};

}  // namespace quillon
