#include "app/window/menus/number_pad_item.h"

#include "toolkit/menus.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {

NumberPadItem::NumberPadItem(QMenu* menu, Desk& desk)
    : QObject(menu),
      Item(AddItem(menu, {"NumberPadx", Tr("N&umber Pad"), {}, [this] { Close(); }, true})),
      desk_(desk) {
  OnSignal(desk_.Runner, desk_.Place.Gestures, &CellGestures::Tapped, this,
           [this](Place cell, bool byFinger) {
             if (byFinger || Item->isChecked()) Open(cell);
           });
  OnSignal(desk_.Runner, &desk_.Place, &BoardPlace::SightChanged, this, [this] { Close(); });
  desk_.TheSession.Watch.Listen([this](const CommandResult& result) {
    if (Place{result.After.Row, result.After.Column} != cell_) Close();
  });
}

void NumberPadItem::Open(Place cell) {
  const Board& board = desk_.TheBoard();
  const Place current{board.grid.CurrentRow(), board.grid.CurrentColumn()};
  if (!board.Shown() || !board.TotalsChecked || cell != current) return;
  if (board.grid.Given(cell.Row, cell.Column)) return;
  if (!pad_) MakePad();
  cell_ = cell;
  const QRect place = desk_.Place.View->CellRect(cell.Row, cell.Column);
  pad_->ShowBeside(
      {desk_.Place.View->viewport()->mapTo(pad_->parentWidget(), place.topLeft()), place.size()});
}

void NumberPadItem::MakePad() {
  pad_ = new NumberPad(desk_.Place.window());
  OnSignal(desk_.Runner, pad_, &NumberPad::Typed, this,
           [this](char32_t character) { Q_EMIT desk_.Place.View->CharacterTyped(character); });
  OnSignal(desk_.Runner, pad_, &NumberPad::Done, this, [this] { Finish(); });
}

void NumberPadItem::Close() {
  if (pad_) pad_->hide();
}

/// Checks what was typed.
void NumberPadItem::Finish() {
  Close();
  desk_.RunOnCurrentCell(SayIn("undone", "check"), [this] {
    desk_.TheSession.Noting().EndNumber();
    desk_.TheSession.Entry().Finish();
  });
}

}  // namespace numorra
