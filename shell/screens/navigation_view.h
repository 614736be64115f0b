#pragma once

// The side panel and the screens of the main window, one of which shows at a time ("shell/navigation.h").

#include <QWidget>
#include <cstdint>
#include <string>
#include <string_view>

#include "shell/navigation.h"
#include "shell/screens/main_layout.h"

namespace quillon {

class NavigationView {
 public:
  NavigationView(QWidget& form, const MainControls& controls) : form_(form), controls_(controls) {}

  /// Where the panel's background lies.
  [[nodiscard]] TwipRect PanelPlace() const;

  /// The name of the screen that shows.
  [[nodiscard]] std::string ShownScreen() const;

  /// Shows the screen of that name, exactly that, white and in front of all others, which are hidden, and returns it. A
  /// waiting pointer ends. In answer to a key ("toolkit/application.h"), the first control of the screen that is not
  /// just pressed has the focus then, such as its first box; a focus that was on a screen that goes is nobody's
  /// otherwise. RunTimeError "Invalid procedure call or argument", with nothing changed, if no screen has that name.
  Frame& ShowFrame(std::string_view name);

  /// Brings up the screen of `lblNav(link)`, moves the selection bar behind the link, and makes it the selected one.
  void OpenLink(std::int16_t link);

  /// The mouse over `lblNav(link)`, and over the panel's background.
  void HoverLink(std::int16_t link);
  void HoverPanel();

  /// The click on `picLogo`: the About screen comes up and no link looks selected. Intentional: the last link is still
  /// remembered, and the selection bar stays behind it, to lead a player back.
  void ClickLogo();

 private:
  void RestLinks(std::int16_t selected);
  void SetLook(std::int16_t link, const LinkLook& look);

  QWidget& form_;
  const MainControls& controls_;
  std::int16_t selected_ = kNoNav;
};

}  // namespace quillon
