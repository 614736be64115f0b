#pragma once

// The hover panel of the grid screen.

#include "ranges/dialogs/form_card_grid.h"
#include "results/hover_panel.h"
#include "toolkit/form_builder.h"

namespace quillon {

class HoverView : public HoverWindow {
 public:
  HoverView(FormControls& controls, FormCardGrid& grid) : controls_(controls), grid_(grid) {}

  void SetHoverPicture(HoverPicture picture) override;
  [[nodiscard]] std::string HoverHand() const override;
  void SetHoverHand(std::string_view caption) override;
  void SetHoverEquityTitle(std::string_view caption) override;
  void SetHoverEquity(std::string_view caption) override;
  void SetHoverValue(std::string_view caption) override;
  void SetHoverReturn(std::string_view caption) override;
  void SetHoverValueLinesVisible(bool visible) override;
  void SetHoverFoldShare(std::string_view caption) override;
  void SetHoverFoldLineVisible(bool visible) override;
  void SetHoverAdvice(std::string_view caption) override;
  [[nodiscard]] TwipRect HoverRect() const override;
  void SetHoverRect(const TwipRect& rect) override;
  [[nodiscard]] TwipRect SquareRect(std::int16_t index) const override { return grid_.SquarePlace(index); }
  [[nodiscard]] TwipRect GridScreenRect() const override;
  void ShowHover() override;

  void Hide() { controls_.FrameAt("frameHover").hide(); }

 private:
  void SetCaption(std::string_view name, std::string_view caption);
  void SetVisible(std::string_view name, bool visible);

  FormControls& controls_;
  FormCardGrid& grid_;
};

}  // namespace quillon
