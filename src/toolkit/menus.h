#pragma once

#include <functional>

#include <QKeySequence>
#include <QMenu>

namespace numorra {

/// An item of a menu.
struct MenuItem {
  const char* Name;
  const char* Caption;
  QList<QKeySequence> Keys;
  std::function<void()> Act;
  bool Checkable = false;
};

/// Adds the item to the menu.
QAction* AddItem(QMenu* menu, const MenuItem& item);

}  // namespace numorra
