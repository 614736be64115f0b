#include "toolkit/accessible_control.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <utility>

#include "toolkit/frame.h"
#include "toolkit/picture.h"

namespace quillon {
namespace {

QAccessible::Role RoleOf(const Control& control) {
  if (control.CanBeClicked()) {
    return qobject_cast<const Picture*>(&control) != nullptr ? QAccessible::Button : QAccessible::Link;
  }
  if (qobject_cast<const Frame*>(&control) != nullptr) return QAccessible::Pane;
  return qobject_cast<const Picture*>(&control) != nullptr ? QAccessible::Graphic : QAccessible::StaticText;
}

// By way of a key, so that whatever takes the keyboard away from the program takes this away, too.
void SendSpace(QWidget& control, QEvent::Type type) {
  QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier);
  QCoreApplication::sendEvent(&control, &space);
}

class AccessibleControl : public QAccessibleWidget {
 public:
  explicit AccessibleControl(Control* control) : QAccessibleWidget(control, RoleOf(*control)), control_(control) {}

  [[nodiscard]] QAccessible::Role role() const override { return RoleOf(*control_); }

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? control_->SpokenText() : QAccessibleWidget::text(kind);
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (control_->CanBeClicked()) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name == pressAction() && control_->CanBeClicked()) {
      SendSpace(*control_, QEvent::KeyPress);
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

 private:
  Control* control_;
};

// Qt's own presses a button by a timer and toggles a check box by no event at all.
class AccessibleButton : public QAccessibleWidget {
 public:
  AccessibleButton(QAbstractButton* button, QAccessible::Role role, QString action)
      : QAccessibleWidget(button, role), button_(button), action_(std::move(action)) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const auto* box = qobject_cast<const QCheckBox*>(button_);
    state.checkable = button_->isCheckable();
    state.checkStateMixed = box != nullptr && box->checkState() == Qt::PartiallyChecked;
    state.checked = button_->isChecked() && !state.checkStateMixed;
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
    if (button_->isEnabled()) names.prepend(action_);
    return names;
  }

  void doAction(const QString& name) override {
    if (name != pressAction() && name != toggleAction()) {
      QAccessibleWidget::doAction(name);
    } else if (button_->isEnabled()) {
      SendSpace(*button_, QEvent::KeyPress);
      SendSpace(*button_, QEvent::KeyRelease);
    }
  }

 private:
  QAbstractButton* button_;
  QString action_;
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
  if (auto* control = qobject_cast<Control*>(object)) return new AccessibleControl(control);
  if (auto* box = qobject_cast<QCheckBox*>(object)) {
    return new AccessibleButton(box, QAccessible::CheckBox, QAccessibleActionInterface::toggleAction());
  }
  if (auto* button = qobject_cast<QPushButton*>(object)) {
    return new AccessibleButton(button, QAccessible::Button, QAccessibleActionInterface::pressAction());
  }
  return nullptr;
}

}  // namespace

void InstallAccessibleControls() {
  QAccessible::installFactory(MakeInterface);
}

void TellNameChanged(Control& control) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&control, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace quillon
