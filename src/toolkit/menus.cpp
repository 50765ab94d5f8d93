#include "toolkit/menus.h"

#include <QRegularExpression>

#include "toolkit/named.h"

namespace numorra {

QAction* AddItem(QMenu* menu, const MenuItem& item) {
  QAction* action = Named(item.Name, menu->addAction(item.Caption));
  action->setShortcuts(item.Keys);
  action->setCheckable(item.Checkable);
  QObject::connect(action, &QAction::triggered, menu, item.Act);
  return action;
}

/// In scripts that no keyboard has as letters, the caption ends with the letter in brackets.
std::string WithoutMnemonic(QString caption) {
  return caption.remove(QRegularExpression("\\(&.\\)")).remove('&').toStdString();
}

}  // namespace numorra
