#include "study/window/study_form.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <utility>

#include "ranges/dialogs/form_place.h"
#include "study/window/balanced_page.h"
#include "study/window/curve_pages.h"
#include "study/window/limits_page.h"
#include "study/window/text_label.h"
#include "support/utf8.h"
#include "toolkit/accessible_control.h"
#include "toolkit/form_keys.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// The smallest size at which every cell has room for its text.
constexpr TwipSize kLeastSize = {.Width = 12900, .Height = 9000};
constexpr TwipSize kFirstSize = {.Width = 14400, .Height = 10200};

// With names cut that would take up the pages' room; the tool tip and a screen reader have them in full.
QString ShortWords(Situation situation) {
  constexpr std::size_t kLongest = 40;
  for (std::string* name : {&situation.RangeName, &situation.CallingRangeName}) {
    if (name->size() > kLongest) *name = std::string(WholeCharacters(*name, kLongest)) + "\u2026";
  }
  return ToQt(SituationWords(situation));
}

}  // namespace

StudyForm::StudyForm(DialogSurroundings surroundings)
    : around_(std::move(surroundings)),
      about_(*MakeTextLabel(this, kHeadingPoints, true)),
      follow_(*new QPushButton(QStringLiteral("Follow the new analysis"), this)),
      tabs_(*new QTabWidget(this)) {
  DressWindow(*this, kStudyTitle);
  SetResizable(*this, kLeastSize, StoredSize(kStudySection, kLeastSize, kFirstSize, around_.Folder));
  auto* head = new QHBoxLayout;
  head->addWidget(&about_, 1);
  head->addWidget(&follow_, 0, Qt::AlignTop);
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(head);
  rows->addWidget(&tabs_, 1);
  about_.setText(QStringLiteral("No situation yet"));
  follow_.setAutoDefault(true);
  follow_.hide();
  tabs_.setAccessibleName(QStringLiteral("Pages"));

  AddPage(StudyTopic::kLimits, new LimitsPage);
  auto* howFar = new HowFarPage(around_.Folder);
  auto* width = new WidthPage(around_.Folder);
  connect(howFar, &CurvePage::HandsChosen, width, &CurvePage::TakeHands);
  connect(width, &CurvePage::HandsChosen, howFar, &CurvePage::TakeHands);
  AddPage(StudyTopic::kHowFar, howFar);
  AddPage(StudyTopic::kWidth, width);
  auto* balanced = new BalancedPage(around_);
  connect(balanced, &BalancedPage::CallingRangeSaved, this, &StudyForm::CallingRangeSaved);
  AddPage(StudyTopic::kBalanced, balanced);
  FrameBoxes(*this);
  RestorePlace(*this, kStudySection, around_.Folder);
  connect(&follow_, &QPushButton::clicked, this, &StudyForm::FollowOffer);
  connect(&tabs_, &QTabWidget::currentChanged, this, &StudyForm::ShowCurrent);
  BindKeys();
  ShowCurrent();
}

void StudyForm::AddPage(StudyTopic topic, StudyPage* page) {
  auto* notice = MakeTextLabel(this, kTextPoints);
  notice->setAlignment(Qt::AlignCenter);
  auto* stack = new QStackedWidget(this);
  stack->addWidget(notice);
  stack->addWidget(page);
  leaves_.push_back({topic, page, notice, stack});
  tabs_.addTab(stack, page->Title());
  connect(page, &StudyPage::HandAsked, this,
          [this](StudyTopic asked, qint16 index) { ShowPage(asked, static_cast<std::int16_t>(index)); });
}

void StudyForm::BindKeys() {
  for (int i = 0; i < tabs_.count(); ++i)
    BindKey(*this, DigitKey(i), [this, topic = leaves_[static_cast<std::size_t>(i)].Topic] { ShowPage(topic); });
  const auto turn = [this](int pages) {
    const int count = tabs_.count();
    ShowPage(leaves_[static_cast<std::size_t>((tabs_.currentIndex() + pages + count) % count)].Topic);
  };
  BindKey(*this, Qt::CTRL | Qt::Key_Tab, [turn] { turn(1); });
  BindKey(*this, Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, [turn] { turn(-1); });
  BindKey(*this, Qt::Key_F5, [this] { FollowOffer(); });
  BindKey(*this, Qt::CTRL | Qt::Key_W, [this] { close(); });
}

