#include "toolkit/accessible_control.h"

#include <QAbstractItemView>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFocusFrame>
#include <QKeyEvent>
#include <QPushButton>
#include <string>
#include <utility>

#include "support/message_boxes.h"
#include "toolkit/announcement.h"
#include "toolkit/application.h"
#include "toolkit/frame.h"
#include "toolkit/picture.h"
#include "toolkit/shape.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

QAccessible::Role RoleOf(const Control& control) {
  if (control.CheckState()) return QAccessible::CheckBox;
  if (control.CanBeClicked()) {
    return qobject_cast<const Picture*>(&control) != nullptr ? QAccessible::Button : QAccessible::Link;
  }
  if (qobject_cast<const Frame*>(&control) != nullptr) return QAccessible::Pane;
  return qobject_cast<const Picture*>(&control) != nullptr ? QAccessible::Graphic : QAccessible::StaticText;
}

// Through a key event, so that an event filter that blocks the keyboard blocks this too.
void SendSpace(QWidget& control, QEvent::Type type) {
  QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier);
  QCoreApplication::sendEvent(&control, &space);
}

void SetChecked(QAccessible::State& state, Qt::CheckState check) {
  state.checkable = true;
  state.checked = check == Qt::Checked;
  state.checkStateMixed = check == Qt::PartiallyChecked;
}

// Qt blocks the mouse and the keyboard for it where system events arrive; a screen reader's press bypasses that.
bool IsBehindAModalWindow(const QWidget& control) {
  const QWidget* const modal = QApplication::activeModalWidget();
  const QWidget* part = &control;
  while (part != nullptr && part != modal)
    part = part->parentWidget();
  return part != modal;
}

bool CanBePressed(const QWidget& control) {
  return control.isVisible() && control.isEnabled() && !IsBehindAModalWindow(control);
}

// Purely decorative: lines, backgrounds, and pictures without a description.
bool IsDecoration(const QWidget& part) {
  const auto* picture = qobject_cast<const Picture*>(&part);
  const bool speaks = picture != nullptr && (picture->CanBeClicked() || !picture->SpokenText().isEmpty());
  return qobject_cast<const Shape*>(&part) != nullptr || (picture != nullptr && !speaks);
}

// A window or a part of one, without its decoration.
class AccessiblePart : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  [[nodiscard]] int childCount() const override { return static_cast<int>(Children().size()); }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    return QAccessible::queryAccessibleInterface(Children().value(index));
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(Children().indexOf(child->object()));
  }

 private:
  [[nodiscard]] QObjectList Children() const {
    QObjectList children;
    for (QObject* child : widget()->children()) {
      const auto* part = qobject_cast<const QWidget*>(child);
      const bool heard = part != nullptr && !part->isWindow() && qobject_cast<const QFocusFrame*>(part) == nullptr;
      if (heard && !IsDecoration(*part)) children << child;
    }
    return children;
  }
};

class AccessibleControl : public AccessiblePart {
 public:
  explicit AccessibleControl(Control* control) : AccessiblePart(control, RoleOf(*control)), control_(control) {}

  [[nodiscard]] QAccessible::Role role() const override { return RoleOf(*control_); }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (control_->CheckState()) SetChecked(state, *control_->CheckState());
    return state;
  }

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return control_->SpokenText();
    // Without a description Qt would take the tool tip, and repeat a grid's at each of its cells.
    if (kind == QAccessible::Description && control_->CheckState()) return control_->accessibleDescription();
    return QAccessibleWidget::text(kind);
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (CanBeClickedNow()) names.prepend(control_->CheckState() ? toggleAction() : pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name != pressAction() && name != toggleAction()) {
      QAccessibleWidget::doAction(name);
    } else if (CanBeClickedNow()) {
      SendSpace(*control_, QEvent::KeyPress);
    }
  }

 private:
  [[nodiscard]] bool CanBeClickedNow() const { return control_->CanBeClicked() && CanBePressed(*control_); }

  Control* control_;
};

// Qt's own is named after its selection and lacks the question. Its one child is the list that opens.
class AccessibleChooser : public QAccessibleWidget {
 public:
  explicit AccessibleChooser(QComboBox* box) : QAccessibleWidget(box, QAccessible::ComboBox), box_(box) {
    QObject::connect(box, &QComboBox::currentTextChanged, box, [box] {
      QAccessibleEvent event(box, QAccessible::DescriptionChanged);
      QAccessible::updateAccessibility(&event);
    });
  }

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return box_->accessibleName();
    const bool chosen = kind == QAccessible::Description || kind == QAccessible::Value;
    return chosen ? box_->currentText() : QAccessibleWidget::text(kind);
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = box_->view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
  }

  [[nodiscard]] int childCount() const override { return 1; }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(box_->view()) : nullptr;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    return child->object() == box_->view() ? 0 : -1;
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (CanBePressed(*box_)) names.prepend(showMenuAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name != showMenuAction() && name != pressAction()) return QAccessibleWidget::doAction(name);
    if (!CanBePressed(*box_)) return;
    if (box_->view()->isVisible()) return box_->hidePopup();
    SendSpace(*box_, QEvent::KeyPress);
  }

 private:
  QComboBox* box_;
};

