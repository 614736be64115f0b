#include "study/window/balanced_page.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <variant>

#include "analysis/expressions.h"
#include "analysis/scenarios.h"
#include "ranges/range_messages.h"
#include "ranges/range_names.h"
#include "study/window/text_label.h"
#include "support/number_text.h"
#include "toolkit/accessible_control.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

constexpr std::array kBoxNames = {"Pot", "You must call", "He must call"};

constexpr const char* kNotFound =
    "No ranges were found that are in balance to a millionth of the pot: the shove is too large for it.";

constexpr const char* kGridNote = "The file keeps every weight. Editing it on a grid keeps only none, half and full.";

// The amounts that the scenario asks for; the others are empty.
BalanceTexts TextsOf(const StudySituation& situation) {
  const Scenario* const scenario = FindRow(kScenarios, situation.Asked.Mode);
  const std::size_t count = scenario == nullptr ? 0 : scenario->AmountCount;
  const auto text = [count](std::size_t amount, double value) {
    return amount < count ? NumberText(value) : std::string();
  };
  return {text(0, situation.Asked.Amounts.PotSize), text(1, situation.Asked.Amounts.CallAmount),
          text(2, situation.Asked.Amounts.ShoveAmount)};
}

}  // namespace

BalancedPage::BalancedPage(DialogSurroundings surroundings, QWidget* parent)
    : StudyPage(parent),
      around_(std::move(surroundings)),
      boxes_{new TextBox(this), new TextBox(this), new TextBox(this)},
      onlyHis_(*new QCheckBox(QStringLiteral("He holds only what he plays"), this)),
      work_(*new StudyWork(this)),
      notice_(*MakeTextLabel(this, kTextPoints)),
      grids_(*new QWidget(this)),
      shove_{*MakeTextLabel(&grids_, kHeadingPoints, true), *new ClassGridView(&grids_)},
      call_{*MakeTextLabel(&grids_, kHeadingPoints, true), *new ClassGridView(&grids_)},
      worth_(*MakeTextLabel(this, kTextPoints)),
      hand_(*MakeTextLabel(this, kTextPoints, true)),
      legend_(*new QWidget(this)),
      save_(*new QPushButton(QStringLiteral("Save his range..."), this)) {
  BuildPage();
  Bind();
  setFocusProxy(boxes_.front());
}

void BalancedPage::BuildPage() {
  auto* asks = new QHBoxLayout;
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const QString name = QString::fromLatin1(kBoxNames.at(i));
    auto* label = MakeTextLabel(this, kTextPoints);
    label->setWordWrap(false);
    label->setText(name);
    boxes_.at(i)->setAccessibleName(name);
    asks->addWidget(label);
    asks->addWidget(boxes_.at(i), 2);
  }
  asks->addWidget(&onlyHis_);

  auto* sides = new QGridLayout(&grids_);
  sides->setContentsMargins(0, 0, 0, 0);
  int column = 0;
  for (const Side* side : {&shove_, &call_}) {
    sides->addWidget(&side->Heading, 0, column);
    sides->addWidget(&side->Grid, 1, column);
    sides->setColumnStretch(column, 1);
    side->Grid.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    ++column;
  }
  sides->setRowStretch(1, 1);
  shove_.Grid.setAccessibleName(QStringLiteral("Shove"));
  call_.Grid.setAccessibleName(QStringLiteral("Call the shove"));
  notice_.setAlignment(Qt::AlignCenter);

  auto* words = new QVBoxLayout;
  words->addWidget(&hand_);
  words->addWidget(&worth_);
  words->addStretch();
  auto* note = MakeTextLabel(this, kTextPoints);
  note->setText(QString::fromLatin1(kGridNote));
  save_.setAutoDefault(true);
  save_.setAccessibleDescription(note->text());
  auto* saving = new QVBoxLayout;
  saving->addWidget(&save_);
  saving->addWidget(note);
  saving->addStretch();
  auto* foot = new QHBoxLayout;
  foot->addLayout(words, 3);
  foot->addWidget(&legend_, 1, Qt::AlignTop);
  foot->addLayout(saving, 2);

  auto* page = new QVBoxLayout(this);
  page->addLayout(asks);
  page->addWidget(&work_);
  page->addWidget(&notice_, 1);
  page->addWidget(&grids_, 1);
  page->addLayout(foot);
}

void BalancedPage::Bind() {
  for (TextBox* box : boxes_) {
    connect(box, &TextBox::FocusLost, this, [this, box] { LeaveBox(*box); });
    connect(box, &TextBox::EnterPressed, this, [this, box] { LeaveBox(*box); });
  }
  connect(&onlyHis_, &QCheckBox::toggled, this, &BalancedPage::Ask);
  for (const Side* side : {&shove_, &call_}) {
    connect(&side->Grid, &ClassGridView::HandReached, this, [this](qint16 index) { Tell(index); });
    connect(&side->Grid, &ClassGridView::HandPressed, this,
            [this](qint16 index) { Q_EMIT HandAsked(StudyTopic::kHowFar, index); });
  }
  connect(&save_, &QPushButton::clicked, this, &BalancedPage::SaveCall);
}

