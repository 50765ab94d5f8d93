#include "generate/solve_command.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/place.h"
#include "app/board/totals_check.h"
#include "generate/corner_choice.h"
#include "generate/spreading.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr int kLargestQuickSize = 20;
constexpr int kLowestGoodBase = 4;

/// The first cell below 1: the passes keep every cell at 1 or more and would misread it.
std::optional<Place> CellBelowOne(const Board& board) {
  std::optional<Place> low;
  ForEachCell(board.GridSize, [&](int r, int c) {
    if (!low && board.BoardValues(r, c) < 1) low = Place{r, c};
  });
  return low;
}

/// Removes the digits that binary rounding has added beyond the board's decimals; adding whole
/// numbers does not change their count. False if a number becomes too long.
bool KeepDecimals(CellTable& varied, const Board& board) {
  std::size_t decimals = 0;
  ForEachCell(board.GridSize, [&](int r, int c) {
    const std::string& text = board.grid.Text(r, c);
    decimals = std::max(decimals, text.size() - std::min(text.find('.'), text.size() - 1) - 1);
  });
  const double one = std::pow(10.0, decimals);
  bool kept = true;
  ForEachCell(board.GridSize, [&](int r, int c) {
    varied(r, c) = AsShown(std::nearbyint(varied(r, c) * one) / one);
    kept = kept && DigitsOf(Decimal(varied(r, c))) <= kMostCellDigits;
  });
  return kept;
}

}  // namespace

SolveCommand::SolveCommand(const SolvePorts& ports)
    : ports_(ports),
      normal_(ports.TheRandom, ports.Stage),
      variable_(ports.TheRandom, ports.Stage) {}

void SolveCommand::Auto() {
  ports_.TheBoard.SetOverlayShown(false);
  ports_.Stage.ShowCount("");
  if (ports_.TheBoard.SolveMode == ModeNormal) {
    if (Val(ports_.Boxes.Size()) >= kMaxOrder + 1) {
      ports_.TheDialogs.Tell(Say(kOrderTooLarge));
    } else {
      BuildNormalSquare();
    }
    return;
  }
  while (!TenTries()) {
  }
}

void SolveCommand::BuildNormalSquare() {
  const BusyPointer busy(ports_.Stage);
  const CounterShown counter(ports_.Stage);
  const std::int16_t order = ToInt16(Val(ports_.Boxes.Size()));
  const CellTable square = normal_.Build(order);
  const double total = order * (ToInt16(order * order + 1) / 2.0);
  ports_.Boxes.SetSum(Decimal(total));
  ports_.TheBoard.ShowSquare(order, total, Rules::Normal, square);
}

/// True if the command is over: a square was built, the plan was refused, or the player declined.
bool SolveCommand::TenTries() {
  if (!ReadPlan()) return true;
  const CounterShown counter(ports_.Stage);
  int tries = 1;
  for (; tries <= kTries; ++tries) {
    if (tries > 1 && !ReadPlan()) return true;
    const SolveStatus status = BuildVariableSquare(tries, false);
    if (status == SolveStatus::Built) return true;
    if (status == SolveStatus::CellValueTooSmall) {
      ++tries;
      break;
    }
  }
  // The previous board is hidden while the question is open.
  Grid& grid = ports_.TheBoard.grid;
  const bool visible = grid.Visible();
  grid.SetVisible(false);
  const bool enough = !ports_.TheDialogs.Ask(
      SayCounted("Could not solve in%1 tries\ngive another 10 tries?",
                 "Could not solve in%1 tries\ngive another 10 tries?", tries - 1));
  grid.SetVisible(visible);
  return enough;
}

/// Reads the plan from the boxes; false if it is refused.
bool SolveCommand::ReadPlan() {
  ports_.List2.Clear();
  ports_.List3.Clear();
  const double size = Val(ports_.Boxes.Size());
  const double sum = Val(ports_.Boxes.Sum());
  if (ToInt16(size) < 1) {
    ports_.TheDialogs.Tell(Say(kOrderTooSmall));
    return false;
  }
  const VariablePlan plan = PlanVariableSquare(size, sum, ports_.Options.LimitToNine(),
                                               ports_.Options.Corner().has_value());
  if (plan.Sum != sum) ports_.Boxes.SetSum(Decimal(plan.Sum));
  if (const char* why = WhyNoBoardHas(plan.GridSize)) {
    ports_.TheDialogs.Tell(Say(why));
    return false;
  }
  if (plan.GridSize > kLargestQuickSize &&
      !ports_.TheDialogs.Ask(Say("solution may take some time - continue?"))) {
    return false;
  }
  lastPlan_ = plan;
  return true;
}

