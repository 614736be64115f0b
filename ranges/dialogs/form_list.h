#pragma once

// The drop-down lists and the list box from which a range is chosen. The click event is raised by a selection of the
// user's as well as by one in code, and also where the entry selected was selected before; emptying and filling a list
// raises none.

#include <QComboBox>
#include <QListWidget>
#include <QObject>
#include <QSignalBlocker>
#include <string>
#include <string_view>

#include "ranges/range_lists.h"
#include "toolkit/text.h"

namespace quillon {

class FormChooser : public QObject, public ChooserList {
  Q_OBJECT

 public:
  explicit FormChooser(QComboBox& box);

  [[nodiscard]] std::string ControlName() const override { return FromQt(box_.objectName()); }
  [[nodiscard]] std::string CurrentText() const override { return FromQt(box_.currentText()); }
  void Clear() override;
  void Add(std::string_view text) override;
  [[nodiscard]] int Count() const override { return box_.count(); }
  [[nodiscard]] std::string Entry(int index) const override { return FromQt(box_.itemText(index)); }
  void Select(int index) override;

 Q_SIGNALS:
  void Clicked();

 private:
  QComboBox& box_;
};

class FormListBox : public QObject, public ChooserList {
  Q_OBJECT

 public:
  explicit FormListBox(QListWidget& list);

  [[nodiscard]] std::string ControlName() const override { return FromQt(list_.objectName()); }
  [[nodiscard]] std::string CurrentText() const override;
  void Clear() override;
  void Add(std::string_view text) override;
  [[nodiscard]] int Count() const override { return list_.count(); }
  [[nodiscard]] std::string Entry(int index) const override { return FromQt(list_.item(index)->text()); }
  void Select(int index) override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void Clicked();

 private:
  QListWidget& list_;
  int rowBeforePress_ = -1;  // the selected one when the left mouse button went down
};

}  // namespace quillon
