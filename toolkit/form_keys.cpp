#include "toolkit/form_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <utility>

#include "toolkit/control.h"

namespace quillon {
namespace {

void PressByKey(QWidget& control) {
  if (auto* button = qobject_cast<QAbstractButton*>(&control)) return button->click();
  auto& ours = dynamic_cast<Control&>(control);
  if (ours.Use() == ControlUse::kFocusLink && !ours.TakeFocus(Qt::ShortcutFocusReason)) return;
  ours.Click();
}

bool IsTextBox(const QWidget* control) {
  return qobject_cast<const QLineEdit*>(control) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(control) != nullptr || qobject_cast<const QTextEdit*>(control) != nullptr;
}

}  // namespace

QShortcut& BindKey(QWidget& parent, QKeyCombination key, std::function<void()> action, Qt::ShortcutContext context) {
  auto* shortcut = new QShortcut(QKeySequence(key), &parent);
  shortcut->setAutoRepeat(false);
  shortcut->setContext(context);
  QObject::connect(shortcut, &QShortcut::activated, &parent, std::move(action));
  return *shortcut;
}

void BindKeyBesideText(QWidget& parent, QKeyCombination key, std::function<void()> action) {
  QShortcut& shortcut = BindKey(parent, key, std::move(action));
  shortcut.setEnabled(!IsTextBox(QApplication::focusWidget()));
  QObject::connect(qApp, &QApplication::focusChanged, &shortcut,
                   [&shortcut](QWidget* /*before*/, QWidget* now) { shortcut.setEnabled(!IsTextBox(now)); });
}

// A shortcut is inactive while its parent is hidden.
void BindPress(QWidget& control, QKeyCombination key) {
  BindKey(control, key, [&control] { PressByKey(control); });
}

}  // namespace quillon
