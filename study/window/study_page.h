#pragma once

// A page of the study window. It is shown a situation and keeps it until it is shown another one. A page is asked for
// nothing while it is hidden: it is shown the situation when the player comes to it.

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

  /// What the page's tab says.
  [[nodiscard]] virtual QString Title() const = 0;

  /// Why the page has nothing for a situation, in a sentence; nothing where it has. By default situations without
  /// amounts have nothing, and so has the one without a scenario, before the first analysis.
  [[nodiscard]] virtual std::optional<QString> WhyNothing(const StudySituation& situation) const;

  /// Shows what the page has for a situation, one that it has something for. `situation` is a value to copy.
  virtual void Show(const StudySituation& situation) = 0;

  /// Turns to a hand of the situation that is shown, where the page can. By default nothing happens.
  virtual void ShowHand(std::int16_t index);

 Q_SIGNALS:
  /// The player wants to see what another page says of a hand.
  void HandAsked(StudyTopic topic, qint16 index);
};

}  // namespace quillon
