#pragma once

#include <functional>
#include <initializer_list>

#include <QKeySequence>
#include <QMenuBar>

namespace numorra {

/// An item of a menu; one without a name is a separator.
struct MenuItem {
  const char* Name = nullptr;
  const char* Caption = nullptr;
  QList<QKeySequence> Keys;
  std::function<void()> Act;
  bool Checkable = false;
};

/// Adds a menu with its items to the bar.
QMenu* AddMenu(QMenuBar* bar, const char* caption, std::initializer_list<MenuItem> items);

}  // namespace numorra