void SolveCommand::Again() {
  if (!lastPlan_) return;
  const CounterShown counter(ports_.Stage);
  BuildVariableSquare(1, true);
}

/// Builds a square by the last plan, shows it and tells the player what to know about it. Shows a
/// failed try only if `showFailed`.
SolveStatus SolveCommand::BuildVariableSquare(int tries, bool showFailed) {
  const auto corner = ports_.Options.Corner();
  VariableBuild build;
  {
    const BusyPointer busy(ports_.Stage);
    build = variable_.Build(*lastPlan_, corner, tries);
  }
  const bool size3 = lastPlan_->GridSize == 3;
  if (corner && !size3) ports_.Options.UncheckLimit();
  if (build.Status == SolveStatus::CellValueTooSmall) {
    ports_.TheDialogs.Tell(Say("Cell value too small"));
    return build.Status;
  }
  if (build.LeftFlat) ports_.TheDialogs.Tell(Say("cannot create matrix"));
  passCount_ = build.PassCount;
  const bool built = build.Status == SolveStatus::Built;
  const bool shown = built || showFailed;
  if (shown) Show(build);
  if (shown && lastPlan_->BaseValue < kLowestGoodBase) {
    ports_.TheDialogs.Tell(Say("result may not look good\ntotal sum for this grid is too small"));
  }
  if (size3 && lastPlan_->Sum != build.Total) {
    ports_.TheDialogs.Tell(Say("Size 3 grid can be solved only for sums divisible by 3"));
  }
  if (built && corner && build.Square(1, 1) != *corner) {
    ports_.TheDialogs.Tell(WhyNotTheCorner(*corner, *lastPlan_));
  }
  return build.Status;
}

void SolveCommand::Show(const VariableBuild& build) {
  Board& board = ports_.TheBoard;
  board.BaseValue = lastPlan_->BaseValue;
  board.TotalsChecked = false;
  board.ShowSquare(lastPlan_->GridSize, build.Total, Rules::Positive, build.Square);
  ForEachCell(board.GridSize, [&](int r, int c) { board.CellFlags(r, c) = 0; });
  for (const FlaggedCell& cell : build.LastPattern) {
    board.CellFlags(cell.Row, cell.Column) = cell.Weight;
  }
}

void SolveCommand::VaryCornerDiagonals() {
  Spread(SpreadCornerDiagonals);
}

void SolveCommand::VaryCornerEdges() {
  Spread(SpreadCornerEdges);
}

void SolveCommand::Spread(void (*pass)(PatternedSquare&)) {
  Board& board = ports_.TheBoard;
  if (!board.Shown()) return;
  if (board.HasGaps() || board.HasGivens()) {
    ports_.TheDialogs.Tell(Say("a board with gaps or given numbers cannot be varied"));
    return;
  }
  board.ReadGrid();
  if (const auto low = CellBelowOne(board)) {
    ports_.TheDialogs.Tell(
        Say("%1 in %2 is below 1, and a board with such a number cannot be varied",
            Written(board.grid.Text(low->Row, low->Column)), NameOf(*low)));
    return;
  }
  const BusyPointer busy(ports_.Stage);
  ports_.TheRandom.Reseed();
  PatternedSquare square(TurningSquare(board.BoardValues, board.GridSize),
                         lastPlan_ && lastPlan_->LimitToNine, passCount_, ports_.TheRandom,
                         ports_.Stage);
  pass(square);
  CellTable varied = square.Square().Settled();
  if (!KeepDecimals(varied, board)) {
    ports_.TheDialogs.Tell(SayCounted(
        "the varied board would have numbers with more than %1 digit",
        "the varied board would have numbers with more than %1 digits", kMostCellDigits));
    return;
  }
  passCount_ = square.PassCount();
  board.BoardValues = varied;
  board.grid.SetNotes({});
  board.ShowBoard();
  RefreshTotals(board);
}

}  // namespace numorra
