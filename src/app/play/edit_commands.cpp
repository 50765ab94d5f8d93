#include "app/play/edit_commands.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "app/play/moves.h"
#include "transform/symmetry.h"

namespace numorra {
namespace {

constexpr double kNoMaximum = -999;
constexpr double kNoMinimum = 9999;

/// Which symmetry a code stands for: both go in the same order.
Symmetry SymmetryOf(RedoCode code) {
  return static_cast<Symmetry>(static_cast<int>(code) - static_cast<int>(RedoCode::FlipVertical));
}

/// The cell that is furthest in one direction, as a 16-bit whole number; the first of equals. Texts
/// that are no numbers throw TypeMismatch.
template <class Further>
double Extreme(const Board& board, double start, Further further) {
  double extreme = start;
  ForEachCell(board.GridSize, [&](int row, int column) {
    const double value = StrictVal(board.grid.Text(row, column));
    if (further(value, extreme)) extreme = ToInt16(value);
  });
  return extreme;
}

}  // namespace

void EditCommands::Run(RedoCode code) {
  if (!board_.Shown()) return;
  std::string caption = CaptionOf(code);
  bool done = true;
  switch (code) {
    case RedoCode::MaximumValue:
      SetCell(LargestValue());
      break;
    case RedoCode::MinimumValue:
      SetCell(SmallestValue());
      break;
    case RedoCode::RandomValue:
      SetCell(RandomValue());
      break;
    case RedoCode::WholeBoardRandom:
      FillWithRandomValues();
      break;
    case RedoCode::CorrectRow:
      done = Adjust(AdjustLine::Row);
      break;
    case RedoCode::CorrectColumn:
      done = Adjust(AdjustLine::Column);
      break;
    case RedoCode::CorrectDiagonal:
      done = Adjust(AdjustLine::Diagonal);
      break;
    case RedoCode::SetValue:
      caption += Str(board_.BaseValue);
      SetCell(board_.BaseValue);
      break;
    default:
      TurnBoard(board_, SymmetryOf(code));
      break;
  }
  if (done) history_.Record(code, caption);
}

void EditCommands::Redo() {
  const double code = Val(history_.Tag);
  if (code >= 1) Run(static_cast<RedoCode>(code));
}

void EditCommands::SetAllRem() {
  if (!board_.Shown()) return;
  const int row = board_.grid.CurrentRow();
  const int column = board_.grid.CurrentColumn();
  const std::string base = Decimal(board_.BaseValue);
  ForEachCell(board_.GridSize, [&](int r, int c) { board_.grid.SetText(r, c, base); });
  board_.grid.SetText(row, column, Decimal(RandomValue()));
  CheckAndReturn(board_, dialogs_);
  history_.Record(RedoCode::WholeBoardRandom, CaptionOf(RedoCode::WholeBoardRandom));
}

void EditCommands::SwapValue() {
  if (!board_.Shown() || board_.MarkedRow == -1 || board_.MarkedCol == -1) return;
  ExchangeTexts(board_.grid, board_.MarkedRow, board_.MarkedCol, board_.grid.CurrentRow(),
                board_.grid.CurrentColumn());
  CheckAndReturn(board_, dialogs_);
}

void EditCommands::SetCell(double value) {
  SetCurrentCell(board_, dialogs_, Decimal(value));
}

/// False when the line cannot be made right, which the player is then told.
bool EditCommands::Adjust(AdjustLine line) {
  const Adjustment adjustment = AdjustToTotal(board_, line);
  switch (adjustment.Outcome) {
    case AdjustOutcome::Possible:
      SetCell(adjustment.Value);
      return true;
    case AdjustOutcome::BelowZero:
      dialogs_.Tell("cannot adjust, value will be <0");
      return false;
    case AdjustOutcome::NotOnDiagonal:
      dialogs_.Tell("cell is not on a diagonal");
      return false;
  }
  return false;
}

/// A whole number from 1 to the base value, freshly seeded.
double EditCommands::RandomValue() {
  random_.Reseed();
  return std::min<double>(Int(board_.BaseValue * random_.Next()) + 1, board_.BaseValue);
}

double EditCommands::LargestValue() const {
  return Extreme(board_, kNoMaximum, std::greater<>());
}

double EditCommands::SmallestValue() const {
  return Extreme(board_, kNoMinimum, std::less<>());
}

void EditCommands::FillWithRandomValues() {
  ForEachCell(board_.GridSize,
              [&](int r, int c) { board_.grid.SetText(r, c, Decimal(RandomValue())); });
  CheckAndReturn(board_, dialogs_);
}

}  // namespace numorra
