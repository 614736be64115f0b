#pragma once

// The study window: what else can be asked about a situation that has been analysed. Its pages are tabs. It is about
// one situation, which it tells, and keeps that when a new analysis finishes, until the player follows.

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "analysis/analysis.h"
#include "analysis/range_sources.h"
#include "ranges/dialogs/dialog_window.h"
#include "shell/settings_file.h"
#include "study/window/study_page.h"

namespace quillon {

inline constexpr std::string_view kStudyTitle = "Study";

class StudyForm : public QWidget {
  Q_OBJECT

 public:
  /// The window where it was last, hidden, about nothing yet.
  explicit StudyForm(DialogSurroundings surroundings);

  /// Takes a finished analysis as the situation that the window is about. The equity table must have been loaded.
  void Follow(const Analysis& analysis);

  /// Whether the window is about an analysis that asks the same.
  [[nodiscard]] bool IsAbout(const Analysis& analysis);

  /// Tells of a finished analysis: the first is followed at once, a later one only offered, where it asks something
  /// else.
  void Offer(const Analysis& analysis);

  /// Turns to a page, which gets the keyboard, and there to a hand; to the first page where that page is not one of the
  /// window's.
  void ShowPage(StudyTopic topic, std::optional<std::int16_t> hand = {});

  /// Where the window is, as settings; nothing while it is maximised, when it is nowhere of its own.
  [[nodiscard]] std::vector<IniSetting> PlaceSettings() const;

  [[nodiscard]] QTabWidget& Tabs() const { return tabs_; }

  /// The page of a topic; null where the window has none.
  [[nodiscard]] StudyPage* Page(StudyTopic topic) const;

 Q_SIGNALS:
  /// A range to call a shove with was saved and the player told: lists are to be filled anew before this returns.
  void CallingRangeSaved(const std::string& name);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// A page, and the notice that shows in its place while it has nothing to show.
  struct Leaf {
    StudyTopic Topic = StudyTopic::kLimits;
    StudyPage* Page = nullptr;
    QLabel* Notice = nullptr;
    QStackedWidget* Stack = nullptr;
    bool IsCurrent = false;  // has been shown the situation
  };

  void AddPage(StudyTopic topic, StudyPage* page);
  void BindKeys();
  void FollowOffer();
  void ShowCurrent();
  void FocusPage();
  [[nodiscard]] Leaf& Current();
  [[nodiscard]] const HandNumbers& Hands();

  DialogSurroundings around_;
  QLabel& about_;
  QPushButton& follow_;
  QTabWidget& tabs_;
  std::vector<Leaf> leaves_;
  std::unique_ptr<HandNumbers> hands_;  // read when they are needed first
  StudySituation situation_;  // without a scenario before the first analysis
  std::optional<Analysis> offered_;
};

}  // namespace quillon
