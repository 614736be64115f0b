#include "shell/screens/about_view.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QUrl>
#include <chrono>
#include <utility>

#include "toolkit/browser.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

constexpr std::int16_t kUpgradeLink = 3;

std::int32_t SystemMilliseconds() {
  using std::chrono::milliseconds;
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::int32_t>(std::chrono::duration_cast<milliseconds>(now).count());
}

}  // namespace

AboutView::AboutView(FormControls& controls, MessageBoxes& messages, InputBoxes& inputs,
                     std::function<std::int32_t()> clock)
    : controls_(controls),
      messages_(messages),
      inputs_(inputs),
      clock_(clock ? std::move(clock) : SystemMilliseconds) {}

void AboutView::SetVersionCaption(std::string_view caption) {
  controls_.LabelAt("lblVersion").SetText(ToQt(caption));
}

void AboutView::SetCurrentVersionCaption(std::string_view caption) {
  Label& label = controls_.LabelAt("lblCurrentVersion");
  label.SetText(ToQt(caption));
  if (label.isVisible()) label.repaint();
}

CheckBoxState AboutView::UpgradeBox() const {
  switch (controls_.Get<QCheckBox>("chkUpgrade").checkState()) {
    case Qt::Unchecked:
      return CheckBoxState::kUnchecked;
    case Qt::PartiallyChecked:
      return CheckBoxState::kGrayed;
    case Qt::Checked:
      break;
  }
  return CheckBoxState::kChecked;
}

void AboutView::SetUpgradeBox(CheckBoxState state) {
  auto& box = controls_.Get<QCheckBox>("chkUpgrade");
  switch (state) {
    case CheckBoxState::kUnchecked:
      box.setCheckState(Qt::Unchecked);
      break;
    case CheckBoxState::kChecked:
      box.setCheckState(Qt::Checked);
      break;
    case CheckBoxState::kGrayed:
      box.setCheckState(Qt::PartiallyChecked);
      break;
  }
}

void AboutView::SetUpgradeLinkVisible(bool visible) {
  controls_.LabelAt("lblLink", kUpgradeLink).setVisible(visible);
}

void AboutView::SetUpgradeLinkCaption(std::string_view caption) {
  controls_.LabelAt("lblLink", kUpgradeLink).SetText(ToQt(caption));
}

void AboutView::OpenAddress(std::string_view address) {
  if (address.empty()) return;
  OpenInBrowser(QUrl(ToQt(address)), [this, text = std::string(address)] {
    messages_.Show({.title = std::string(kApplicationTitle),
                    .text = "No browser was found on this machine. The address is:\r\n\r\n" + text,
                    .icon = MessageIcon::kExclamation});
  });
}

std::string AboutView::FeedbackText() const {
  // What Qt calls the plain text has a blank where the box has a no-break space.
  QString text = controls_.Get<QPlainTextEdit>("txtFeedback").document()->toRawText();
  for (const QChar lineEnd : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
    text.replace(lineEnd, QLatin1Char('\n'));
  return LinesFromQt(text);
}

void AboutView::SetFeedbackText(std::string_view text) {
  controls_.Get<QPlainTextEdit>("txtFeedback").setPlainText(ToQt(text));
}

void AboutView::SetHourglass(bool shown) {
  if (shown) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    return;
  }
  while (QGuiApplication::overrideCursor() != nullptr)
    QGuiApplication::restoreOverrideCursor();
}

void AboutView::Yield() {
  QCoreApplication::processEvents();
}

}  // namespace quillon
