#pragma once

#include <QAction>
#include <QMenu>

#include "app/board/place.h"
#include "app/window/board/number_pad.h"
#include "app/window/menus/desk.h"

namespace numorra {

/// The item Number Pad, and the pad: a tap of a finger on a cell that can be changed opens it, and
/// with the item ticked, a click does so too. It closes when another cell becomes current. The pad
/// is made when it is first opened, to keep the program's start fast.
class NumberPadItem : public QObject {
  Q_OBJECT

 public:
  NumberPadItem(QMenu* menu, Desk& desk);

  QAction* const Item;

 private:
  void Open(Place cell);
  void MakePad();
  void Close();
  void Finish();

  Desk& desk_;
  NumberPad* pad_ = nullptr;
  Place cell_;  ///< which the pad is for
};

}  // namespace numorra
