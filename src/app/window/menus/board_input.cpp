#include "app/window/menus/board_input.h"

#include <memory>
#include <utility>

#include "app/play/board_state.h"
#include "app/window/board/grid_accessible.h"
#include "toolkit/on_signal.h"
#include "words/say.h"

namespace numorra {
namespace {

PressedButton ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return PressedButton::Left;
    case Qt::RightButton:
      return PressedButton::Right;
    default:
      return PressedButton::Other;
  }
}

}  // namespace

BoardInput::BoardInput(Desk& desk, StateLine& state, QObject* parent)
    : QObject(parent), desk_(desk), state_(state) {
  desk_.Place.View->TipOf = [&board = desk_.TheBoard()](int row, int column) {
    return TipOfTotal(board, row, column);
  };
  ConnectMouse();
  ConnectGestures();
  ConnectKeys();
  ConnectMenu();
}

void BoardInput::ConnectMouse() {
  GridView* const view = desk_.Place.View;
  Board& board = desk_.TheSession.TheBoard;
  OnSignal(desk_.Runner, view, &GridView::CellPressed, this,
           [this, &board](int row, int column, Qt::MouseButton button, QPoint position) {
             const auto press = [=, this, &board] {
               return PressBoard(board, desk_.TheDialogs, row, column, ButtonOf(button));
             };
             Press(press, position);
           });
  OnSignal(desk_.Runner, view, &GridView::MenuWanted, this, [this, &board] {
    Press([this, &board] {
      return PressBoard(board, desk_.TheDialogs, board.grid.CurrentRow(),
                        board.grid.CurrentColumn(), PressedButton::Right);
    });
  });
  OnSignal(desk_.Runner, view, &GridView::MarkWanted, this, [this, &board](MarkedLine line) {
    if (desk_.TheSession.Noting().EndNumber()) return;
    Press([this, &board, line] { return MarkByKey(board, desk_.TheDialogs, line); });
  });
}

void BoardInput::ConnectGestures() {
  CellGestures* const gestures = desk_.Place.Gestures;
  Board& board = desk_.TheSession.TheBoard;
  gestures->CanDrag = [&board](Place from) { return CanDrag(board, from); };
  const EditCommand& swap = *FindEdit(std::string("swapvaluex"));
  OnSignal(desk_.Runner, gestures, &CellGestures::Dragged, this,
           [this, &board, &swap](Place from, Place to) {
             desk_.RunOnCurrentCell(Say(swap.Caption), [this, &board, from, to] {
               DragCell(board, desk_.TheDialogs, from, to);
             });
           });
  OnSignal(desk_.Runner, gestures, &CellGestures::Held, this,
           [this, &board](Place cell, QPoint position) {
             const auto press = [=, this, &board] {
               return PressBoard(board, desk_.TheDialogs, cell.Row, cell.Column,
                                 PressedButton::Right);
             };
             Press(press, position);
           });
}

void BoardInput::ConnectKeys() {
  GridView* const view = desk_.Place.View;
  Session& session = desk_.TheSession;
  for (GridView* cells : std::initializer_list<GridView*>{view, desk_.Place.Walk}) {
    OnSignal(desk_.Runner, cells, &GridView::CurrentCellShown, this,
             [cells](bool another) { ReadCurrentCell(*cells, another); });
  }
  OnSignal(desk_.Runner, view, &GridView::CellWanted, this, [this, &session](int row, int column) {
    // Translators: the name of what the player did, as in "Undo move".
    desk_.RunOnCurrentCell(SayIn("undone", "move"), [&session, row, column] {
      session.TheBoard.grid.SetCurrent(row, column);
    });
  });
  OnSignal(desk_.Runner, view, &GridView::CharacterTyped, this, [this, &session](char32_t typed) {
    if (typed == U'\r' && session.Noting().EndNumber()) return;
    if (session.Noting().TakingNotes() && typed != U'\r') {
      desk_.RunOnCurrentCell(UndoHistory::kNoting,
                             [&session, typed] { session.Noting().TypeCharacter(typed); });
    } else if (typed == U'\r') {
      // Translators: the name of what the player did, as in "Undo check".
      desk_.RunOnCurrentCell(SayIn("undone", "check"),
                             [&session] { session.Entry().PressEnter(); });
    } else {
      auto why = std::make_shared<std::string>();
      desk_.RunOnCurrentCell(UndoHistory::kTyping, [&session, typed, why] {
        *why = session.Entry().TypeCharacter(typed);
      });
      if (!why->empty()) state_.ShowBriefly(*why);
    }
  });
  OnSignal(desk_.Runner, view, &GridView::KeypadPressed, this, [this, &session](int sign) {
    // Translators: a number becomes larger or smaller by one: the name of that, as in "Undo step".
    desk_.RunOnCurrentCell(SayIn("undone", "step"), [&session, sign] {
      sign > 0 ? session.Entry().KeypadPlus() : session.Entry().KeypadMinus();
    });
  });
}

void BoardInput::ConnectMenu() {
  Session& session = desk_.TheSession;
  OnSignal(desk_.Runner, &desk_.Menu, &BoardMenu::Chosen, this,
           [this, &session](const EditCommand* command) {
             desk_.RunOnCurrentCell(WordsFor(*command, session.TheBoard.BaseValue),
                                    [&session, command] { session.Edits().Run(*command); });
           });
  OnSignal(desk_.Runner, &desk_.Menu, &BoardMenu::RedoChosen, this, [this, &session] {
    desk_.RunOnCurrentCell(session.LastCommand.Caption, [&session] { session.Edits().Redo(); });
  });
  session.Watch.Listen(
      [this](const CommandResult&) { desk_.Menu.ShowHistory(desk_.TheSession.LastCommand); });
}

void BoardInput::Press(std::function<PressOutcome()> press, std::optional<QPoint> menuPosition) {
  // Translators: the name of what the player did, as in "Undo swap".
  desk_.RunOnBoard(SayIn("undone", "swap"), [this, press = std::move(press), menuPosition] {
    const PressOutcome outcome = press();
    if (outcome == PressOutcome::Nothing) return;
    desk_.Menu.EnableEditing(outcome != PressOutcome::OpenShortMenu);
    desk_.Menu.redox->setEnabled(true);
    if (outcome == PressOutcome::Done) return;
    desk_.Menu.ShowBaseValue(desk_.TheBoard().BaseValue);
    if (!menuPosition) desk_.BringCurrentCellIntoView();
    desk_.Menu.popup(menuPosition.value_or(desk_.Place.View->CurrentCellPosition()));
  });
}

}  // namespace numorra
