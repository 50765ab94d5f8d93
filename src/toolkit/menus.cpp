#include "toolkit/menus.h"

#include <QMenu>

#include "toolkit/named.h"

namespace numorra {

QMenu* AddMenu(QMenuBar* bar, const char* caption, std::initializer_list<MenuItem> items) {
  QMenu* menu = bar->addMenu(caption);
  for (const MenuItem& item : items) {
    if (!item.Name) {
      menu->addSeparator();
      continue;
    }
    QAction* action = Named(item.Name, menu->addAction(item.Caption));
    action->setShortcuts(item.Keys);
    action->setCheckable(item.Checkable);
    QObject::connect(action, &QAction::triggered, bar, item.Act);
  }
  return menu;
}

}  // namespace numorra
