#pragma once

// The drop-down lists and the list box for choosing a range. A selection, by the user or in code, raises the click
// event, also if the entry was selected already; clearing and filling a list does not. The list box always has a
// selection: only selecting another entry changes it.
//
// A name that is too long for its list ends with an ellipsis, and its tool tip has it in full.

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

  /// The selected entry; the empty text if none is selected.
  [[nodiscard]] std::string CurrentText() const { return FromQt(box_.currentText()); }

  /// Replaces the entries, and selects one of them by a click.
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

  /// As for FormChooser.
  [[nodiscard]] std::string CurrentText() const;
  void Show(const RangeListContents& contents);
  void SelectEntry(std::string_view name);

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void Clicked();

 private:
  void Select(int index);

  QListWidget& list_;
  int rowBeforePress_ = -1;  // the selected row when the left mouse button was pressed
};

}  // namespace quillon
