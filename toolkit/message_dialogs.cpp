#include "toolkit/message_dialogs.h"

#include <QInputDialog>
#include <QLabel>
#include <QScreen>
#include <algorithm>
#include <array>
#include <cstddef>

#include "toolkit/application.h"
#include "toolkit/fonts.h"
#include "toolkit/single_line.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
  constexpr std::array kIcons = {QMessageBox::Information, QMessageBox::Warning, QMessageBox::Question,
                                 QMessageBox::Critical};
  return kIcons.at(static_cast<std::size_t>(icon));
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
  constexpr std::array<QMessageBox::StandardButtons, 3> kButtons = {
      QMessageBox::Ok, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel};
  return kButtons.at(static_cast<std::size_t>(buttons));
}

MessageAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return MessageAnswer::kYes;
    case QMessageBox::No:
      return MessageAnswer::kNo;
    case QMessageBox::Cancel:
      return MessageAnswer::kCancel;
    default:
      return MessageAnswer::kOk;
  }
}

QLabel& TextOf(const QMessageBox& box) {
  return *box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
}

// The maximum width of a box in Qt, which cuts the rest off.
int WidestBox(const QMessageBox& box) {
  constexpr int kSmallScreen = 1024;
  constexpr int kBeside = 480;
  constexpr int kMost = 1000;
  const int screen = box.screen()->availableGeometry().width();
  return screen <= kSmallScreen ? screen : std::min(screen - kBeside, kMost);
}

// Qt wraps the text if a box becomes wider than 500 pixels, whatever its scale. The text gets this much of them; the
// icon and the margins some more.
void WidenToScale(const QMessageBox& box) {
  constexpr int kTextWidth = 427;
  constexpr int kBesideText = 72;
  if (PixelScale() <= 1) return;
  QLabel& text = TextOf(box);
  text.setMinimumWidth(
      std::min({text.sizeHint().width(), LinePixels(kTextWidth), WidestBox(box) - LinePixels(kBesideText)}));
}

}  // namespace

void FillMessageBox(QMessageBox& box, const Message& message) {
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.setWindowTitle(ToQt(message.title));
  box.setText(ToQt(message.text));
  if (message.columns) {
    TextOf(box).setFont(FormFont({.Family = "Courier New", .Points = kDialogFont.Points}, {}));
  }
  WidenToScale(box);
  box.setIcon(IconOf(message.icon));
  box.setStandardButtons(ButtonsOf(message.buttons));
  box.setDefaultButton(message.buttons == MessageButtons::kOk ? QMessageBox::Ok : QMessageBox::Yes);
  // Escape and the close box give the answer that changes nothing.
  if (message.buttons == MessageButtons::kYesNo) box.setEscapeButton(QMessageBox::No);
}

MessageAnswer MessageDialogs::Show(const Message& message) {
  QMessageBox box(AskingWindow());
  FillMessageBox(box, message);
  return AnswerOf(box.exec());
}

std::string AskForLine(const LineQuestion& question) {
  QInputDialog box(AskingWindow());
  box.setWindowTitle(ToQt(question.Title));
  box.setLabelText(ToQt(question.Prompt));
  box.setInputMode(QInputDialog::TextInput);
  KeepToOneLine(*box.findChild<QLineEdit*>());
  box.setTextValue(ToQt(question.Proposal));
  return box.exec() == QDialog::Accepted ? FromQt(box.textValue()) : std::string();
}

}  // namespace quillon
