#include "study/window/curve_page.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "shell/start_up.h"
#include "study/figure_svg.h"
#include "study/hand_order.h"
#include "study/window/text_label.h"
#include "support/files.h"
#include "support/folders.h"
#include "support/joined_text.h"
#include "support/windows_1252.h"
#include "toolkit/accessible_control.h"
#include "toolkit/form_keys.h"
#include "toolkit/placement.h"
#include "toolkit/save_dialog.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

// "K9o shove.svg", or "K9o shove 2.svg" if that is taken: the dialog does not ask before replacing a file.
std::string FreeName(const std::filesystem::path& folder, const std::string& stem, const std::string& extension) {
  std::string name = stem + extension;
  for (int number = 2; IsThere(folder / name); ++number)
    name = Joined({stem, " ", std::to_string(number), extension});
  return name;
}

}  // namespace

CurvePage::CurvePage(ProgramFolder folder, int figures, QWidget* parent)
    : StudyPage(parent),
      folder_(std::move(folder)),
      rows_(*new QVBoxLayout(this)),
      actions_(*new QHBoxLayout),
      words_(*MakeTextLabel(this, kTextPoints)) {
  auto* boxes = new QHBoxLayout;
  hands_ = &AddBox(*boxes, "Hands", "Hands, such as A7o 88", 4);
  from_ = &AddBox(*boxes, "from", "From", 1);
  to_ = &AddBox(*boxes, "to", "To", 1);
  step_ = &AddBox(*boxes, "in steps of", "In steps of", 1);
  rows_.addLayout(boxes);
  actions_.addWidget(&words_, 1);
  AddButton("Copy Picture", Qt::CTRL | Qt::Key_C, &CurvePage::CopyPicture);
  AddButton("Save Picture...", Qt::CTRL | Qt::Key_S, &CurvePage::SavePicture);
  AddButton("Save Table...", Qt::CTRL | Qt::SHIFT | Qt::Key_S, &CurvePage::SaveTable);
  rows_.addLayout(&actions_);
  for (int i = 0; i < figures; ++i) {
    views_.push_back(new FigureView(this));
    rows_.addWidget(views_.back(), 1 + i);  // the hands' names in the last one need more room
  }
  setFocusProxy(views_.front());
}

void CurvePage::Show(const StudySituation& situation) {
  situation_ = situation;
  bestFirst_ = HandsBestFirst(situation.Hands);
  const auto hands = ReadCurveHands(FromQt(hands_->text()), bestFirst_);
  if (std::holds_alternative<std::string>(hands)) hands_->setText(ToQt(HandLabel(MarginalHand(situation))));
  curves_ = {};
  for (FigureView* view : views_)
    view->Clear();
  hasOwnSteps_ = false;
  answers_ = false;
  Read();
}

void CurvePage::ShowHand(std::int16_t index) {
  hands_->setText(ToQt(HandLabel(index)));
  answers_ = true;
  Read();
  setFocus(Qt::OtherFocusReason);
}

void CurvePage::TakeHands(const QString& hands) {
  if (hands == hands_->text()) return;
  hands_->setText(hands);
  isStale_ = true;
}

void CurvePage::showEvent(QShowEvent* event) {
  StudyPage::showEvent(event);
  if (situation_ && isStale_) Read();
}

void CurvePage::Draw(HandCurves curves) {
  curves_ = std::move(curves);
  std::vector<Figure> figures = FiguresOf(curves_);
  for (std::size_t i = 0; i < views_.size(); ++i)
    views_[i]->Show(std::move(figures.at(i)));
}

void CurvePage::TellFigure() {
  if (std::exchange(answers_, false)) Announce(*this, views_.back()->accessibleName());
}

void CurvePage::ShowBelowBoxes(QWidget& part) {
  rows_.insertWidget(2, &part);
  QWidget* before = &part;
  for (FigureView* view : views_) {
    setTabOrder(before, view);
    before = view;
  }
}

void CurvePage::Tell(const std::string& words) {
  words_.setText(ToQt(words));
  if (!words.empty()) Announce(*this, words_.text());
}

