#include "shell/screens/about_view.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QUrl>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <optional>
#include <utility>

#include "results/web_addresses.h"
#include "shell/feedback.h"
#include "shell/version.h"
#include "toolkit/browser.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

constexpr std::int16_t kUpgradeLink = 3;

// Shows or removes the hourglass pointer over the whole program, whoever set it.
void ShowHourglass(bool shown) {
  if (shown) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    return;
  }
  while (QGuiApplication::overrideCursor() != nullptr)
    QGuiApplication::restoreOverrideCursor();
}

constexpr std::array kCheckStates = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};  // by CheckBoxState

Qt::CheckState CheckStateOf(CheckBoxState state) {
  return kCheckStates.at(static_cast<std::size_t>(state));
}

CheckBoxState StateOf(const QCheckBox& box) {
  return static_cast<CheckBoxState>(std::ranges::find(kCheckStates, box.checkState()) - kCheckStates.begin());
}

}  // namespace

std::int32_t SystemMilliseconds() {
  using std::chrono::milliseconds;
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::int32_t>(std::chrono::duration_cast<milliseconds>(now).count());
}

AboutView::AboutView(const MainControls& controls, Surroundings surroundings)
    : controls_(controls), around_(std::move(surroundings)) {}

void AboutView::CheckForUpgrade() {
  Label& link = controls_.LabelAt("lblLink", kUpgradeLink);
  controls_.LabelAt("lblVersion").SetText(ToQt(kVersionText));
  ShowCurrentVersion(kUpgradeOffCaption);
  const CheckBoxState state = StoredUpgradeBox(around_.Folder);
  controls_.Get<QCheckBox>("chkUpgrade").setCheckState(CheckStateOf(state));
  if (state != CheckBoxState::kChecked) return link.hide();

  ShowCurrentVersion(kUpgradeAskedCaption);
  const UpgradeLook look = UpgradeLookOf(around_.Web(VersionFileAddress()));
  ShowCurrentVersion(look.CurrentVersion);
  link.setVisible(!look.Link.empty());
  if (!look.Link.empty()) link.SetText(ToQt(look.Link));
}

void AboutView::ClickUpgrade() {
  StoreUpgradeBox(StateOf(controls_.Get<QCheckBox>("chkUpgrade")), around_.Folder);
  CheckForUpgrade();
}

void AboutView::ClickLink(const Label& link) {
  const LinkTarget target = TargetOfLink(FromQt(link.Text()));
  if (target.Told) around_.Messages.Show(*target.Told);
  if (target.Address.empty()) return;
  OpenInBrowser(QUrl(ToQt(target.Address)),
                [this, address = target.Address] { around_.Messages.Show(NoBrowserMessage(address)); });
}

void AboutView::SendFeedback() {
  if (const std::optional<Message> complaint = FeedbackComplaint(FeedbackText())) {
    around_.Messages.Show(*complaint);
    return;
  }
  const std::string writer = FeedbackWriter(around_.Ask({.Prompt = kAskAddress, .Title = kApplicationTitle}));

  ShowHourglass(true);
  WaitToSend();
  const bool sent = TellsSent(around_.Web(FeedbackRequest(writer, FeedbackText())));
  ShowHourglass(false);

  if (sent) controls_.Get<QPlainTextEdit>("txtFeedback").setPlainText({});
  around_.Messages.Show(FeedbackOutcome(sent));
}

// Repainted at once: a request may block what follows.
void AboutView::ShowCurrentVersion(std::string_view caption) {
  Label& label = controls_.LabelAt("lblCurrentVersion");
  label.SetText(ToQt(caption));
  label.repaint();
}

std::string AboutView::FeedbackText() const {
  // toPlainText would turn no-break spaces into spaces.
  QString text = controls_.Get<QPlainTextEdit>("txtFeedback").document()->toRawText();
  for (const QChar lineEnd : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
    text.replace(lineEnd, QLatin1Char('\n'));
  return LinesFromQt(text);
}

// Polls at full speed, at least once, and processes all pending events meanwhile, which may start another wait.
void AboutView::WaitToSend() const {
  const std::int32_t start = around_.Clock();
  do {
    QCoreApplication::processEvents();
  } while (!IsTimeToSend(start, around_.Clock()));
}

}  // namespace quillon