// Qt's own presses a button by a timer and toggles a check box without any event.
class AccessibleButton : public QAccessibleWidget {
 public:
  AccessibleButton(QAbstractButton* button, QAccessible::Role role, QString action)
      : QAccessibleWidget(button, role), button_(button), action_(std::move(action)) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (const auto* box = qobject_cast<const QCheckBox*>(button_)) SetChecked(state, box->checkState());
    state.pressed = button_->isDown();
    const auto* push = qobject_cast<const QPushButton*>(button_);
    state.defaultButton = push != nullptr && push->isDefault();
    return state;
  }

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? button_->text().remove(QLatin1Char('&')) : text;
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (CanBePressed(*button_)) names.prepend(action_);
    return names;
  }

  void doAction(const QString& name) override {
    if (name != pressAction() && name != toggleAction()) {
      QAccessibleWidget::doAction(name);
    } else if (CanBePressed(*button_)) {
      SendSpace(*button_, QEvent::KeyPress);
      SendSpace(*button_, QEvent::KeyRelease);
    }
  }

 private:
  QAbstractButton* button_;
  QString action_;
};

// The program's display name; Application::applicationName is for desktops.
class AccessibleProgram final : public QAccessibleApplication {
 public:
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? ToQt(std::string(kApplicationTitle)) : QAccessibleApplication::text(kind);
  }
};

QAccessibleInterface* MakeInterface(const QString& className, QObject* object) {
  if (object == QCoreApplication::instance()) return new AccessibleProgram;
  if (auto* control = qobject_cast<Control*>(object)) return new AccessibleControl(control);
  if (auto* box = qobject_cast<QCheckBox*>(object)) {
    return new AccessibleButton(box, QAccessible::CheckBox, QAccessibleActionInterface::toggleAction());
  }
  if (auto* button = qobject_cast<QPushButton*>(object)) {
    return new AccessibleButton(button, QAccessible::Button, QAccessibleActionInterface::pressAction());
  }
  if (auto* chooser = qobject_cast<QComboBox*>(object)) return new AccessibleChooser(chooser);
  // Called for the class itself first, then for its bases: a class with an interface of its own has it by then.
  auto* window = className == QStringLiteral("QWidget") ? qobject_cast<QWidget*>(object) : nullptr;
  if (window != nullptr && window->windowType() == Qt::Window) {
    return new AccessiblePart(window, QAccessible::Window);
  }
  // A widget with a name and no other role is a group: a grid, whose cells are its parts.
  if (window != nullptr && !window->accessibleName().isEmpty())
    return new AccessiblePart(window, QAccessible::Grouping);
  return nullptr;
}

bool TellsThatSomethingComesOrGoes(QAccessible::Event type) {
  return type == QAccessible::ObjectCreated || type == QAccessible::ObjectDestroyed ||
         type == QAccessible::ObjectShow || type == QAccessible::ObjectHide || type == QAccessible::ObjectReorder;
}

// Every accessibility event passes here.
void PassOn(QAccessibleEvent* event) {
  if (!IsForScreenReaders(*event)) return;
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(PassOn);
}

}  // namespace

void InstallAccessibleControls(Application& application) {
  QAccessible::installFactory(MakeInterface);
  QAccessible::installUpdateHandler(PassOn);
  QObject::connect(&application, &Application::Announced, SendAnnouncement);
}

bool IsForScreenReaders(const QAccessibleEvent& event) {
  const auto* widget = qobject_cast<const QWidget*>(event.object());
  if (widget != nullptr && IsDecoration(*widget)) return false;
  if (widget != nullptr && !widget->isVisible() && !TellsThatSomethingComesOrGoes(event.type())) return false;
  // The table's interface knows already and would count it twice; nobody else wants it.
  return event.type() != QAccessible::TableModelChanged;
}

void TellNameChanged(Control& control) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&control, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void TellChecked(Control& control) {
  if (!QAccessible::isActive()) return;
  QAccessible::State changed;
  changed.checked = true;
  changed.checkStateMixed = true;
  QAccessibleStateChangeEvent event(&control, changed);
  QAccessible::updateAccessibility(&event);
}

void Announce(QWidget& speaker, const QString& text) {
  if (speaker.isVisible()) Q_EMIT dynamic_cast<Application&>(*qApp).Announced(&speaker, text);
}

}  // namespace quillon
