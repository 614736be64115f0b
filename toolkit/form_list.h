#pragma once

// The drop-down lists and the list box from which a range is chosen. The click event is raised by a selection of the
// user's as well as by one in code, and also where the entry selected was selected before; emptying and filling a list
// raises none. The current entry of the list box is always selected: only another entry takes the selection from it.
//
// A name that is too long for its list ends with an ellipsis, and its tool tip has it whole.

#include <QComboBox>
#include <QListWidget>
#include <QObject>
#include <QSignalBlocker>
#include <string>
#include <string_view>

#include "ranges/range_lists.h"
#include "toolkit/text.h"

namespace quillon {

class FormChooser : public QObject {
  Q_OBJECT

 public:
  explicit FormChooser(QComboBox& box);

  /// The selected entry, the empty text if none is selected.
  [[nodiscard]] std::string CurrentText() const { return FromQt(box_.currentText()); }

  /// Puts these entries in place of all others, and selects one of them by a click.
  void Show(const RangeListContents& contents);

  /// Selects the first entry equal to `name` by a click; does nothing if there is none.
  void SelectEntry(std::string_view name);

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void Clicked();

 private:
  void Select(int index);
  void ShowTip();

  QComboBox& box_;
};

class FormListBox : public QObject {
  Q_OBJECT

 public:
  explicit FormListBox(QListWidget& list);

  /// As those of FormChooser.
  [[nodiscard]] std::string CurrentText() const;
  void Show(const RangeListContents& contents);
  void SelectEntry(std::string_view name);

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void Clicked();

 private:
  void Select(int index);

  QListWidget& list_;
  int rowBeforePress_ = -1;  // the selected one when the left mouse button went down
};

}  // namespace quillon
