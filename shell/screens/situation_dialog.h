#pragma once

// The list that Ctrl+O shows, for opening a saved situation. Typing jumps to the next name that starts so; Enter and a
// double click open, Esc cancels, Del deletes after a question.

#include <QDialog>
#include <QListWidget>
#include <string>
#include <string_view>

#include "ranges/range_files.h"
#include "support/message_boxes.h"
#include "toolkit/focus_mark.h"
#include "toolkit/form_list.h"

namespace quillon {

class SituationDialog : public QDialog {
  Q_OBJECT

 public:
  /// The list over `parent`, with the situation of that name selected, or else the first. Fails as SituationNames does.
  SituationDialog(QWidget* parent, ProgramFolder folder, MessageBoxes& messages, std::string_view selected);

  /// The selected name; empty if there are none.
  [[nodiscard]] std::string Name() const { return entries_.CurrentText(); }

 private:
  void Fill(std::string_view selected);
  void Delete();

  ProgramFolder folder_;
  MessageBoxes& messages_;
  QListWidget& list_;
  FormListBox entries_;
  FocusMark focusMark_{*this};
};

}  // namespace quillon
