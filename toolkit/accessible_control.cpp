#include "toolkit/accessible_control.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>

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
      // By way of a key, so that whatever takes the keyboard away from the program takes this away, too.
      QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
      QCoreApplication::sendEvent(control_, &press);
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

 private:
  Control* control_;
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
  auto* control = qobject_cast<Control*>(object);
  return control == nullptr ? nullptr : new AccessibleControl(control);
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
