#pragma once

#include <functional>

#include <QAction>
#include <QMenu>
#include <QObject>

#include "app/play/puzzle_aids.h"
#include "app/window/menus/desk.h"

namespace numorra {

/// The Puzzle menu's items for notes and for the way back to the last right board. It also keeps
/// the missing numbers below the board up to date.
class NotesItems : public QObject {
  Q_OBJECT

 public:
  /// `back`: goes back to the last right board.
  NotesItems(QMenu* menu, Desk& desk, const std::function<void()>& back);

 private:
  void Fill();
  void ShowState();
  void ShowMissing();

  Desk& desk_;
  QAction* notes_;
  QAction* fill_;
  QAction* clear_;
  QAction* back_;
  NumbersToPlace missing_;  ///< as the panel shows them
};

}  // namespace numorra