void StudyForm::Follow(const Analysis& analysis) {
  const bool isFirst = situation_.Asked.Mode == AnalysisMode::kNone;
  situation_ = StudySituationOf(analysis, hands_);
  const QString words = ToQt(SituationWords(situation_.Asked));
  about_.setText(ShortWords(situation_.Asked));
  about_.setToolTip(words);
  about_.setAccessibleName(words);
  offered_.reset();
  for (Leaf& leaf : leaves_)
    leaf.IsCurrent = false;
  ShowCurrent();
  if (isFirst || follow_.hasFocus()) FocusPage();
  follow_.hide();
}

bool StudyForm::IsAbout(const Analysis& analysis) {
  return StudySituationOf(analysis, hands_).Asked == situation_.Asked;
}

void StudyForm::Offer(const Analysis& analysis) {
  if (situation_.Asked.Mode == AnalysisMode::kNone) return Follow(analysis);
  const bool isNew = !IsAbout(analysis);
  follow_.setVisible(isNew);
  offered_.reset();
  if (!isNew) return;
  offered_ = analysis;
  const QString words = ToQt(SituationWords(StudySituationOf(analysis, hands_).Asked));
  follow_.setToolTip(words);
  follow_.setAccessibleDescription(words);
  Announce(*this, QStringLiteral("Follow the new analysis: %1").arg(words));
}

void StudyForm::ShowPage(StudyTopic topic, std::optional<std::int16_t> hand) {
  const Leaf& leaf = LeafOf(topic);
  tabs_.setCurrentWidget(leaf.Stack);
  FocusPage();
  if (hand && leaf.Stack->currentWidget() == leaf.Page) leaf.Page->ShowHand(*hand);
}

StudyPage* StudyForm::Page(StudyTopic topic) const {
  return LeafOf(topic).Page;
}

std::vector<IniSetting> StudyForm::PlaceSettings() const {
  if (isMaximized()) return {};
  std::vector<IniSetting> settings = quillon::PlaceSettings(kStudySection, *this);
  std::ranges::move(SizeSettings(kStudySection, SizeOf(*this)), std::back_inserter(settings));
  return settings;
}

void StudyForm::closeEvent(QCloseEvent* event) {
  event->accept();
  WriteIniValues(PlaceSettings(), around_.Folder);
}

void StudyForm::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!event->spontaneous()) FocusPage();
}

void StudyForm::FollowOffer() {
  if (!offered_) return;
  const Analysis analysis = *std::exchange(offered_, std::nullopt);
  Follow(analysis);
  Announce(*this, about_.accessibleName());
}

const StudyForm::Leaf& StudyForm::LeafOf(StudyTopic topic) const {
  return *std::ranges::find(leaves_, topic, &Leaf::Topic);
}

StudyForm::Leaf& StudyForm::Current() {
  return leaves_.at(static_cast<std::size_t>(tabs_.currentIndex()));
}

void StudyForm::FocusPage() {
  const Leaf& leaf = Current();
  QWidget* place = tabs_.tabBar();
  if (leaf.Stack->currentWidget() == leaf.Page) place = leaf.Page;
  place->setFocus(Qt::OtherFocusReason);
}

void StudyForm::ShowCurrent() {
  Leaf& leaf = Current();
  const std::optional<QString> nothing = leaf.Page->WhyNothing(situation_);
  leaf.Notice->setText(nothing.value_or(QString()));
  // Asked before the page is hidden, when Qt would move the focus to whatever comes next.
  const bool takesKeyboard = nothing && leaf.Page->isAncestorOf(focusWidget());
  if (takesKeyboard) tabs_.tabBar()->setFocus(Qt::OtherFocusReason);
  leaf.Stack->setCurrentIndex(nothing ? 0 : 1);
  if (nothing) return Announce(*leaf.Notice, *nothing);
  if (std::exchange(leaf.IsCurrent, true)) return;
  leaf.Page->Show(situation_);
}

}  // namespace quillon
