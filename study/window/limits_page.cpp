#include "study/window/limits_page.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstddef>
#include <string>

#include "study/limit_cells.h"
#include "study/window/text_label.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "toolkit/accessible_control.h"
#include "toolkit/form_keys.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

constexpr int kGridShare = 7;  // of the page's width; the rest is for the legend and texts
constexpr int kPanelShare = 2;
constexpr float kHandPoints = 15;

std::string SummaryOf(const Limits& limits, double now) {
  const int combos = CombosGoodAt(limits, now);
  return "Now " + NumberText(now) + ": " + std::to_string(combos) + " of " + std::to_string(kConcreteHandCount) +
         " hands (" + NumberText(PercentOf(combos, kConcreteHandCount, 1)) + "%) do not lose.";
}

}  // namespace

LimitsPage::LimitsPage(QWidget* parent)
    : StudyPage(parent),
      grid_(*new ClassGridView(this)),
      title_(*MakeTextLabel(this, kHeadingPoints, true)),
      summary_(*MakeTextLabel(this, kTextPoints)),
      hand_(*MakeTextLabel(this, kHandPoints, true)),
      words_(*MakeTextLabel(this, kTextPoints)),
      legend_(*new QWidget(this)) {
  auto* copy = new QPushButton(QStringLiteral("Copy Table"), this);
  copy->setAutoDefault(true);
  auto* side = new QVBoxLayout;
  for (QWidget* part : std::initializer_list<QWidget*>{&title_, &summary_})
    side->addWidget(part);
  side->addStretch(1);
  for (QWidget* part : std::initializer_list<QWidget*>{&hand_, &words_})
    side->addWidget(part);
  side->addStretch(4);
  side->addWidget(&legend_);
  side->addWidget(copy);
  auto* page = new QHBoxLayout(this);
  page->addWidget(&grid_, kGridShare);
  page->addLayout(side, kPanelShare);
  grid_.setAccessibleName(QStringLiteral("Limits"));
  grid_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
  setFocusProxy(&grid_);

  connect(&grid_, &ClassGridView::HandReached, this, [this](qint16 index) { Tell(index); });
  connect(&grid_, &ClassGridView::HandPressed, this,
          [this](qint16 index) { Q_EMIT HandAsked(StudyTopic::kHowFar, index); });
  connect(copy, &QPushButton::clicked, this, &LimitsPage::CopyTable);
  BindKey(*this, Qt::CTRL | Qt::Key_C, [this] { CopyTable(); });
}

void LimitsPage::Show(const StudySituation& situation) {
  const Situation& asked = situation.Asked;
  now_ = situation.OwnAmount();
  limits_ = LimitsOf(asked.Mode, situation.Numbers(), asked.Amounts);
  grid_.Show(LimitCellsAt(limits_, now_));
  title_.setText(QStringLiteral("%1 up to").arg(ToQt(RowOf(kMoves, asked.Mode).Title)));
  summary_.setText(ToQt(SummaryOf(limits_, now_)));
  ShowLegend(legend_, LimitLegendAt(limits_, now_));
  Tell(told_);
}

void LimitsPage::ShowHand(std::int16_t index) {
  grid_.FocusCell(index);
}

void LimitsPage::Tell(std::int16_t index) {
  told_ = index;
  const Limit& limit = limits_.at(static_cast<std::size_t>(index));
  hand_.setText(ToQt(HandLabel(index)));
  words_.setText(ToQt("Does not lose: " + LimitWords(limit) + "\nNow, at " + NumberText(now_) + ": " +
                      (LosesAt(limit, now_) ? "loses" : "does not lose")));
}

void LimitsPage::CopyTable() {
  QGuiApplication::clipboard()->setText(ToQt(LimitTable(limits_, '\t')));
  Announce(*this, QStringLiteral("The table is copied."));
}

}  // namespace quillon
