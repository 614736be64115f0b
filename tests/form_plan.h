#pragma once

// Where the controls of a form are, computed from the tables that it is built from. A journey looks up here what it
// clicks and what it reads off the screen; nothing is asked of the program.

#include <QPoint>
#include <QRect>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "toolkit/control_row.h"

namespace quillon {

class FormPlan {
 public:
  /// A form with a card grid has all of its cells, on a screen as well as on a dialog.
  explicit FormPlan(std::span<const ControlTable> tables);

  /// The place of a control, such as "txtNumber(2)" or "lblCards(168)", within the form: pixels at 100%.
  /// std::out_of_range for a name that is not there.
  [[nodiscard]] QRect Place(std::string_view objectName) const;

 private:
  void AddTable(const ControlTable& table);
  void AddGrid(const ControlTable& table);
  void Add(const std::string& objectName, const TwipRect& place, std::string_view container);

  std::map<std::string, QRect, std::less<>> places_;
};

}  // namespace quillon
