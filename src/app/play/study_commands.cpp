#include "app/play/study_commands.h"

#include <algorithm>

#include "app/board/decimal_sum.h"
#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/totals_check.h"
#include "app/play/lay_out.h"
#include "study/images.h"
#include "study/relatives.h"

namespace numorra {
namespace {

/// The numbers of a full board; otherwise tells the player what is missing.
std::optional<std::vector<double>> FullBoard(const Board& board, Dialogs& dialogs) {
  std::vector<double> numbers;
  std::optional<Place> gap;
  ForEachCell(board.GridSize, [&](int r, int c) {
    const std::string& text = board.grid.Text(r, c);
    if (board.grid.At(r, c).IsGap() && !gap) gap = Place{r, c};
    numbers.push_back(Val(text));
  });
  if (!gap) return numbers;
  dialogs.Tell(NameOf(*gap) + " is empty: this needs a full board");
  return std::nullopt;
}

/// Replaces the board's numbers.
void Replace(Board& board, const std::vector<double>& numbers) {
  const RedrawLock lock(board.grid);
  auto number = numbers.begin();
  ForEachCell(board.GridSize, [&](int r, int c) {
    board.BoardValues(r, c) = *number++;
    board.grid.SetGiven(r, c, false);
  });
  board.ShowBoard();
  board.NewEntry = true;  // another square than the one that was typed into
  RefreshTotals(board);
}

std::vector<std::optional<double>> CellsOf(const std::vector<double>& numbers) {
  return {numbers.begin(), numbers.end()};
}

}  // namespace

std::optional<NumberSquare> SquareOn(const Board& board) {
  if (!board.Shown() || board.HasGaps()) return std::nullopt;
  std::vector<double> numbers;
  numbers.reserve(static_cast<std::size_t>(board.GridSize * board.GridSize));
  ForEachCell(board.GridSize, [&](int r, int c) { numbers.push_back(Val(board.grid.Text(r, c))); });
  return NumberSquare(board.GridSize, std::move(numbers));
}

void VaryBoard(Board& board, Dialogs& dialogs, Random& random) {
  const auto numbers = FullBoard(board, dialogs);
  if (!numbers) return;
  random.Reseed();
  if (const auto varied = Varied(board.GridSize, *numbers, random)) {
    Replace(board, *varied);
  } else {
    dialogs.Tell("all squares of this family look like this one");
  }
}

void ComplementBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs) {
  const auto numbers = FullBoard(board, dialogs);
  if (!numbers) return;
  const std::vector<double> complement = ComplementOf(*numbers);
  for (std::size_t cell = 0; cell < complement.size(); ++cell) {
    if (DigitsOf(Decimal(complement[cell])) <= kMostCellDigits) continue;
    dialogs.Tell("the complement of " + Decimal((*numbers)[cell]) + " in " +
                 NameOf(PlaceAt(cell, board.GridSize)) + " has more than " +
                 std::to_string(kMostCellDigits) + " digits");
    return;
  }
  const auto [least, most] = std::minmax_element(numbers->begin(), numbers->end());
  DecimalSum target;
  for (int line = 0; line < board.GridSize; ++line) {
    target.Add(*least);
    target.Add(*most);
  }
  target.Subtract(board.TargetTotal);
  if (target.Total() != board.TargetTotal) {
    board.TargetTotal = target.Total();
    if (board.SolveMode == ModeVariable) boxes.SetSum(Decimal(board.TargetTotal));
  }
  Replace(board, complement);
}

void BringToStandardForm(Board& board, Dialogs& dialogs) {
  const auto numbers = FullBoard(board, dialogs);
  if (!numbers) return;
  const std::vector<double> form = StandardForm(board.GridSize, *numbers);
  if (form == *numbers) {
    dialogs.Tell("this is the standard form");
  } else {
    Replace(board, form);
  }
}

bool LayOutSpecial(const SpecialKind& kind, Board& board, SquareBoxes& boxes, Dialogs& dialogs,
                   Random& random) {
  const int order = ToInt16(Val(boxes.Size()));
  const char* const none = WhyNoBoardHas(order);
  const std::string why = none ? none : kind.WhyNone(order);
  if (!why.empty()) {
    dialogs.Tell(why);
    return false;
  }
  random.Reseed();
  LayOut(board, boxes,
         {.Order = order,
          .Cells = CellsOf(kind.Build(order, random)),
          .Total = static_cast<double>(NormalTotal(order)),
          .Asked = Rules::Normal});
  return true;
}

void LayOutFamous(const FamousSquare& famous, Board& board, SquareBoxes& boxes) {
  LayOut(board, boxes,
         {.Order = famous.Order, .Cells = CellsOf(famous.Numbers), .Total = famous.Total});
}

}  // namespace numorra