std::optional<QString> BalancedPage::WhyNothing(const StudySituation& /*situation*/) const {
  return std::nullopt;
}

void BalancedPage::Show(const StudySituation& situation) {
  situation_ = situation;
  asked_.reset();
  const BalanceTexts texts = TextsOf(situation);
  boxes_[0]->setText(ToQt(texts.Pot));
  boxes_[1]->setText(ToQt(texts.Call));
  boxes_[2]->setText(ToQt(texts.Shove));
  const bool canBeHeld = CanBeHeld(situation.Range);
  const QSignalBlocker quiet(onlyHis_);
  onlyHis_.setToolTip(ToQt(situation.Asked.RangeName));
  onlyHis_.setEnabled(canBeHeld);
  onlyHis_.setChecked(canBeHeld);
  Ask();
}

BalanceTexts BalancedPage::Texts() const {
  return {FromQt(boxes_[0]->text()), FromQt(boxes_[1]->text()), FromQt(boxes_[2]->text())};
}

void BalancedPage::LeaveBox(TextBox& box) {
  const QString worked = ToQt(EvalTextBox(FromQt(box.text()), around_.Messages));
  if (worked != box.text()) box.setText(worked);
  Ask();
}

void BalancedPage::Ask() {
  const BalanceTexts texts = Texts();
  const bool onlyHis = onlyHis_.isChecked();
  if (asked_ == texts && askedOnlyHis_ == onlyHis) return;
  asked_ = texts;
  askedOnlyHis_ = onlyHis;
  work_.Drop();
  const auto reading = ReadBalanceQuestion(texts);
  if (const auto* why = std::get_if<std::string>(&reading)) return ShowNotice(ToQt(*why));
  BalanceQuestion question = std::get<BalanceQuestion>(reading);
  if (onlyHis) question.HisHands = situation_->Range;
  Search(question);
}

void BalancedPage::Search(const BalanceQuestion& question) {
  ShowNotice({});
  const auto search = std::make_shared<BalanceSearch>(situation_->Hands, question);
  work_.Start(
      QStringLiteral("Finding balanced ranges"),
      [search]() -> std::optional<double> {
        if (!search->GoOn()) return std::nullopt;
        return search->ShareDone();
      },
      [this, search, question] { ShowFound(question, search->Found()); });
}

void BalancedPage::ShowNotice(const QString& notice) {
  notice_.setText(notice);
  notice_.show();
  for (QWidget* part : std::initializer_list<QWidget*>{&grids_, &worth_, &hand_, &legend_})
    part->hide();
  save_.setEnabled(false);
  if (!notice.isEmpty()) Announce(*this, notice);
}

void BalancedPage::ShowFound(const BalanceQuestion& question, const std::optional<Equilibrium>& found) {
  if (!found) return ShowNotice(QString::fromLatin1(kNotFound));
  shove_.Cells = PlayedCells(BalanceSide::kShove, found->Shove, question.OwnHands);
  call_.Cells = PlayedCells(BalanceSide::kCall, found->Call, question.HisHands);
  ShowSide(shove_, "Shove", found->Shove);
  ShowSide(call_, "Call the shove", found->Call);
  found_ = found->Call;
  const QString worth = ToQt(BalanceWords(*found));
  worth_.setText(worth);
  ShowLegend(legend_, PlayedLegend(shove_.Cells, call_.Cells));
  Tell(told_);
  notice_.hide();
  for (QWidget* part : std::initializer_list<QWidget*>{&grids_, &worth_, &hand_, &legend_})
    part->show();
  save_.setEnabled(true);
  Announce(*this, shove_.Heading.text() + QStringLiteral(". ") + call_.Heading.text() + QStringLiteral(". ") + worth);
}

void BalancedPage::ShowSide(const Side& side, const std::string& move, const ClassWeights& played) {
  side.Grid.Show(side.Cells);
  const QString heading = ToQt(move + ": " + NumberText(PercentOfHands(played)) + "% of hands");
  side.Heading.setText(heading);
  side.Grid.setAccessibleName(heading);
}

void BalancedPage::Tell(std::int16_t index) {
  told_ = index;
  const auto at = static_cast<std::size_t>(index);
  hand_.setText(
      ToQt(std::string(HandLabel(index)) + ": " + shove_.Cells.at(at).Words + ", " + call_.Cells.at(at).Words));
}

void BalancedPage::SaveCall() {
  const std::string name = around_.Ask({kAskSaveAsName.Prompt, kAskSaveAsName.Title, "Balanced call"});
  if (name.empty() || !ValidateRangeName(around_.Folder, name, around_.Messages)) return;
  SaveRangeText(around_.Folder, name, SearchableRangeText(found_));
  TellSaved(*window(), around_, name);
  Q_EMIT CallingRangeSaved(name);
}

}  // namespace quillon
