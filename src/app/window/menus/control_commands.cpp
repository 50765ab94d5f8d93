#include "app/window/menus/control_commands.h"

#include <utility>

#include "toolkit/menus.h"
#include "toolkit/on_signal.h"
#include "visual/shading.h"
#include "words/say.h"

namespace numorra {
ControlCommands::ControlCommands(Desk& desk, QObject* parent) : QObject(parent), desk_(desk) {
  ConnectBuilds();
  ConnectModes();
  ConnectColours();
  desk_.TheSession.Watch.Listen([this](const CommandResult&) { ShowState(); });
  ShowState();
}

void ControlCommands::Command(QPushButton* button, CommandRunner::Command body) {
  OnClick(desk_.Runner, button, this, [this, button, body = std::move(body)] {
    desk_.Runner.Run(WithoutMnemonic(button->text()), body);
  });
}

/// Runs a command that makes a board, then shows the board from its current cell.
void ControlCommands::Build(QPushButton* button, CommandRunner::Command body) {
  Command(button, [this, body = std::move(body)] {
    body();
    desk_.BringCurrentCellIntoView();
  });
}

void ControlCommands::ConnectBuilds() {
  ControlColumn& controls = desk_.Controls;
  Session& session = desk_.TheSession;
  Build(controls.Solve->SolveAuto, [&session] { session.Solve().Auto(); });
  Build(controls.Solve->SolveAgain, [&session] { session.Solve().Again(); });
  Build(controls.Solve->SolveManual, [this, &session] {
    session.BuildManually();
    desk_.Place.View->setFocus();
  });
  Build(controls.Square->Set4x4, [this, &session] {
    if (session.BuildFromTopRow()) desk_.ShowMode();
  });
  Command(controls.Square->SolveRandum, [&session] { session.ProposeSquare(); });
  Command(controls.Corners->DoCor1, [&session] { session.Solve().VaryCornerDiagonals(); });
  Command(controls.Corners->DoCor2, [&session] { session.Solve().VaryCornerEdges(); });
  OnSignal(desk_.Runner, controls.Corners->Combo1, &CornerBox::Entered, this, [this] {
    desk_.Runner.Run(Say("Corners"), [this] {
      desk_.Controls.Corners->Combo1->clear();
      desk_.TheSession.OfferCorners(*desk_.Controls.Corners);
    });
  });
}

void ControlCommands::ConnectModes() {
  const SolveFrame& solve = *desk_.Controls.Solve;
  const SquareFrame& square = *desk_.Controls.Square;
  for (const Mode mode : {ModeNormal, ModeVariable}) {
    QRadioButton* option = mode == ModeNormal ? solve.Option3 : solve.Option4;
    OnSignal(desk_.Runner, option, &QRadioButton::toggled, this, [this, mode, option](bool on) {
      if (!on) return;
      desk_.Runner.Run(WithoutMnemonic(option->text()), [this, mode] {
        desk_.TheSession.SetMode(mode);
        desk_.ShowMode();
      });
    });
  }
  OnSignal(desk_.Runner, square.Text1, &QLineEdit::textChanged, this,
           [this] { desk_.TheSession.FollowSize(); });
  for (QLineEdit* box : {square.Text1, square.Text4})
    connect(box, &QLineEdit::returnPressed, solve.SolveAuto, &QPushButton::click);
}

void ControlCommands::ConnectColours() {
  ControlColumn& controls = desk_.Controls;
  Command(controls.Colours->Command3, [this] {
    const BusyPointer busy(desk_.Building);
    FillColours(desk_.TheSession.TheBoard, desk_.Controls.Colours->Picked());
  });
  OnSignal(desk_.Runner, controls.Colours, &ColourPicker::Changed, this,
           [this] { desk_.Place.Picture->SetColour(desk_.Controls.Colours->Picked()); });
  Command(controls.Draw->Command4, [this] {
    Board& board = desk_.TheSession.TheBoard;
    if (board.HasTotal()) board.SetOverlayShown(false);
  });
  OnSignal(desk_.Runner, controls.Draw, &DrawFrame::Chosen, this,
           [this](const DrawingKind* kind) { desk_.Draw(*kind); });
}

void ControlCommands::ShowState() {
  const Board& board = desk_.TheBoard();
  const SolveFrame& solve = *desk_.Controls.Solve;
  solve.SolveManual->setProperty("tag", board.UntouchedBase ? "X" : "");
  solve.SolveAgain->setEnabled(board.SolveMode == ModeVariable &&
                               desk_.TheSession.Solve().CanSolveAgain());
  for (QWidget* button : {desk_.Controls.Corners->DoCor1, desk_.Controls.Corners->DoCor2})
    button->setEnabled(board.Shown());
}

}  // namespace numorra
