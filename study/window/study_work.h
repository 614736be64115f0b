#pragma once

// Long work of a page, done in short steps between window events, so that everything stays live and nothing runs twice
// at a time. Work that ends before a player notices shows nothing. Longer work shows its progress; it can be stopped by
// its button or Escape, and resumed. It pauses while the page is hidden.

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>

namespace quillon {

class StudyWork : public QWidget {
  Q_OBJECT

 public:
  /// A step of a few milliseconds at most: returns the share of the work that is done, 0 to 1, and nothing at its end.
  using Step = std::function<std::optional<double>()>;

  /// Hidden, with nothing to do.
  explicit StudyWork(QWidget* parent = nullptr);

  /// Replaces the work. `what` is shown and announced, such as "Finding balanced ranges"; `finished` is called once
  /// after the last step, possibly within this call.
  void Start(const QString& what, Step step, std::function<void()> finished);

  /// Drops the work.
  void Drop();

  /// Whether there is unfinished work, running or stopped.
  [[nodiscard]] bool HasWork() const { return static_cast<bool>(step_); }

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void GoOnFor(int milliseconds);
  void StopOrGoOn();
  void ShowState();

  QLabel& text_;
  QProgressBar& bar_;
  QPushButton& button_;
  QShortcut& escape_;
  QTimer timer_;
  QString what_;
  Step step_;
  std::function<void()> finished_;
  bool stopped_ = false;
};

}  // namespace quillon
