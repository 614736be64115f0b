#pragma once

// The side panel and the screens of the main window, one of which shows at a time ("shell/navigation.h").

#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "shell/navigation.h"
#include "shell/screens/main_layout.h"

namespace quillon {

class NavigationView {
 public:
  NavigationView(QWidget& form, const MainControls& controls) : form_(form), controls_(controls) {}

  /// The place of the panel's background.
  [[nodiscard]] TwipRect PanelPlace() const;

  /// The name of the visible screen.
  [[nodiscard]] std::string ShownScreen() const;

  /// Shows the screen of exactly that name, white and in front of all others, which are hidden, and returns it. Resets
  /// the mouse pointer. In response to a key ("toolkit/application.h"), the first control of the screen that is not
  /// just a button gets the focus, such as its first box; otherwise a focus on the hidden screen is dropped.
  /// There must be a screen of that name.
  Frame& ShowFrame(std::string_view name);

  /// Shows the screen of `lblNav(link)`, moves the selection bar behind the link, and selects it.
  void OpenLink(std::int16_t link);

  /// The mouse over `lblNav(link)`, and over the panel's background.
  void HoverLink(std::int16_t link);
  void HoverPanel();

  /// The click on `picLogo`: the About screen is shown and no link looks selected. Intentional: the last link is still
  /// remembered, and the selection bar stays behind it, to lead a player back.
  void ClickLogo();

 private:
  void RestLinks(std::optional<std::int16_t> selected);
  void SetLook(std::int16_t link, const LinkLook& look);

  QWidget& form_;
  const MainControls& controls_;
  std::optional<std::int16_t> selected_;
};

}  // namespace quillon
