#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QPoint>

#include "app/play/board_mouse.h"
#include "app/window/menus/desk.h"

namespace numorra {

/// What the mouse, the keys and the context menu do on the board.
class BoardInput : public QObject {
  Q_OBJECT

 public:
  BoardInput(Desk& desk, QObject* parent);

 private:
  void ConnectMouse();
  void ConnectKeys();
  void ConnectMenu();

  /// Runs a press on the board and opens the menu where it asks for one: where the mouse is, or on
  /// the current cell.
  void Press(std::function<PressOutcome()> press, std::optional<QPoint> menuPosition = {});

  Desk& desk_;
};

}  // namespace numorra