TextBox& CurvePage::AddBox(QHBoxLayout& row, const char* caption, const char* spoken, int stretch) {
  auto* label = MakeTextLabel(this, kTextPoints);
  label->setText(QString::fromLatin1(caption));
  label->setWordWrap(false);
  auto* box = new TextBox(this);
  box->setAccessibleName(QString::fromLatin1(spoken));
  SetFormFont(*box, {.Family = "Arial", .Points = kTextPoints}, {});
  row.addWidget(label);
  row.addWidget(box, stretch);
  for (const auto left : {&TextBox::EnterPressed, &TextBox::FocusLost})
    connect(box, left, this, [this, box] { Leave(*box); });
  return *box;
}

void CurvePage::AddButton(const char* text, QKeyCombination key, void (CurvePage::*action)()) {
  auto* button = new QPushButton(QString::fromLatin1(text), this);
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this, action);
  BindPress(*button, key);
  actions_.addWidget(button);
}

QStringList CurvePage::Typed() const {
  return {hands_->text(), from_->text(), to_->text(), step_->text()};
}

// Passing through a box without typing changes nothing.
void CurvePage::Leave(const TextBox& box) {
  if (Typed() == read_) return;
  if (&box != hands_) hasOwnSteps_ = true;
  answers_ = true;
  Read();
}

void CurvePage::Read() {
  isStale_ = false;
  read_ = Typed();
  const auto refuse = [this](const std::string& what, const std::string& reason) {
    answers_ = false;
    Tell(what + ": " + reason);
  };
  auto hands = ReadCurveHands(FromQt(hands_->text()), bestFirst_);
  if (const auto* const reason = std::get_if<std::string>(&hands)) return refuse("Hands", *reason);
  auto& chosen = std::get<std::vector<std::int16_t>>(hands);
  Q_EMIT HandsChosen(hands_->text());
  if (!hasOwnSteps_) {
    const StepTexts texts = StepsFor(chosen);
    from_->setText(ToQt(texts.From));
    to_->setText(ToQt(texts.To));
    step_->setText(ToQt(texts.Step));
    read_ = Typed();
  }
  const auto steps = ReadSteps({FromQt(from_->text()), FromQt(to_->text()), FromQt(step_->text())});
  if (const auto* const reason = std::get_if<std::string>(&steps)) return refuse("From, to and steps", *reason);
  Tell({});
  Begin(chosen, std::get<Steps>(steps));
}

// As shown: the figures one below the other.
void CurvePage::CopyPicture() {
  if (curves_.Rows.empty()) return;
  std::vector<QImage> pictures;
  QSize whole(0, 0);
  for (const FigureView* view : views_) {
    pictures.push_back(view->Picture());
    const QSize size = pictures.back().size();
    whole = {std::max(whole.width(), size.width()), whole.height() + size.height()};
  }
  QImage image(whole, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  int top = 0;
  for (QImage& picture : pictures) {
    picture.setDevicePixelRatio(1);
    painter.drawImage(0, top, picture);
    top += picture.height();
  }
  painter.end();
  QGuiApplication::clipboard()->setImage(image);
  Tell("The picture is copied.");
}

void CurvePage::SavePicture() {
  if (curves_.Rows.empty()) return;
  const std::vector<Figure> figures = FiguresOf(curves_);
  Save("Save Picture", "svg", FigureSvg(figures));
}

void CurvePage::SaveTable() {
  if (curves_.Rows.empty()) return;
  Save("Save Table", "csv", curves_.Csv());
}

void CurvePage::Save(const char* title, const char* kind, const std::string& bytes) {
  const std::filesystem::path folder = SavedGridsFolderPath(folder_);
  MakeFolderIfMissing(folder, *folder_.Calls);
  const std::string filter = kind == std::string_view("svg") ? "Picture | *.svg" : "Table | *.csv";
  const std::string name =
      FreeName(folder, CurveHandsText(curves_.Hands) + " " + curves_.What, std::string(".") + kind);
  const std::filesystem::path file = AskFileName(
      *this, {.Title = title, .Filter = filter, .Folder = folder.string(), .Offered = (folder / name).string()});
  if (file.empty()) return;
  ReplaceFile(file, bytes, folder_.Path, *folder_.Calls);
  Tell("Saved as " + TextOfFileName(file.filename().string()) + ".");
}

}  // namespace quillon
