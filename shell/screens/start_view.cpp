#include "shell/screens/start_view.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <utility>

#include "hand/equity_table.h"
#include "shell/screens/number_box_view.h"
#include "toolkit/colors.h"
#include "toolkit/text.h"
#include "toolkit/text_box.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

constexpr std::string_view kScreenName = "frameContent";
constexpr std::string_view kNavName = "lblNav";
constexpr std::string_view kBoxName = "txtNumber";

}  // namespace

StartView::StartView(QWidget& form, FormControls& controls, Actions actions)
    : form_(form), controls_(controls), actions_(std::move(actions)), place_(form) {}

TwipRect StartView::PanelRect() const {
  return TwipsOf(controls_.PictureAt("imgBack").geometry());
}

std::int16_t StartView::FrameCount() const {
  return controls_.CountOf(kScreenName);
}

std::string StartView::FrameCaption(std::int16_t index) const {
  return FromQt(controls_.FrameAt(kScreenName, index).Caption());
}

TwipRect StartView::FrameRect(std::int16_t index) const {
  return TwipsOf(controls_.FrameAt(kScreenName, index).geometry());
}

void StartView::SetFrameVisible(std::int16_t index, bool visible) {
  Frame& screen = controls_.FrameAt(kScreenName, index);
  // Whoever was busy on a screen that goes away is done there; left to itself, the focus would go to a neighbour.
  QWidget* busy = form_.focusWidget();
  if (!visible && busy != nullptr && screen.isAncestorOf(busy)) {
    busy->clearFocus();
    // With another program in front there is no focus to lose, and the box is left all the same.
    if (auto* box = qobject_cast<TextBox*>(busy)) box->Leave();
  }
  screen.setVisible(visible);
}

void StartView::SetFrameRect(std::int16_t index, TwipRect rect) {
  controls_.FrameAt(kScreenName, index).setGeometry(PixelPlace(rect));
}

void StartView::SetFrameColor(std::int16_t index, Rgb color) {
  controls_.FrameAt(kScreenName, index).SetBackColor(ToColor(color));
}

void StartView::RaiseFrame(std::int16_t index) {
  controls_.FrameAt(kScreenName, index).raise();
}

std::int16_t StartView::NavCount() const {
  return controls_.CountOf(kNavName);
}

std::string StartView::NavCaption(std::int16_t index) const {
  return FromQt(controls_.LabelAt(kNavName, index).Text());
}

float StartView::NavTop(std::int16_t index) const {
  return TwipsOf(controls_.LabelAt(kNavName, index).geometry()).Top;
}

bool StartView::IsNavVisible(std::int16_t index) const {
  return !controls_.LabelAt(kNavName, index).isHidden();
}

bool StartView::IsNavUnderlined(std::int16_t index) const {
  return controls_.LabelAt(kNavName, index).HasUnderline();
}

void StartView::SetNavColor(std::int16_t index, Rgb color) {
  controls_.LabelAt(kNavName, index).SetTextColor(ToColor(color));
}

void StartView::SetNavUnderline(std::int16_t index, bool underline) {
  controls_.LabelAt(kNavName, index).SetUnderline(underline);
}

void StartView::SetSelectionBarRect(TwipRect rect) {
  controls_.ShapeAt("shapeBack").setGeometry(PixelPlace(rect));
}

void StartView::ShowSelectionBar() {
  controls_.ShapeAt("shapeBack").show();
}

void StartView::SetDefaultPointer() {
  form_.unsetCursor();
}

void StartView::HidePanelFooter() {
  controls_.PictureAt("imgBackground").hide();
}

void StartView::SelectOutputType(std::int16_t index) {
  controls_.Get<QComboBox>("cmboOutputType").setCurrentIndex(index);
}

void StartView::SetTitle(std::string_view title) {
  form_.setWindowTitle(ToQt(title));
}

void StartView::ResizeWindow(TwipSize size) {
  form_.setFixedSize(PixelPlace({.Left = 0, .Top = 0, .Width = size.Width, .Height = size.Height}).size());
}

int StartView::RangeEntryCount() const {
  return controls_.Get<QComboBox>("cmboRanges", 0).count();
}

void StartView::SetRangeCountCaption(std::string_view caption) {
  controls_.LabelAt("lblNumRanges").SetText(ToQt(caption));
}

void StartView::SetAboutContentRect(TwipRect rect) {
  controls_.FrameAt("frameAboutContent").setGeometry(PixelPlace(rect));
}

void StartView::ShowAboutContent() {
  controls_.FrameAt("frameAboutContent").show();
}

std::int16_t StartView::BoxCount() const {
  return controls_.CountOf(kBoxName);
}

std::string StartView::BoxText(std::int16_t index) const {
  return NumberBoxText(controls_, index);
}

void StartView::RestoreBoxText(std::int16_t index, std::string_view text) {
  {
    const QSignalBlocker quiet(controls_.Get<TextBox>(kBoxName, index));
    SetNumberBoxText(controls_, index, text);
  }
  actions_.RestoredBox(index);
}

TwipSize StartView::HoverBorderSize() const {
  const TwipRect border = TwipsOf(controls_.ShapeAt("rectHov").geometry());
  return {border.Width, border.Height};
}

void StartView::SetHoverPanelSize(TwipSize size) {
  Frame& panel = controls_.FrameAt("frameHover");
  TwipRect place = TwipsOf(panel.geometry());
  place.Width = size.Width;
  place.Height = size.Height;
  panel.setGeometry(PixelPlace(place));
}

void StartView::AddOutputType(std::string_view text) {
  controls_.Get<QComboBox>("cmboOutputType").addItem(ToQt(text));
}

void StartView::AddHandEntry(std::string_view text) {
  auto& hands = controls_.Get<QComboBox>("cmbo169");
  hands.addItem(ToQt(text));
  hands.setCurrentIndex(-1);  // none is picked yet, "None" neither
}

void StartView::ShowWindow() {
  form_.show();
}

void StartView::HideWindow() {
  form_.hide();
}

void StartView::LoadEquityTable() {
  quillon::LoadEquityTable();
}

}  // namespace quillon
