#include "toolkit/form_list.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <utility>

namespace quillon {

namespace {

// Limited to the list's width, so that a longer name is cut there.
class CutNames : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }
};

void CutLongNames(QAbstractItemView& list) {
  list.setItemDelegate(new CutNames(&list));
  list.setTextElideMode(Qt::ElideRight);
}

int WidthForName(const QComboBox& box) {
  QStyleOptionComboBox option;
  option.initFrom(&box);
  return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).width();
}

}  // namespace

FormChooser::FormChooser(QComboBox& box) : box_(box) {
  CutLongNames(*box_.view());
  box_.installEventFilter(this);
  connect(this, &FormChooser::Clicked, this, &FormChooser::ShowTip);
  connect(&box_, &QComboBox::activated, this, &FormChooser::Clicked);
}

// At another scale a name may fit that did not before.
bool FormChooser::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) ShowTip();
  return QObject::eventFilter(watched, event);
}

void FormChooser::ShowTip() {
  const QString name = box_.currentText();
  box_.setToolTip(box_.fontMetrics().horizontalAdvance(name) > WidthForName(box_) ? name : QString());
}

void FormChooser::Show(const RangeListContents& contents) {
  {
    const QSignalBlocker quiet(box_);
    box_.clear();
    for (const std::string& entry : contents.Entries) {
      box_.addItem(ToQt(entry));
      box_.setItemData(box_.count() - 1, ToQt(entry), Qt::ToolTipRole);
    }
    // A Qt drop-down list selects its first entry by itself; here nothing is selected at first.
    box_.setCurrentIndex(-1);
  }
  if (contents.Selected) Select(*contents.Selected);
}

void FormChooser::SelectEntry(std::string_view name) {
  for (int index = 0; index < box_.count(); ++index) {
    if (FromQt(box_.itemText(index)) == name) return Select(index);
  }
}

void FormChooser::Select(int index) {
  {
    const QSignalBlocker quiet(box_);
    box_.setCurrentIndex(index);
  }
  Q_EMIT Clicked();
}

FormListBox::FormListBox(QListWidget& list) : list_(list) {
  CutLongNames(list_);
  connect(&list_, &QListWidget::currentRowChanged, this, &FormListBox::Clicked);
  // A click below the entries or Ctrl+Space would clear the selection.
  connect(&list_, &QListWidget::itemSelectionChanged, this, [this] {
    QListWidgetItem* item = list_.currentItem();
    if (item != nullptr && list_.selectedItems().isEmpty()) item->setSelected(true);
  });
  // A press on the selected entry emits no signal of the list, but is a click all the same.
  list_.viewport()->installEventFilter(this);
  connect(&list_, &QListWidget::itemPressed, this, [this](const QListWidgetItem* item) {
    if (list_.row(item) == std::exchange(rowBeforePress_, -1)) Q_EMIT Clicked();
  });
}

// Swallows presses that do not select: other buttons, and Ctrl with the left one.
bool FormListBox::eventFilter(QObject* watched, QEvent* event) {
  const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
  if (!press && event->type() != QEvent::MouseMove) return QObject::eventFilter(watched, event);
  const auto& mouse = dynamic_cast<QMouseEvent&>(*event);
  if (mouse.modifiers().testFlag(Qt::ControlModifier)) return true;
  if (!press) return false;
  rowBeforePress_ = list_.currentRow();
  return mouse.button() != Qt::LeftButton;
}

std::string FormListBox::CurrentText() const {
  const QListWidgetItem* item = list_.currentItem();
  return item == nullptr ? std::string() : FromQt(item->text());
}

void FormListBox::Show(const RangeListContents& contents) {
  {
    const QSignalBlocker quiet(list_);
    list_.clear();
    for (const std::string& entry : contents.Entries) {
      list_.addItem(ToQt(entry));
      list_.item(list_.count() - 1)->setToolTip(ToQt(entry));
    }
  }
  if (contents.Selected) Select(*contents.Selected);
}

void FormListBox::SelectEntry(std::string_view name) {
  for (int row = 0; row < list_.count(); ++row) {
    if (FromQt(list_.item(row)->text()) == name) return Select(row);
  }
}

void FormListBox::Select(int index) {
  {
    const QSignalBlocker quiet(list_);
    list_.setCurrentRow(index);
  }
  Q_EMIT Clicked();
}

}  // namespace quillon
