#pragma once

#include <QMenuBar>

#include "app/window/menus/desk.h"

namespace numorra {

/// The Edit menu: undo, the clipboard, the check.
class EditMenu : public QObject {
  Q_OBJECT

 public:
  EditMenu(QMenuBar* bar, Desk& desk);

 private:
  void Walk(const std::string& name, void (UndoHistory::*step)(Board&));
  void Copy(bool withPicture);
  void Paste();
  void ShowState();

  Desk& desk_;
  QAction* undo_;
  QAction* redo_;
  QAction* check_;
};

}  // namespace numorra
