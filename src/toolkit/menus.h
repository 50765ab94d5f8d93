#pragma once

#include <functional>
#include <string>

#include <QKeySequence>
#include <QMenu>

namespace numorra {

/// An item of a menu.
struct MenuItem {
  const char* Name;
  QString Caption;
  QList<QKeySequence> Keys;
  std::function<void()> Act;
  bool Checkable = false;
};

/// Adds the item to the menu.
QAction* AddItem(QMenu* menu, const MenuItem& item);

/// A caption without its keyboard letter, as the command behind it is named: "Vary" for "&Vary".
std::string WithoutMnemonic(QString caption);

}  // namespace numorra
