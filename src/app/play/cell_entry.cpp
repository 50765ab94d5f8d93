#include "app/play/cell_entry.h"

#include <algorithm>

#include "app/board/decimal_sum.h"
#include "app/board/numbers.h"
#include "app/board/scoped_flag.h"
#include "app/board/totals_check.h"
#include "app/play/moves.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr char32_t kBackspace = 8;

}  // namespace

CellEntry::CellEntry(Board& board, Dialogs& dialogs) : board_(board), dialogs_(dialogs) {
  board_.grid.OnLeaveCell = [this] { LeaveCell(); };
  board_.grid.OnCellChanged = [this] { ChangeCell(); };
}

std::string CellEntry::TypeCharacter(char32_t character) {
  const bool digit = character >= U'0' && character <= U'9';
  const bool editing = digit || character == kBackspace;
  if (!board_.Shown()) return {};
  if (!board_.TotalsChecked) return editing ? Say("press F9 to play on this board") : "";
  if (!editing) return Say("cells take digits only");
  Grid& grid = board_.grid;
  const int row = grid.CurrentRow();
  const int column = grid.CurrentColumn();
  if (!MayChange(board_, dialogs_, row, column)) return {};
  std::string text = Trim(grid.Text(row, column));
  std::string why;
  if (character == kBackspace) {
    if (text.empty()) return {};
    text.pop_back();
  } else {
    if (board_.NewEntry) text.clear();
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (std::count_if(text.begin(), text.end(), isDigit) < kMostCellDigits) {
      text += static_cast<char>(character);
    } else {
      why = Say("a cell takes at most %1 digits", kMostCellDigits);
    }
  }
  grid.SetText(row, column, text);
  board_.NewEntry = false;
  return why;
}

void CellEntry::PressEnter() {
  if (!board_.TotalsChecked || !board_.Shown()) return;
  const int next = board_.grid.CurrentRow() + 1;
  board_.NewEntry = true;
  CheckTotals(board_, dialogs_);
  board_.grid.SetCurrent(next, board_.grid.CurrentColumn());
}

void CellEntry::KeypadPlus() {
  Step(1);
}

void CellEntry::KeypadMinus() {
  Step(-1);
}

void CellEntry::Step(double amount) {
  if (!board_.TotalsChecked || !board_.Shown() || board_.SolveMode != ModeVariable) return;
  DecimalSum sum;
  sum.Add(Val(board_.grid.Text(board_.grid.CurrentRow(), board_.grid.CurrentColumn())));
  sum.Add(amount);
  const double value = sum.Total();
  const bool downToZero = amount < 0 && value == 0;
  const std::string text = Decimal(downToZero ? 1 : value);
  if (DigitsOf(text) <= kMostCellDigits) SetCurrentCell(board_, dialogs_, text);
}

void CellEntry::LeaveCell() {
  if (board_.NewEntry || !board_.TotalsChecked || board_.BoardBusy || leaving_) return;
  const ScopedFlag leaving(leaving_);
  CheckAndReturn(board_, dialogs_);
}

/// A current cell that leaves the value block at one edge enters it at the opposite one.
void CellEntry::ChangeCell() {
  if (board_.BoardBusy || board_.CheckRunning || !board_.Shown()) return;
  const int n = board_.GridSize;
  const auto wrapped = [n](int line) { return line == 0 ? n : line == n + 1 ? 1 : line; };
  board_.NewEntry = true;
  board_.grid.SetCurrent(wrapped(board_.grid.CurrentRow()), wrapped(board_.grid.CurrentColumn()));
}

}  // namespace numorra
