#pragma once

// The page "Limits": up to which amount each hand calls, or shoves. Hands that lose at the situation's amount are pale.

#include <QLabel>

#include "study/limits.h"
#include "study/window/class_grid_view.h"
#include "study/window/legend.h"
#include "study/window/study_page.h"

namespace quillon {

class LimitsPage : public StudyPage {
  Q_OBJECT

 public:
  explicit LimitsPage(QWidget* parent = nullptr);

  [[nodiscard]] QString Title() const override { return QStringLiteral("Limits"); }
  void Show(const StudySituation& situation) override;
  void ShowHand(std::int16_t index) override;

  [[nodiscard]] ClassGridView& Grid() const { return grid_; }

 private:
  void Tell(std::int16_t index);
  void CopyTable();

  ClassGridView& grid_;
  QLabel& title_;
  QLabel& summary_;
  QLabel& hand_;
  QLabel& words_;
  QWidget& legend_;
  std::int16_t told_ = 0;
  Limits limits_{};
  double now_ = 0;  // the situation's amount
};

}  // namespace quillon
