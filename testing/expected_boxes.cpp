#include "testing/expected_boxes.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <array>
#include <cstddef>
#include <deque>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>

#include "toolkit/text.h"

namespace quillon {
namespace {

struct ExpectedBox {
  std::string Description;
  std::function<void(QDialog&)> Answer;
};

// Judged by what the box shows, so that a wrongly set-up box cannot pass.
std::string IconText(QMessageBox::Icon icon) {
  constexpr std::array kTexts = {"no icon", "information", "exclamation", "stop", "question"};  // in Qt's order
  return kTexts.at(icon);
}

// In the order of MessageIcon, MessageButtons and MessageAnswer.
constexpr std::array kIconTexts = {"information", "exclamation", "question", "stop"};
constexpr std::array kButtonsTexts = {" OK", " Yes No", " Yes No Cancel"};
constexpr std::array kButtons = {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};

std::string ButtonsText(QMessageBox::StandardButtons buttons) {
  std::string text;
  const auto append = [&](QMessageBox::StandardButton button, const char* name) {
    if (buttons.testFlag(button)) text += name;
    buttons.setFlag(button, false);
  };
  append(QMessageBox::Ok, " OK");
  append(QMessageBox::Yes, " Yes");
  append(QMessageBox::No, " No");
  append(QMessageBox::Cancel, " Cancel");
  if (buttons != QMessageBox::NoButton) text += " and others";
  return text;
}

std::string Describe(const Message& message) {
  return "message box \"" + message.title + "\" (" + kIconTexts.at(static_cast<std::size_t>(message.icon)) + "," +
         kButtonsTexts.at(static_cast<std::size_t>(message.buttons)) + "): " + message.text;
}

std::string Describe(const InputQuestion& question) {
  return "input box \"" + question.title + "\": " + question.prompt + " [" + question.defaultText + "]";
}

std::string Describe(const QDialog& dialog) {
  if (const auto* box = qobject_cast<const QMessageBox*>(&dialog)) {
    return "message box \"" + FromQt(box->windowTitle()) + "\" (" + IconText(box->icon()) + "," +
           ButtonsText(box->standardButtons()) + "): " + LinesFromQt(box->text());
  }
  if (const auto* box = qobject_cast<const QInputDialog*>(&dialog)) {
    return Describe(InputQuestion{LinesFromQt(box->labelText()), FromQt(box->windowTitle()), FromQt(box->textValue())});
  }
  return std::string(dialog.metaObject()->className()) + " \"" + FromQt(dialog.windowTitle()) + "\"";
}

void Dismiss(QDialog& dialog) {
  dialog.close();
  if (dialog.isVisible()) dialog.reject();  // a message box without a cancel button cannot be closed
}

void ClickButton(QDialog& dialog, QDialogButtonBox::StandardButton button) {
  auto* buttons = dialog.findChild<QDialogButtonBox*>();
  if (QPushButton* found = buttons == nullptr ? nullptr : buttons->button(button)) found->click();
}

class BoxWatch : public QObject, public testing::EmptyTestEventListener {
 public:
  void Expect(ExpectedBox box) { expected_.push_back(std::move(box)); }

  void Verify() {
    for (const ExpectedBox& box : std::exchange(expected_, {})) {
      ADD_FAILURE() << "This box has not come: " << box.Description;
    }
  }

  void OnTestEnd(const testing::TestInfo& /*test*/) override { Verify(); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Show) return false;
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog == nullptr || !dialog->isModal()) return false;
    // Runs in the box's own event loop.
    QMetaObject::invokeMethod(
        this,
        [this, shown = QPointer<QDialog>(dialog)] {
          QDialog* stillThere = shown.data();
          if (stillThere != nullptr && stillThere->isVisible()) Meet(*stillThere);
        },
        Qt::QueuedConnection);
    return false;
  }

 private:
  void Meet(QDialog& dialog) {
    if (expected_.empty()) {
      ADD_FAILURE() << "Unexpected box: " << Describe(dialog);
      Dismiss(dialog);
      return;
    }
    const ExpectedBox expected = expected_.front();
    expected_.pop_front();
    const std::string description = Describe(dialog);
    expected.Answer(dialog);
    if (!dialog.isVisible()) return;
    ADD_FAILURE() << "This box was answered but is still open: " << description;
    Dismiss(dialog);
  }

  std::deque<ExpectedBox> expected_;
};

// GoogleTest owns it.
BoxWatch& Watch() {
  static auto* const watch = new BoxWatch;
  return *watch;
}

// Whether the box shows what it should; closes it otherwise.
bool ShowsThis(QDialog& dialog, const std::string& description) {
  const std::string shown = Describe(dialog);
  if (shown == description) return true;
  ADD_FAILURE() << "Not the box that was expected.\nExpected: " << description << "\n   Shown: " << shown;
  Dismiss(dialog);
  return false;
}

void ExpectBox(const std::string& description, std::function<void(QDialog&)> answer) {
  Watch().Expect({description, [description, answer = std::move(answer)](QDialog& dialog) {
                    if (ShowsThis(dialog, description)) answer(dialog);
                  }});
}

}  // namespace

void ExpectMessageBox(const Message& message, MessageAnswer answer) {
  ExpectBox(Describe(message), [answer](QDialog& dialog) {
    QAbstractButton* button = dynamic_cast<QMessageBox&>(dialog).button(kButtons.at(static_cast<std::size_t>(answer)));
    if (button != nullptr) button->click();
  });
}

void ExpectMessageBoxClosed(const Message& message) {
  ExpectBox(Describe(message), [](QDialog& dialog) { dialog.close(); });
}

void ExpectInputBox(const InputQuestion& question, std::string_view answer) {
  ExpectBox(Describe(question), [text = ToQt(answer)](QDialog& dialog) {
    dynamic_cast<QInputDialog&>(dialog).setTextValue(text);
    ClickButton(dialog, QDialogButtonBox::Ok);
  });
}

void ExpectInputBoxCancelled(const InputQuestion& question) {
  ExpectBox(Describe(question), [](QDialog& dialog) { ClickButton(dialog, QDialogButtonBox::Cancel); });
}

void ExpectDialog(std::function<void(QDialog& dialog)> answer) {
  Watch().Expect({"a dialog", std::move(answer)});
}

void VerifyExpectedBoxes() {
  Watch().Verify();
}

void StartWatchingBoxes() {
  qApp->installEventFilter(&Watch());
  testing::UnitTest::GetInstance()->listeners().Append(&Watch());
}

}  // namespace quillon
