#include "shell/screens/situation_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "ranges/range_lists.h"
#include "shell/situations.h"
#include "toolkit/form_keys.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {

SituationDialog::SituationDialog(QWidget* parent, ProgramFolder folder, MessageBoxes& messages,
                                 std::string_view selected)
    : QDialog(parent), folder_(std::move(folder)), messages_(messages), list_(*new QListWidget(this)), entries_(list_) {
  setWindowTitle(QStringLiteral("Open Situation"));
  auto* prompt = new QLabel(QStringLiteral("Which situation do you want to open?"), this);
  list_.setAccessibleName(prompt->text());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this);
  const QPushButton* const remove = buttons->addButton(QStringLiteral("Delete"), QDialogButtonBox::DestructiveRole);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(prompt);
  rows->addWidget(&list_);
  rows->addWidget(buttons);
  resize(LinePixels(360), LinePixels(320));

  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(remove, &QPushButton::clicked, this, &SituationDialog::Delete);
  connect(&list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  BindKey(*this, Qt::Key_Delete, [this] { Delete(); });
  list_.setFocus(Qt::OtherFocusReason);
  Fill(selected);
}

void SituationDialog::Fill(std::string_view selected) {
  RangeListContents contents{SituationNames(folder_), {}};
  if (!contents.Entries.empty()) contents.Selected = EntryIndex(contents.Entries, selected).value_or(0);
  entries_.Show(contents);
}

// Then selects the next one, or the last.
void SituationDialog::Delete() {
  const QListWidgetItem* const next =
      list_.item(list_.currentRow() + (list_.currentRow() + 1 < list_.count() ? 1 : -1));
  const std::string nextName = next == nullptr ? std::string() : FromQt(next->text());
  if (!AskAndDeleteSituation(Name(), folder_, messages_)) return;
  Fill(nextName);
  if (list_.count() == 0) reject();
}

}  // namespace quillon
