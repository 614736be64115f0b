#include "toolkit/popup_menu.h"

#include <QAction>
#include <QMenu>
#include <algorithm>

#include "toolkit/application.h"

namespace quillon {

void PopUpMenu(QWidget& owner, const QPoint& place, const std::vector<MenuEntry>& entries) {
  auto* menu = new QMenu(owner.window());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const MenuEntry& entry : entries) {
    if (entry.Text.isEmpty()) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(QString(entry.Text).replace(QLatin1Char('&'), QStringLiteral("&&")));
    // For display only: only the menu reacts to its entries' keys.
    action->setShortcut(entry.Key);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    action->setEnabled(entry.Enabled);
    QObject::connect(action, &QAction::triggered, owner.window(), entry.Action);
  }
  menu->popup(place);
  if (!AnswersKey()) return;
  const QList<QAction*> actions = menu->actions();
  const auto first = std::ranges::find_if(actions, [](const QAction* action) { return action->isEnabled(); });
  if (first != actions.end()) menu->setActiveAction(*first);
}

}  // namespace quillon
