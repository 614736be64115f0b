#include "study/window/study_work.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <cmath>
#include <utility>

#include "study/window/text_label.h"
#include "toolkit/accessible_control.h"
#include "toolkit/form_keys.h"

namespace quillon {
namespace {

constexpr int kUnnoticed = 50;  // milliseconds
constexpr int kBetweenEvents = 12;
constexpr int kWhole = 1000;  // the bar's full value

}  // namespace

StudyWork::StudyWork(QWidget* parent)
    : QWidget(parent),
      text_(*MakeTextLabel(this, kTextPoints)),
      bar_(*new QProgressBar(this)),
      button_(*new QPushButton(this)),
      escape_(BindKey(*this, Qt::Key_Escape, [this] { StopOrGoOn(); })) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(&text_, 2);
  row->addWidget(&bar_, 3);
  row->addWidget(&button_);
  bar_.setRange(0, kWhole);
  bar_.setTextVisible(false);
  button_.setAutoDefault(true);
  setFocusProxy(&button_);
  connect(&button_, &QPushButton::clicked, this, &StudyWork::StopOrGoOn);
  connect(&timer_, &QTimer::timeout, this, [this] { GoOnFor(kBetweenEvents); });
  hide();
}

void StudyWork::Start(const QString& what, Step step, std::function<void()> finished) {
  Drop();
  what_ = what;
  bar_.setAccessibleName(what);
  step_ = std::move(step);
  finished_ = std::move(finished);
  GoOnFor(kUnnoticed);
  if (!HasWork()) return;
  ShowState();
  show();
  Announce(*this, text_.text());
}

void StudyWork::Drop() {
  timer_.stop();
  step_ = nullptr;
  finished_ = nullptr;
  stopped_ = false;
  hide();
}

void StudyWork::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (HasWork() && !stopped_) timer_.start(0);
}

void StudyWork::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  timer_.stop();
}

void StudyWork::GoOnFor(int milliseconds) {
  QElapsedTimer watch;
  watch.start();
  do {
    const std::optional<double> done = step_();
    if (!done) {
      const std::function<void()> finished = std::exchange(finished_, nullptr);
      Drop();
      return finished();
    }
    bar_.setValue(static_cast<int>(std::lround(*done * kWhole)));
  } while (watch.elapsed() < milliseconds);
}

void StudyWork::StopOrGoOn() {
  if (!HasWork()) return;
  stopped_ = !stopped_;
  if (stopped_)
    timer_.stop();
  else
    timer_.start(0);
  ShowState();
  Announce(*this, text_.text());
}

// Escape stops work, but nobody expects it to resume.
void StudyWork::ShowState() {
  escape_.setEnabled(!stopped_);
  text_.setText(stopped_ ? QStringLiteral("Stopped") : what_ + QStringLiteral("..."));
  button_.setText(stopped_ ? QStringLiteral("Go on") : QStringLiteral("Stop"));
}

}  // namespace quillon
