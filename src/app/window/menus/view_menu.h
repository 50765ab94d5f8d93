#pragma once

#include <QMainWindow>

#include "app/window/board/view_control.h"
#include "app/window/menus/desk.h"
#include "app/window/menus/keep_items.h"
#include "app/window/menus/number_pad_item.h"
#include "app/window/panels/panel_room.h"
#include "app/window/panels/properties_panel.h"

namespace numorra {

/// The View menu: the zoom of the board, the panels beside it, and what is kept of them.
class ViewMenu : public QObject {
  Q_OBJECT

 public:
  /// `state`: the line in the menu bar.
  ViewMenu(QMainWindow* window, Desk& desk, QWidget* state, const KeptFolders& folders);

  /// Makes room for panels that open and close.
  PanelRoom& Room() { return *room_; }

  KeepItems& Kept() { return *kept_; }

 private:
  void Escape();
  void FollowProperties();
  void StudyBoard();
  ViewChoices Choices() const;
  void Choose(const ViewChoices& choices);

  Desk& desk_;
  PropertiesPanel* properties_;
  QAction* numbers_;
  QAction* quiet_;
  NumberPadItem* pad_;
  QAction* shown_;
  ViewControl* size_;
  PanelRoom* room_;
  KeepItems* kept_;
  bool studied_ = false;  ///< the panel is up to date
};

}  // namespace numorra
