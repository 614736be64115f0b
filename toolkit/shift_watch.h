#pragma once

// Observes the Shift keys in all windows of the program, and answers the Shift test for clicks on a card grid.

#include <QEvent>
#include <QObject>
#include <functional>

#include "ranges/shift_keys.h"

class QKeyEvent;

namespace quillon {

class ShiftWatch : public QObject {
  Q_OBJECT

 public:
  /// Sees every key event of the program from now on. `isHeld` says whether a Shift key is down at the moment; by
  /// default the window system is asked.
  explicit ShiftWatch(std::function<bool()> isHeld = {}, QObject* parent = nullptr);

  /// The Shift test: "ranges/shift_keys.h". Asking changes the next answer.
  [[nodiscard]] bool Ask() { return keys_.Ask(isHeld_()); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Seen {
    QEvent::Type What = QEvent::None;
    quint64 When = 0;

    bool operator==(const Seen&) const = default;
  };

  [[nodiscard]] bool IsKnown(const QKeyEvent& key);

  std::function<bool()> isHeld_;
  ShiftKeys keys_;
  Seen last_;
};

}  // namespace quillon
