#pragma once

#include <QMainWindow>

#include "app/window/board/view_control.h"
#include "app/window/menus/desk.h"
#include "app/window/panels/panel_room.h"
#include "app/window/panels/properties_panel.h"

namespace numorra {

/// The View menu: how large the board is shown, and what stands beside it.
class ViewMenu : public QObject {
  Q_OBJECT

 public:
  ViewMenu(QMainWindow* window, Desk& desk);

  /// Gives room to the panels that come and go.
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
  bool studied_ = false;  ///< the panel shows what the board is now
};

}  // namespace numorra
