#pragma once

// For tests: the side panel and the screens as values, and a line for every change that is made to them.

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "shell/navigation.h"
#include "support/number_text.h"
#include "support/rgb.h"
#include "support/twips.h"

namespace quillon {

/// "(left, top, width, height)"
inline std::string RectText(TwipRect rect) {
  return "(" + FloatNumberText(rect.Left) + ", " + FloatNumberText(rect.Top) + ", " + FloatNumberText(rect.Width) +
         ", " + FloatNumberText(rect.Height) + ")";
}

/// The panel and screens, apart from any window: what RecordedNavigation and the main window of the start-up tests
/// share.
struct PanelAndScreens {
  struct Screen {
    std::string Caption;
    TwipRect Rect = {.Left = 500, .Top = 600, .Width = 12000, .Height = 8000};
    bool Visible = false;
    bool Bordered = true;
    Rgb Color = {1, 2, 3};
  };
  struct Link {
    std::string Caption;
    float Top = 0;
    Rgb Color = {1, 2, 3};
    bool Visible = true;
    bool Underlined = false;
  };

  std::vector<Screen> Screens = {{.Caption = "Preflop Call"}, {.Caption = "ALL IN Grid"},   {.Caption = "Details"},
                                 {.Caption = "Progress"},     {.Caption = "Preflop Raise"}, {.Caption = "About"},
                                 {.Caption = "Equity Only"}};
  std::vector<Link> Links = {{.Caption = "Preflop Call", .Top = 2160},
                             {.Caption = "Preflop Raise", .Top = 2700},
                             {.Caption = "Equity Only", .Top = 3240},
                             {.Caption = "ALL IN Grid", .Top = 4200},
                             {.Caption = "Details", .Top = 4680}};
  TwipRect Bar = {.Left = 0, .Top = 10440, .Width = 3255, .Height = 555};
  bool BarVisible = false;
  std::vector<std::string> Log;

  /// The captions of the screens that show.
  [[nodiscard]] std::vector<std::string> Shown() const {
    std::vector<std::string> captions;
    for (const Screen& screen : Screens) {
      if (screen.Visible) captions.push_back(screen.Caption);
    }
    return captions;
  }

  /// How a link looks: its colour, and "underlined" where it is.
  [[nodiscard]] std::string Look(std::int16_t index) const {
    const Link& link = Links.at(static_cast<std::size_t>(index));
    return ColorText(link.Color) + (link.Underlined ? " underlined" : "");
  }

  [[nodiscard]] std::vector<std::string> Looks() const {
    std::vector<std::string> looks;
    for (std::int16_t index = 0; index < static_cast<std::int16_t>(Links.size()); ++index)
      looks.push_back(Look(index));
    return looks;
  }
};

/// Implements the operations of `Base`, NavigationWindow or what derives from it, on `Panel`.
template <typename Base>
class RecordedNavigationOf : public Base {
 public:
  PanelAndScreens Panel;
  TwipSize Size = {.Width = 15300, .Height = 9045};

  [[nodiscard]] TwipSize WindowSize() const override { return Size; }
  [[nodiscard]] TwipRect PanelRect() const override { return {.Left = 0, .Top = 1440, .Width = 3300, .Height = 9000}; }

  [[nodiscard]] std::int16_t FrameCount() const override { return static_cast<std::int16_t>(Panel.Screens.size()); }
  [[nodiscard]] std::string FrameCaption(std::int16_t index) const override { return Screen(index).Caption; }
  [[nodiscard]] TwipRect FrameRect(std::int16_t index) const override { return Screen(index).Rect; }
  void SetFrameVisible(std::int16_t index, bool visible) override {
    Screen(index).Visible = visible;
    Note((visible ? "show frame " : "hide frame ") + std::to_string(index));
  }
  void SetFrameRect(std::int16_t index, TwipRect rect) override {
    Screen(index).Rect = rect;
    Note("place frame " + std::to_string(index) + " " + RectText(rect));
  }
  void SetFrameColor(std::int16_t index, Rgb color) override {
    Screen(index).Color = color;
    Note("paint frame " + std::to_string(index) + " " + ColorText(color));
  }
  void RemoveFrameBorder(std::int16_t index) override {
    Screen(index).Bordered = false;
    Note("unborder frame " + std::to_string(index));
  }
  void RaiseFrame(std::int16_t index) override { Note("raise frame " + std::to_string(index)); }

  [[nodiscard]] std::int16_t NavCount() const override { return static_cast<std::int16_t>(Panel.Links.size()); }
  [[nodiscard]] std::string NavCaption(std::int16_t index) const override { return Link(index).Caption; }
  [[nodiscard]] float NavTop(std::int16_t index) const override { return Link(index).Top; }
  [[nodiscard]] bool IsNavVisible(std::int16_t index) const override { return Link(index).Visible; }
  [[nodiscard]] bool IsNavUnderlined(std::int16_t index) const override { return Link(index).Underlined; }
  void SetNavColor(std::int16_t index, Rgb color) override {
    Link(index).Color = color;
    Note("link " + std::to_string(index) + " " + ColorText(color));
  }
  void SetNavUnderline(std::int16_t index, bool underline) override {
    Link(index).Underlined = underline;
    Note("link " + std::to_string(index) + (underline ? " underlined" : " plain"));
  }

  void SetSelectionBarRect(TwipRect rect) override {
    Panel.Bar = rect;
    Note("place bar " + RectText(rect));
  }
  void ShowSelectionBar() override {
    Panel.BarVisible = true;
    Note("show bar");
  }

  void SetDefaultPointer() override { Note("default pointer"); }
  void ShowHandCursor() override { Note("hand cursor"); }
  void HidePanelFooter() override { Note("hide imgBackground"); }
  void RefreshRangeLists() override { Note("refresh range lists"); }
  void SelectOutputType(std::int16_t index) override { Note("select output type " + std::to_string(index)); }
  void BuildReport() override { Note("build report"); }

 protected:
  void Note(std::string line) { Panel.Log.push_back(std::move(line)); }

 private:
  [[nodiscard]] PanelAndScreens::Screen& Screen(std::int16_t index) {
    return Panel.Screens.at(static_cast<std::size_t>(index));
  }
  [[nodiscard]] const PanelAndScreens::Screen& Screen(std::int16_t index) const {
    return Panel.Screens.at(static_cast<std::size_t>(index));
  }
  [[nodiscard]] PanelAndScreens::Link& Link(std::int16_t index) {
    return Panel.Links.at(static_cast<std::size_t>(index));
  }
  [[nodiscard]] const PanelAndScreens::Link& Link(std::int16_t index) const {
    return Panel.Links.at(static_cast<std::size_t>(index));
  }
};

using RecordedNavigation = RecordedNavigationOf<NavigationWindow>;

}  // namespace quillon
