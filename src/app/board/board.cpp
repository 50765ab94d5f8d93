#include "app/board/board.h"

#include "app/board/decimal_sum.h"
#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/scoped_flag.h"

namespace numorra {
namespace {

/// Whether `is` holds for any value cell of the shown board.
template <class Is>
bool AnyCell(const Board& board, Is is) {
  bool any = false;
  if (board.Shown()) {
    ForEachCell(board.GridSize, [&](int r, int c) { any = any || is(board.grid.At(r, c)); });
  }
  return any;
}

}  // namespace

bool Board::HasGaps() const {
  return AnyCell(*this, [](const Grid::Cell& cell) { return cell.IsGap(); });
}

bool Board::HasGivens() const {
  return AnyCell(*this, [](const Grid::Cell& cell) { return cell.Given; });
}

bool Board::ByNormalRules() const {
  return Shown() && WhyNoBoardHas(GridSize) == nullptr && Asked == Rules::Normal &&
         TargetTotal == NormalTotal(static_cast<double>(GridSize));
}

bool Board::HasTotal() const {
  return Shown() && Val(grid.Text(0, 0)) != 0;
}

void Board::SetOverlayShown(bool shown) {
  if (shown != OverlayShown) grid.SetVisible(!shown);
  OverlayShown = shown;
  if (OnShown) OnShown();
}

void Board::SetupBoard() {
  MarkedRow = -1;
  MarkedCol = -1;
  TotalsJudged = false;
  const ScopedFlag busy(BoardBusy);
  const int last = GridSize + 1;
  grid.Reshape(GridSize + 2, GridSize + 2);  // leaves every cell in the window's background
  ForEachCell(GridSize, [this](int row, int column) {
    grid.SetColours(row, column, ColorTable[kCellBackground], ColorTable[kCellText]);
  });
  grid.SetCurrent(last, last);
}

void Board::FillBoard(double value) {
  double next = 0;
  ForEachCell(GridSize, [&](int row, int column) {
    BoardValues(row, column) = SolveMode == ModeNormal ? ++next : value;
    CellFlags(row, column) = 0;
  });
}

void Board::ComputeTotals() {
  numorra::ComputeTotals(BoardValues, GridSize);
}

void Board::ShowBoard() {
  WinTold = false;
  ForEachCell(GridSize, [this](int row, int column) {
    grid.SetText(row, column, Decimal(BoardValues(row, column)));
  });
  ShowTotals();
  SetOverlayShown(false);
}

void Board::ShowTotals() {
  ComputeTotals();
  const int last = GridSize + 1;
  const auto show = [this](int row, int column) {
    grid.SetText(row, column, Decimal(BoardValues(row, column)));
  };
  for (int line = 1; line <= GridSize; ++line) {
    show(line, 0);
    show(0, line);
  }
  show(0, last);
  show(last, 0);
  show(0, 0);
}

void Board::ShowSquare(std::int16_t order, double target, Rules rules, const CellTable& square) {
  const RedrawLock lock(grid);
  GridSize = order;
  TargetTotal = target;
  Asked = rules;
  SetupBoard();
  BoardValues = square;
  ShowBoard();
  grid.SetVisible(true);
  ReturnTo(1, 1);
}

void Board::MarkAllTotalsWrong() {
  for (int line = 1; line <= GridSize + 1; ++line) {
    grid.Judge(line, 0, Verdict::Wrong);
    grid.Judge(0, line, Verdict::Wrong);
  }
}

void Board::ResizeBoard() {
  grid.Reshape(1, 1);
  grid.Reshape(GridSize + 2, GridSize + 2);
  for (int column = 0; column <= GridSize + 1; ++column) {
    grid.SetColours(GridSize + 1, column, kWindowBackground, ColorTable[kCellText]);
  }
}

void Board::ReturnTo(int row, int column) {
  const auto inside = [this](int line) { return line >= 1 && line <= GridSize; };
  NewEntry = true;
  if (inside(row) && inside(column)) {
    grid.SetCurrent(row, column);
  } else {
    grid.SetCurrent(1, 1);
  }
}

void Board::ReadGrid() {
  ForEachCell(GridSize, [this](int row, int column) {
    BoardValues(row, column) = Val(grid.Text(row, column));
  });
}

void ComputeTotals(CellTable& cells, int order) {
  const int last = order + 1;
  DecimalSum main;
  DecimalSum other;
  for (int i = 1; i <= order; ++i) {
    DecimalSum row;
    DecimalSum column;
    for (int j = 1; j <= order; ++j) {
      row.Add(cells(i, j));
      column.Add(cells(j, i));
    }
    cells(i, 0) = row.Total();
    cells(0, i) = column.Total();
    main.Add(cells(i, i));
    other.Add(cells(i, last - i));
  }
  cells(0, 0) = main.Total();
  cells(0, last) = cells(last, 0) = other.Total();
}

Square<double> SquareOf(const CellTable& cells, int order) {
  Square<double> square(order);
  ForEachCell(order, [&](int r, int c) { square[Place{r, c}] = cells(r, c); });
  return square;
}

}  // namespace numorra
