#pragma once

// The page "Balanced ranges": which hands to shove, and which to call the shove with, so that neither player gains by
// changing ("study/equilibrium.h"). The amounts are those of the situation until the player types others. The opponent
// holds the situation's range, or any hand.

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "ranges/dialogs/dialog_window.h"
#include "study/balance_texts.h"
#include "study/window/class_grid_view.h"
#include "study/window/legend.h"
#include "study/window/study_page.h"
#include "study/window/study_work.h"
#include "toolkit/text_box.h"

namespace quillon {

class BalancedPage : public StudyPage {
  Q_OBJECT

 public:
  explicit BalancedPage(DialogSurroundings surroundings, QWidget* parent = nullptr);

  [[nodiscard]] QString Title() const override { return QStringLiteral("Balanced ranges"); }

  /// Always nothing: with its own boxes the page can answer for any situation, even before the first analysis.
  [[nodiscard]] std::optional<QString> WhyNothing(const StudySituation& situation) const override;
  void Show(const StudySituation& situation) override;
  void ShowHand(std::int16_t /*index*/) override {}

 Q_SIGNALS:
  /// The calling range was saved and the player told: the lists must be refilled before this returns.
  void CallingRangeSaved(const std::string& name);

 private:
  /// A grid with a heading.
  struct Side {
    QLabel& Heading;
    ClassGridView& Grid;
    ClassCells Cells{};
  };

  [[nodiscard]] BalanceTexts Texts() const;
  void BuildPage();
  void Bind();
  void LeaveBox(TextBox& box);
  void Ask();
  void Search(const BalanceQuestion& question);
  void ShowFound(const BalanceQuestion& question, const std::optional<Equilibrium>& found);
  void ShowNotice(const QString& notice);
  static void ShowSide(const Side& side, const std::string& move, const ClassWeights& played);
  void Tell(std::int16_t index);
  void SaveCall();

  DialogSurroundings around_;
  std::array<TextBox*, 3> boxes_;  // pot, call, shove
  QCheckBox& onlyHis_;
  StudyWork& work_;
  QLabel& notice_;  // in place of the grids
  QWidget& grids_;
  Side shove_;
  Side call_;
  QLabel& worth_;
  QLabel& hand_;
  QWidget& legend_;
  QPushButton& save_;
  std::optional<StudySituation> situation_;
  std::optional<BalanceTexts> asked_;  // the question shown, or being answered
  bool askedOnlyHis_ = false;
  ClassWeights found_{};  // the calling range, while the button can save it
  std::int16_t told_ = 0;
};

}  // namespace quillon
