#include "toolkit/menus.h"

#include "toolkit/named.h"

namespace numorra {

QAction* AddItem(QMenu* menu, const MenuItem& item) {
  QAction* action = Named(item.Name, menu->addAction(item.Caption));
  action->setShortcuts(item.Keys);
  action->setCheckable(item.Checkable);
  QObject::connect(action, &QAction::triggered, menu, item.Act);
  return action;
}

}  // namespace numorra
