#pragma once

// The study window: further questions about an analysed situation, on tabbed pages. It shows which situation it is
// about, and keeps it when a new analysis finishes, until the player follows.

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QWidget>
#include <cstdint>
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
  /// The window at its last place, hidden and empty. The equity table must be loaded.
  explicit StudyForm(DialogSurroundings surroundings);

  /// Makes a finished analysis the window's situation.
  void Follow(const Analysis& analysis);

  /// Whether the window is about an analysis of the same situation.
  [[nodiscard]] bool IsAbout(const Analysis& analysis);

  /// Reports a finished analysis: the first is followed at once; a later one is only offered, if its situation differs.
  void Offer(const Analysis& analysis);

  /// Switches to a page and focuses it, and there to a hand.
  void ShowPage(StudyTopic topic, std::optional<std::int16_t> hand = {});

  /// The window's place as settings; none while it is maximised.
  [[nodiscard]] std::vector<IniSetting> PlaceSettings() const;

  [[nodiscard]] QTabWidget& Tabs() const { return tabs_; }

  /// The page of a topic.
  [[nodiscard]] StudyPage* Page(StudyTopic topic) const;

 Q_SIGNALS:
  /// A calling range was saved and the player told: the lists must be refilled before this returns.
  void CallingRangeSaved(const std::string& name);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// A page, and the notice in its place while it has nothing to show.
  struct Leaf {
    StudyTopic Topic = StudyTopic::kLimits;
    StudyPage* Page = nullptr;
    QLabel* Notice = nullptr;
    QStackedWidget* Stack = nullptr;
    bool IsCurrent = false;  // shows the current situation
  };

  void AddPage(StudyTopic topic, StudyPage* page);
  void BindKeys();
  void FollowOffer();
  void ShowCurrent();
  void FocusPage();
  [[nodiscard]] const Leaf& LeafOf(StudyTopic topic) const;
  [[nodiscard]] Leaf& Current();

  DialogSurroundings around_;
  QLabel& about_;
  QPushButton& follow_;
  QTabWidget& tabs_;
  std::vector<Leaf> leaves_;
  HandNumbers hands_;
  StudySituation situation_{.Asked = {}, .Hands = hands_};  // without a scenario before the first analysis
  std::optional<Analysis> offered_;
};

}  // namespace quillon
