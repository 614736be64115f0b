#pragma once

// The hover panel of the grid screen ("results/hover_panel.h"). If opened by the mouse it stays until the mouse is over
// the empty part of the screen. If opened by the keyboard it closes when the focus leaves.

#include <cstdint>
#include <string_view>

#include "results/hover_panel.h"
#include "shell/screens/main_layout.h"
#include "toolkit/form_card_grid.h"

namespace quillon {

class HoverView {
 public:
  /// The panel takes the size of its border. It shows no hand yet, so the first one hovered is always new, even AA.
  HoverView(const MainControls& controls, const FormCardGrid& grid);

  /// The mouse over the cell `index`: fills the panel if it shows another hand, and shows it beside the cell. Lines
  /// without a text are hidden at once. Before any analysis nothing happens.
  void ShowForMouse(std::int16_t index, const Analysis& analysis) { Show(index, analysis, false); }

  /// The same for the keyboard focus on the cell, until it leaves.
  void ShowForKeyboard(std::int16_t index, const Analysis& analysis) { Show(index, analysis, true); }
  void LeaveWithKeyboard();

  void Hide() { controls_.FrameAt("frameHover").hide(); }

 private:
  void Show(std::int16_t index, const Analysis& analysis, bool guest);
  void Fill(const HoverTexts& texts);
  void BringUpBeside(std::int16_t index);
  void SetCaption(MainControls::Key<Label> label, std::string_view caption);
  void SetValueLinesVisible(bool visible);
  void SetFoldLineVisible(bool visible);

  const MainControls& controls_;
  const FormCardGrid& grid_;
  bool guest_ = false;
};

}  // namespace quillon
