#include "shell/screens/results_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <utility>

#include "analysis/scenarios.h"
#include "results/analysis_page.h"
#include "results/analysis_table.h"
#include "shell/grid_image.h"
#include "shell/start_up.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/windows_1252.h"
#include "toolkit/accessible_control.h"
#include "toolkit/browser.h"
#include "toolkit/popup_menu.h"
#include "toolkit/save_dialog.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

Message OpenPageQuestion() {
  return {.title = std::string(kOpenNowTitle),
          .text = "Web page saved successfully.\r\n\r\nDo you want to open the web page now?",
          .icon = MessageIcon::kQuestion,
          .buttons = MessageButtons::kYesNo};
}

Message PageNotOpenedMessage(const std::filesystem::path& page) {
  return {.text = "The web page could not be opened. It is the file:\r\n\r\n" + TextOfFileName(page.string()),
          .icon = MessageIcon::kExclamation};
}

}  // namespace

ResultsMenu::ResultsMenu(Surroundings surroundings) : around_(std::move(surroundings)) {}

void ResultsMenu::Show(std::int16_t hand, const QPoint& place) {
  const bool finished = !around_.State.HandInfo.empty();
  const bool ofHand = finished && hand >= 0;
  PopUpMenu(around_.Form, place,
            {{.Text = QStringLiteral("Copy picture"), .Action = [this] { CopyPicture(); }, .Enabled = finished},
             {.Text = QStringLiteral("Copy table"), .Action = [this] { CopyTable(); }, .Enabled = finished},
             {.Text = QStringLiteral("Save as web page..."), .Action = [this] { SavePage(); }, .Enabled = finished},
             {},
             {.Text = QStringLiteral("How far?"),
              .Action = [this, hand] { around_.ShowHowFar(hand); },
              .Enabled = ofHand && ScenarioOf(around_.State.Mode).HasExpectedValue()},
             {.Text = QStringLiteral("In the report"),
              .Action = [this, hand] { around_.ShowInReport(hand); },
              .Enabled = ofHand}});
}

void ResultsMenu::CopyPicture() const {
  QGuiApplication::clipboard()->setPixmap(around_.Image.Picture());
  Announce(around_.Form, QStringLiteral("Copied."));
}

void ResultsMenu::CopyTable() const {
  QGuiApplication::clipboard()->setText(ToQt(AnalysisTable(around_.State, '\t')));
  Announce(around_.Form, QStringLiteral("Copied."));
}

void ResultsMenu::SavePage() {
  MakeFolderIfMissing(SavedGridsFolderPath(around_.Folder), *around_.Folder.Calls);
  const std::filesystem::path fileName =
      AskFileName(around_.Form, {.Title = "Save as Web Page",
                                 .Filter = "Web page | *.html",
                                 .Folder = SavedGridsFolderPath(around_.Folder).string(),
                                 .Offered = lastPage_});
  if (fileName.empty()) return;

  lastPage_ = fileName.string();
  ReplaceFile(fileName, AnalysisPage(around_.State), around_.Folder.Path, *around_.Folder.Calls);
  if (around_.Messages.Show(OpenPageQuestion()) != MessageAnswer::kYes) return;
  OpenInBrowser(AddressOfFile(fileName), [this, fileName] { around_.Messages.Show(PageNotOpenedMessage(fileName)); });
}

}  // namespace quillon
