#include "app/window/menus/desk.h"

#include <utility>

#include "words/say.h"

namespace numorra {

void Desk::RunOnBoard(const std::string& name, CommandRunner::Command command) {
  Runner.Run(name, [this, command = std::move(command)] {
    Place.EndWalk();
    Place.View->setFocus();
    if (TheBoard().Shown()) command();
  });
}

void Desk::RunOnCurrentCell(const std::string& name, CommandRunner::Command command) {
  RunOnBoard(name, [this, command = std::move(command)] {
    command();
    BringCurrentCellIntoView();
  });
}

std::function<void()> Desk::Beside(CommandRunner::Command body) {
  return [this, body = std::move(body)] { Runner.RunBeside(body); };
}

void Desk::BringCurrentCellIntoView() {
  Place.View->BringIntoView(TheBoard().grid.CurrentRow(), TheBoard().grid.CurrentColumn());
}

void Desk::OpenWorksheet(PuzzlesAtHand atHand, const WorksheetForm::Ports& ports, QWidget* window) {
  if (!Sheet) {
    constexpr int kPuzzles = 6;
    const auto fresh = TheSession.WishForFreshSquares();
    if (!fresh) return;
    Sheet = SheetChoice{.Set = {*fresh, {{Grade::Easy, kPuzzles}}}};
  }
  (new WorksheetForm(std::move(atHand), *Sheet, ports, TheSession.TheRandom, TheDialogs, window))
      ->open();
}

void Desk::Draw(const DrawingKind& kind) {
  Runner.Run(Say("Draw"), [this, &kind] {
    Board& board = TheSession.TheBoard;
    if (!board.HasTotal()) return;
    Place.Picture->SetKind(&kind);
    Place.Picture->SetColour(Controls.Colours->Picked());
    board.SetOverlayShown(true);
  });
}

void Desk::ShowMode() {
  const bool variable = TheBoard().SolveMode == ModeVariable;
  Controls.ShowMode(variable);
  Menu.EnableEditing(variable);
  Menu.redox->setEnabled(variable);
  TheSession.FollowSize();
}

void Desk::ShowLaidOut() {
  ShowMode();
  Place.View->setFocus();
  BringCurrentCellIntoView();
}

}  // namespace numorra
