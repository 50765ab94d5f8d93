#include "app/play/edit_commands.h"

#include <algorithm>
#include <functional>

#include "app/board/numbers.h"
#include "app/play/moves.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr double kNoMaximum = -999;
constexpr double kNoMinimum = 9999;

/// The most extreme value in one direction, as a 16-bit whole number; the first of equal ones.
/// Texts that are not numbers throw TypeMismatch.
template <class Further>
double Extreme(const Board& board, double start, Further further) {
  double extreme = start;
  ForEachCell(board.GridSize, [&](int row, int column) {
    const double value = StrictVal(board.grid.Text(row, column));
    if (further(value, extreme)) extreme = ToInt16(value);
  });
  return extreme;
}

/// Why the line cannot be made right, to be said; null if it can.
const char* Refusal(AdjustOutcome outcome) {
  switch (outcome) {
    case AdjustOutcome::Possible:
      return nullptr;
    case AdjustOutcome::BelowZero:
      return Mark("cannot adjust, value will be <0");
    case AdjustOutcome::TooManyDigits:
      return Mark("cannot adjust, value will have more than 14 digits");
    case AdjustOutcome::NotOnDiagonal:
      return Mark("cell is not on a diagonal");
  }
  return nullptr;
}

}  // namespace

void EditCommands::Run(const EditCommand& command) {
  if (!board_.Shown()) return;
  refused_ = false;
  command.Act(*this);
  if (refused_ || command.Code == 0) return;
  history_.Record(command.Code, WordsFor(command, board_.BaseValue));
}

void EditCommands::Redo() {
  if (const EditCommand* command = FindEdit(Val(history_.Tag))) Run(*command);
}

void EditCommands::SetBaseValue() {
  SetCell(board_.BaseValue);
}

void EditCommands::SetMaximum() {
  SetCell(Extreme(board_, kNoMaximum, std::greater<>()));
}

void EditCommands::SetMinimum() {
  SetCell(Extreme(board_, kNoMinimum, std::less<>()));
}

void EditCommands::SetRandomValue() {
  SetCell(RandomValue());
}

void EditCommands::FillAtRandom() {
  ForEachCell(board_.GridSize, [&](int r, int c) {
    if (!board_.grid.Given(r, c)) board_.grid.SetText(r, c, Decimal(RandomValue()));
  });
  CheckAndReturn(board_, dialogs_);
}

void EditCommands::SetAllRem() {
  const int row = board_.grid.CurrentRow();
  const int column = board_.grid.CurrentColumn();
  const std::string base = Decimal(board_.BaseValue);
  ForEachCell(board_.GridSize, [&](int r, int c) {
    if (!board_.grid.Given(r, c)) board_.grid.SetText(r, c, base);
  });
  if (!board_.grid.Given(row, column)) board_.grid.SetText(row, column, Decimal(RandomValue()));
  CheckAndReturn(board_, dialogs_);
  const EditCommand& repeat = *FindEdit("Set2allran");
  history_.Record(repeat.Code, WordsFor(repeat, board_.BaseValue));
}

void EditCommands::Adjust(AdjustLine line) {
  const Adjustment adjustment = AdjustToTotal(board_, line);
  if (const char* refusal = Refusal(adjustment.Outcome)) {
    dialogs_.Tell(Say(refusal));
    refused_ = true;
  } else {
    SetCell(adjustment.Value);
  }
}

void EditCommands::SwapValue() {
  if (board_.MarkedRow == -1 || board_.MarkedCol == -1) return;
  SwapCells(board_, dialogs_, board_.MarkedRow, board_.MarkedCol, board_.grid.CurrentRow(),
            board_.grid.CurrentColumn());
}

void EditCommands::Turn(const Symmetry& symmetry) {
  TurnBoard(board_, symmetry);
}

/// Refuses a given cell; the command is then not recorded.
void EditCommands::SetCell(double value) {
  refused_ = board_.grid.Given(board_.grid.CurrentRow(), board_.grid.CurrentColumn());
  SetCurrentCell(board_, dialogs_, Decimal(value));
}

/// A random whole number from 1 to the base value, freshly seeded.
double EditCommands::RandomValue() {
  random_.Reseed();
  return std::min<double>(Int(board_.BaseValue * random_.Next()) + 1, board_.BaseValue);
}

}  // namespace numorra
