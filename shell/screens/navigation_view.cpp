#include "shell/screens/navigation_view.h"

#include <QAbstractButton>
#include <cassert>

#include "toolkit/application.h"
#include "toolkit/colors.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"
#include "toolkit/text_box.h"

namespace quillon {
namespace {

constexpr std::string_view kScreenName = "frameContent";
constexpr std::string_view kNavName = "lblNav";

Frame& ScreenOfName(const MainControls& controls, std::string_view name) {
  std::int16_t index = 0;
  for (; FromQt(controls.FrameAt(kScreenName, index).accessibleName()) != name; ++index)
    assert(index + 1 < controls.CountOf(kScreenName));
  return controls.FrameAt(kScreenName, index);
}

// A focus on the hidden screen is given to the window: Qt would otherwise move it to a neighbour, or to the window's
// first control on activation.
void HideScreen(Frame& screen, QWidget& form) {
  QWidget* busy = form.focusWidget();
  if (screen.isAncestorOf(busy)) {
    form.setFocus(Qt::OtherFocusReason);
    // With another program in front there is no focus to lose, but the box must still handle being left.
    if (auto* box = qobject_cast<TextBox*>(busy)) box->Leave();
  }
  screen.hide();
}

bool IsJustPressed(const QWidget& control) {
  const auto* ours = qobject_cast<const Control*>(&control);
  return ours != nullptr ? ours->CanBeClicked() : qobject_cast<const QAbstractButton*>(&control) != nullptr;
}

// In tab order.
QWidget* FirstToWorkWith(const Frame& screen) {
  for (QWidget* control = screen.nextInFocusChain(); control != &screen; control = control->nextInFocusChain()) {
    const bool reached = (control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisibleTo(control->window());
    if (reached && screen.isAncestorOf(control) && !IsJustPressed(*control)) return control;
  }
  return nullptr;
}

}  // namespace

TwipRect NavigationView::PanelPlace() const {
  return PlaceOf(controls_.PictureAt("imgBack"));
}

std::string NavigationView::ShownScreen() const {
  for (std::int16_t index = 0; index < controls_.CountOf(kScreenName); ++index) {
    const Frame& screen = controls_.FrameAt(kScreenName, index);
    if (!screen.isHidden()) return FromQt(screen.accessibleName());
  }
  return {};
}

Frame& NavigationView::ShowFrame(std::string_view name) {
  Frame& shown = ScreenOfName(controls_, name);
  for (std::int16_t index = 0; index < controls_.CountOf(kScreenName); ++index) {
    Frame& screen = controls_.FrameAt(kScreenName, index);
    if (&screen == &shown) {
      screen.show();
    } else {
      HideScreen(screen, form_);
    }
  }
  form_.unsetCursor();
  SetPlace(shown, ScreenPlace(PanelPlace(), PlaceOf(form_).Width));
  shown.SetBackColor(Qt::white);
  shown.raise();
  if (!AnswersKey() || !form_.isVisible()) return shown;
  if (QWidget* first = FirstToWorkWith(shown)) first->setFocus(Qt::ShortcutFocusReason);
  return shown;
}

void NavigationView::OpenLink(std::int16_t link) {
  const Label& label = controls_.LabelAt(kNavName, link);
  const Frame& screen = ShowFrame(FromQt(label.Text()));
  Shape& bar = controls_.ShapeAt("shapeBack");
  SetPlace(bar, SelectionBarPlace(PlaceOf(label).Top, PlaceOf(screen).Left));
  bar.show();
  selected_ = link;
  RestLinks(link);
}

void NavigationView::HoverLink(std::int16_t link) {
  const Label& label = controls_.LabelAt(kNavName, link);
  const LinkLook before{.Color = FromColor(label.TextColor()), .Underlined = label.HasUnderline()};
  SetLook(link, HoveredLink(before, link == selected_));
}

void NavigationView::HoverPanel() {
  for (std::int16_t link = 0; link < controls_.CountOf(kNavName); ++link) {
    if (link != selected_ && !controls_.LabelAt(kNavName, link).isHidden()) SetLook(link, kLinkLeft);
  }
}

void NavigationView::ClickLogo() {
  controls_.PictureAt("imgBackground").hide();
  RestLinks({});
  ShowFrame(kAboutScreen);
}

void NavigationView::RestLinks(std::optional<std::int16_t> selected) {
  for (std::int16_t link = 0; link < controls_.CountOf(kNavName); ++link)
    SetLook(link, RestingLink(link, link == selected));
}

void NavigationView::SetLook(std::int16_t link, const LinkLook& look) {
  Label& label = controls_.LabelAt(kNavName, link);
  label.SetTextColor(ToColor(look.Color));
  label.SetUnderline(look.Underlined);
}

}  // namespace quillon
