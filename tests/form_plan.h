#pragma once

// Where the controls of a form are, computed from its tables. A journey uses it to click controls and read them off the
// screen, without asking the program.

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
  /// A form with a card grid gets all of its cells.
  explicit FormPlan(std::span<const ControlTable> tables);

  /// The place of a control, such as "txtNumber(2)" or "lblCards(168)", within the form: pixels at 100%.
  /// std::out_of_range for an unknown name.
  [[nodiscard]] QRect Place(std::string_view objectName) const;

 private:
  void AddTable(const ControlTable& table);
  void AddGrid(const ControlTable& table);
  void Add(const std::string& objectName, const TwipRect& place, std::string_view container);

  std::map<std::string, QRect, std::less<>> places_;
};

}  // namespace quillon
