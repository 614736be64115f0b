#pragma once

// A page of the study window. It keeps the situation that it was last shown. A hidden page gets no calls: it is shown
// the situation when the player switches to it. Its focus proxy is the control that the player begins with.

#include <QString>
#include <QWidget>
#include <cstdint>
#include <optional>

#include "study/study_situation.h"

namespace quillon {

/// The pages in the order of their tabs.
enum class StudyTopic : std::uint8_t { kLimits, kHowFar, kWidth, kBalanced };

class StudyPage : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  /// The text of the page's tab.
  [[nodiscard]] virtual QString Title() const = 0;

  /// A sentence on why the page has nothing for a situation, or nothing if it has. By default it has nothing for
  /// situations without amounts, and before the first analysis.
  [[nodiscard]] virtual std::optional<QString> WhyNothing(const StudySituation& situation) const;

  /// Shows a situation that the page has something for. `situation` must be copied.
  virtual void Show(const StudySituation& situation) = 0;

  /// Goes to a hand of the current situation, if the page shows hands one by one.
  virtual void ShowHand(std::int16_t index) = 0;

 Q_SIGNALS:
  /// The player wants to see this hand on another page.
  void HandAsked(StudyTopic topic, qint16 index);
};

}  // namespace quillon
