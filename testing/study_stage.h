#pragma once

// The study window on a program folder of its own, with boxes that are recorded and answered in advance.

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <string_view>

#include "study/window/study_form.h"
#include "study/window/study_work.h"
#include "testing/bring_to_front.h"
#include "testing/recorded_input.h"
#include "testing/recorded_messages.h"
#include "testing/study_hands.h"
#include "testing/temporary_program.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"

namespace quillon {

/// Finishes a page's work.
inline void FinishWork(const StudyWork& work) {
  const QDeadlineTimer limit(60000);
  while (work.HasWork() && !limit.hasExpired())
    QCoreApplication::processEvents();
  EXPECT_FALSE(work.HasWork());
}

class StudyStage : public testing::Test {
 protected:
  static void SetUpTestSuite() { LoadEquityTable(); }
  ~StudyStage() override { ShowAtScale(1); }

  void Open() { BringToFront(Form); }

  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(Form.windowHandle(), key, held); }

  /// All visible texts, one per line.
  [[nodiscard]] std::string Texts() const {
    std::string texts;
    for (const QLabel* label : Form.findChildren<QLabel*>()) {
      if (label->isVisible()) texts += FromQt(label->text()) + "\n";
    }
    return texts;
  }

  [[nodiscard]] QPushButton& Button(std::string_view text) const {
    for (QPushButton* button : Form.findChildren<QPushButton*>()) {
      if (FromQt(button->text()) == text) return *button;
    }
    throw std::logic_error("no such button");
  }

  TemporaryProgram Program;
  RecordedMessages Messages;
  RecordedInput Inputs;
  ShiftWatch Shift{[] { return false; }};
  DialogSurroundings Around{.Folder = Program.Folder(),
                            .Messages = Messages,
                            .Ask = std::ref(Inputs),
                            .Shift = Shift,
                            .BestFirst = BestFirst};
  StudyForm Form{Around};
};

}  // namespace quillon
