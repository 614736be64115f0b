#include "shell/screens/hover_view.h"

#include <array>

#include "toolkit/placement.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// The pictures are in the store, in the order of HoverPicture.
constexpr auto kStoredPictures = std::to_array<MainControls::Key<Picture>>({"backGreen", "backRed", "backBlue"});

}  // namespace

HoverView::HoverView(const MainControls& controls, const FormCardGrid& grid) : controls_(controls), grid_(grid) {
  Frame& panel = controls_.FrameAt("frameHover");
  TwipRect place = PlaceOf(panel);
  const TwipRect border = PlaceOf(controls_.ShapeAt("rectHov"));
  place.Width = border.Width;
  place.Height = border.Height;
  SetPlace(panel, place);
  SetCaption("lblHov_Cards", {});
}

void HoverView::LeaveWithKeyboard() {
  if (guest_) Hide();
}

void HoverView::Show(std::int16_t index, const Analysis& analysis, bool guest) {
  const std::optional<HoverTexts> texts = MakeHoverTexts(index, analysis);
  if (!texts) return;
  guest_ = guest;
  SetValueLinesVisible(texts->Value.has_value());
  if (!texts->Value) SetFoldLineVisible(false);
  if (controls_.LabelAt("lblHov_Cards").Text() != ToQt(texts->Hand)) Fill(*texts);
  BringUpBeside(index);
}

void HoverView::Fill(const HoverTexts& texts) {
  const Picture& stored = controls_.PictureAt(kStoredPictures.at(static_cast<std::size_t>(texts.Picture)));
  controls_.PictureAt("imgHover").SetArtwork(stored.Artwork());
  SetCaption("lblHov_Cards", texts.Hand);
  SetCaption("lblHovDesc_Eq", texts.EquityTitle);
  SetCaption("lblHov_Eq", texts.Equity);
  if (texts.Value) SetCaption("lblHov_EV", *texts.Value);
  if (texts.Return) SetCaption("lblHov_ROI", *texts.Return);
  SetFoldLineVisible(texts.FoldShare.has_value());
  if (texts.FoldShare) SetCaption("lblHov_FoldPerc", *texts.FoldShare);
  SetCaption("lblHov_Advice", texts.Advice);
}

void HoverView::BringUpBeside(std::int16_t index) {
  Frame& panel = controls_.FrameAt("frameHover");
  const TwipRect screen = PlaceOf(controls_.FrameAt("frameContent", kGridScreen));
  SetPlace(panel, HoverPlace(PlaceOf(panel), grid_.SquarePlace(index), screen));
  panel.raise();
  panel.show();
}

void HoverView::SetCaption(MainControls::Key<Label> label, std::string_view caption) {
  controls_.LabelAt(label).SetText(ToQt(caption));
}

void HoverView::SetValueLinesVisible(bool visible) {
  constexpr auto kLines =
      std::to_array<MainControls::Key<Label>>({"lblHovDesc_EV", "lblHov_EV", "lblHovDesc_ROI", "lblHov_ROI"});
  for (const MainControls::Key<Label>& line : kLines)
    controls_.LabelAt(line).setVisible(visible);
}

void HoverView::SetFoldLineVisible(bool visible) {
  controls_.LabelAt("lblHovDesc_FoldPerc").setVisible(visible);
  controls_.LabelAt("lblHov_FoldPerc").setVisible(visible);
}

}  // namespace quillon
