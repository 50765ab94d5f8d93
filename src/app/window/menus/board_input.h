#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QPoint>

#include "app/play/board_mouse.h"
#include "app/window/menus/desk.h"
#include "app/window/panels/state_line.h"

namespace numorra {

/// Handles the mouse, the keys and the context menu on the board.
class BoardInput : public QObject {
  Q_OBJECT

 public:
  /// `state`: tells why a key was not taken.
  BoardInput(Desk& desk, StateLine& state, QObject* parent);

 private:
  void ConnectMouse();
  void ConnectGestures();
  void ConnectKeys();
  void ConnectMenu();

  /// Passes a press to the board and, if it asks for the menu, opens it at the mouse or on the
  /// current cell.
  void Press(std::function<PressOutcome()> press, std::optional<QPoint> menuPosition = {});

  Desk& desk_;
  StateLine& state_;
};

}  // namespace numorra
