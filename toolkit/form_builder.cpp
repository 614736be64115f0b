#include "toolkit/form_builder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "toolkit/colors.h"
#include "toolkit/comma_lines.h"
#include "toolkit/placement.h"
#include "toolkit/rich_text_box.h"
#include "toolkit/text.h"
#include "toolkit/text_box.h"
#include "toolkit/wheel_focus.h"

namespace quillon {
namespace {

Label* MakeLabel(QWidget* container, const ControlRow& row) {
  auto* label = new Label(container);
  label->SetAlignment(row.Alignment);
  label->SetCut(row.Cut);
  label->SetText(ToQt(row.Text));
  label->SetBackColor(ToColor(row.Back));
  if (row.Fore != kNoColor) label->SetTextColor(ToColor(row.Fore));
  label->SetUse(row.Use);
  return label;
}

Picture* MakePicture(QWidget* container, const ControlRow& row) {
  auto* picture = new Picture(container);
  picture->SetArtwork(ToQt(row.Picture));
  picture->SetUse(row.Use);
  return picture;
}

Shape* MakeShape(QWidget* container, const ControlRow& row) {
  auto* shape = new Shape(row.Kind, container);
  shape->SetFill(ToColor(row.Back));
  if (row.Fore != kNoColor) shape->SetLineColor(ToColor(row.Fore));
  shape->SetLineStyle(row.Style);
  shape->SetLineWidth(row.LineWidth);
  return shape;
}

TextBox* MakeTextBox(QWidget* container, const ControlRow& row) {
  auto* box = new TextBox(container);
  box->setText(ToQt(row.Text));
  if (row.Alignment == TextAlignment::kCentered) box->setAlignment(Qt::AlignCenter);
  return box;
}

QPlainTextEdit* MakeMemo(QWidget* container, const ControlRow& row) {
  auto* memo = new QPlainTextEdit(container);
  memo->setPlainText(ToQt(row.Text));
  memo->setReadOnly(row.Kind == ControlKind::kReadOnlyMemo);
  if (memo->isReadOnly()) {
    memo->setFrameShape(QFrame::NoFrame);
    new CommaLines(*memo);  // owned by the document
  }
  memo->setTabChangesFocus(true);
  if (row.Fore != kNoColor) {
    QPalette palette = memo->palette();
    palette.setColor(QPalette::Text, ToColor(row.Fore));
    memo->setPalette(palette);
  }
  return memo;
}

QComboBox* MakeChooser(QWidget* container) {
  constexpr int kMostRows = 20;
  auto* chooser = new QComboBox(container);
  chooser->setMaxVisibleItems(kMostRows);
  return chooser;
}

QPushButton* MakeButton(QWidget* container, const ControlRow& row) {
  auto* button = new QPushButton(ToQt(row.Text), container);
  button->setAutoDefault(true);  // Enter presses it, like Space
  return button;
}

Frame* MakeFrame(QWidget* container, const ControlRow& row) {
  auto* frame = new Frame(container);
  frame->setAccessibleName(ToQt(row.Text));
  frame->SetBackColor(ToColor(row.Back == kNoColor ? 0xFFFFFF : row.Back));
  return frame;
}

QWidget* TurnedWithFocusOnly(QWidget* list) {
  TurnByWheelWithFocusOnly(*list);
  return list;
}

QWidget* MakeControl(QWidget* container, const ControlRow& row) {
  switch (row.Kind) {
    case ControlKind::kLabel:
      return MakeLabel(container, row);
    case ControlKind::kPicture:
      return MakePicture(container, row);
    case ControlKind::kShape:
    case ControlKind::kRoundedShape:
    case ControlKind::kLine:
      return MakeShape(container, row);
    case ControlKind::kTextBox:
      return MakeTextBox(container, row);
    case ControlKind::kMemo:
    case ControlKind::kReadOnlyMemo:
      return MakeMemo(container, row);
    case ControlKind::kChooser:
      return TurnedWithFocusOnly(MakeChooser(container));
    case ControlKind::kListBox:
      return TurnedWithFocusOnly(new QListWidget(container));
    case ControlKind::kCheckBox:
      return new QCheckBox(ToQt(row.Text), container);
    case ControlKind::kButton:
      return MakeButton(container, row);
    case ControlKind::kFrame:
      return MakeFrame(container, row);
    case ControlKind::kRichTextBox:
      return new RichTextBox(container);
  }
  return nullptr;
}

QWidget* BuildControl(QWidget& container, const ControlRow& row, const FontSpec& inherited) {
  QWidget* control = MakeControl(&container, row);
  control->setObjectName(ToQt(ObjectName(row.Name, row.Index)));
  SetFormFont(*control, row.Font, inherited);
  SetPlace(*control, row.Place);
  if (!row.Spoken.empty()) control->setAccessibleName(ToQt(row.Spoken));
  if (!row.ToolTip.empty()) control->setToolTip(ToQt(row.ToolTip));
  control->setVisible(!row.Hidden);
  return control;
}

}  // namespace

FormControls::FormControls(QWidget& form, std::span<const ControlTable> layout) {
  for (const ControlTable& table : layout) {
    QWidget& container = table.Container.empty() ? form : At(std::string(table.Container));
    for (auto row = table.Rows.rbegin(); row != table.Rows.rend(); ++row)
      Add(BuildControl(container, *row, table.Font));
  }
}

void FormControls::Add(QWidget* control) {
  controls_[control->objectName().toStdString()] = control;
}

QWidget* FormControls::Find(const std::string& objectName) const {
  const auto found = controls_.find(objectName);
  return found == controls_.end() ? nullptr : found->second;
}

std::int16_t FormControls::CountOf(std::string_view name) const {
  std::int16_t count = 0;
  while (Find(ObjectName(name, count)) != nullptr)
    ++count;
  return count;
}

}  // namespace quillon
