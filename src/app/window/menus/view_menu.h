#pragma once

#include <QMainWindow>

#include "app/window/board/view_control.h"
#include "app/window/menus/desk.h"
#include "app/window/panels/panel_room.h"
#include "app/window/panels/properties_panel.h"

namespace numorra {

/// The View menu: the zoom of the board, and the panels beside it.
class ViewMenu : public QObject {
  Q_OBJECT

 public:
  /// `state`: the line in the menu bar.
  ViewMenu(QMainWindow* window, Desk& desk, QWidget* state);

  /// Makes room for panels that open and close.
  PanelRoom& Room() { return *room_; }

 private:
  void Escape();
  void FollowProperties();
  void StudyBoard();

  Desk& desk_;
  PropertiesPanel* properties_;
  QAction* shown_;
  ViewControl* size_;
  PanelRoom* room_;
  bool studied_ = false;  ///< the panel is up to date
};

}  // namespace numorra
