#include "shell/screens/hover_view.h"

#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

// The pictures lie in the store, each under the name of its colour.
std::string_view StoredPicture(HoverPicture picture) {
  switch (picture) {
    case HoverPicture::kGreen:
      return "backGreen";
    case HoverPicture::kRed:
      return "backRed";
    case HoverPicture::kBlue:
      return "backBlue";
  }
  return {};
}

}  // namespace

void HoverView::SetHoverPicture(HoverPicture picture) {
  controls_.PictureAt("imgHover").SetArtwork(controls_.PictureAt(StoredPicture(picture)).Artwork());
}

std::string HoverView::HoverHand() const {
  return FromQt(controls_.LabelAt("lblHov_Cards").Text());
}

void HoverView::SetHoverHand(std::string_view caption) {
  SetCaption("lblHov_Cards", caption);
}

void HoverView::SetHoverEquityTitle(std::string_view caption) {
  SetCaption("lblHovDesc_Eq", caption);
}

void HoverView::SetHoverEquity(std::string_view caption) {
  SetCaption("lblHov_Eq", caption);
}

void HoverView::SetHoverValue(std::string_view caption) {
  SetCaption("lblHov_EV", caption);
}

void HoverView::SetHoverReturn(std::string_view caption) {
  SetCaption("lblHov_ROI", caption);
}

void HoverView::SetHoverValueLinesVisible(bool visible) {
  for (const std::string_view name : {"lblHovDesc_EV", "lblHov_EV", "lblHovDesc_ROI", "lblHov_ROI"}) {
    SetVisible(name, visible);
  }
}

void HoverView::SetHoverFoldShare(std::string_view caption) {
  SetCaption("lblHov_FoldPerc", caption);
}

void HoverView::SetHoverFoldLineVisible(bool visible) {
  SetVisible("lblHovDesc_FoldPerc", visible);
  SetVisible("lblHov_FoldPerc", visible);
}

void HoverView::SetHoverAdvice(std::string_view caption) {
  SetCaption("lblHov_Advice", caption);
}

TwipRect HoverView::HoverRect() const {
  return TwipsOf(controls_.FrameAt("frameHover").geometry());
}

void HoverView::SetHoverRect(const TwipRect& rect) {
  controls_.FrameAt("frameHover").setGeometry(PixelPlace(rect));
}

TwipRect HoverView::GridScreenRect() const {
  return TwipsOf(controls_.FrameAt("frameContent", 1).geometry());
}

void HoverView::ShowHover() {
  Frame& panel = controls_.FrameAt("frameHover");
  panel.raise();
  panel.show();
}

void HoverView::SetCaption(std::string_view name, std::string_view caption) {
  controls_.LabelAt(name).SetText(ToQt(caption));
}

void HoverView::SetVisible(std::string_view name, bool visible) {
  controls_.LabelAt(name).setVisible(visible);
}

}  // namespace quillon
