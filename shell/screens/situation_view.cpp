#include "shell/screens/situation_view.h"

#include <algorithm>
#include <array>

#include "analysis/analysis_driver.h"
#include "shell/screens/situation_dialog.h"
#include "toolkit/accessible_control.h"
#include "toolkit/text.h"

namespace quillon {

void SituationView::Save() {
  const InputScreen* const screen = ShownInputs();
  if (screen == nullptr) {
    parts_.Messages.Show(NoInputScreenMessage());
    return;
  }
  const ScreenSituation situation{screen->Mode, EnteredOn(*screen, parts_.Inputs)};
  auto name = AskAndSaveSituation(situation, lastName_, parts_.Folder, parts_.Ask, parts_.Messages);
  if (!name) return;
  lastName_ = *std::move(name);
  const Message saved = SituationSavedMessage(lastName_);
  Announce(parts_.Form, ToQt(saved.text));
  parts_.Messages.Show(saved);
}

void SituationView::Open(const AnalysisState& state) {
  if (state.Running) {
    parts_.Messages.Show(RunningMessage());
    return;
  }
  SituationDialog dialog(&parts_.Form, parts_.Folder, parts_.Messages, lastName_);
  if (dialog.Name().empty()) {
    parts_.Messages.Show(NoSituationsMessage());
    return;
  }
  if (dialog.exec() != QDialog::Accepted) return;
  const std::string name = dialog.Name();
  const auto opened = OpenSituation(name, parts_.Folder, parts_.Messages);
  if (!opened) return;
  lastName_ = name;
  Show(opened->Situation);
  Announce(parts_.Form, ToQt(SituationOpenedText(name)));
  if (opened->Remarks) parts_.Messages.Show(*opened->Remarks);
}

const InputScreen* SituationView::ShownInputs() const {
  const std::string shown = parts_.Screens.ShownScreen();
  const auto* const screen =
      std::ranges::find_if(kInputScreens, [&](const InputScreen& row) { return ScenarioOf(row.Mode).Name == shown; });
  return screen == kInputScreens.end() ? nullptr : screen;
}

void SituationView::Show(const ScreenSituation& situation) {
  const InputScreen& screen = RowOf(kInputScreens, situation.Mode);
  const EnteredSituation& entered = situation.Entered;
  parts_.ClickNav(static_cast<std::int16_t>(&screen - kInputScreens.data()));  // this fills the lists
  const std::array amounts = {&entered.Pot, &entered.Call, &entered.Shove};
  for (std::size_t i = 0; i < amounts.size(); ++i) {
    if (screen.AmountBoxes.at(i) != kNoControl) parts_.Amounts.Set(screen.AmountBoxes.at(i), *amounts.at(i));
  }
  const std::array ranges = {&entered.Range, &entered.CallingRange};
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    if (screen.RangeLists.at(i) != kNoControl) parts_.Choosers.List(screen.RangeLists.at(i)).SelectEntry(*ranges.at(i));
  }
}

}  // namespace quillon
