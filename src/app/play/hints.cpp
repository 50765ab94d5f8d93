#include "app/play/hints.h"

#include <algorithm>

#include "app/board/position.h"
#include "app/board/totals_check.h"
#include "app/play/fill_gaps.h"
#include "app/play/lay_out.h"
#include "puzzle/making.h"

namespace numorra {
namespace {

const SearchLimit kLimit{.Seconds = kFirstSearch};

/// The entries that cannot stay, the givens of the board being right.
std::vector<Place> WrongEntries(const Board& board, const Puzzle& puzzle, Random& random,
                                BuildStage& stage) {
  const std::vector<bool> givens = StoredSquareOf(board).Givens;
  if (givens.empty()) return EntriesInTheWay(puzzle, givens, random, stage);
  Puzzle clues = puzzle;
  for (std::size_t cell = 0; cell < givens.size(); ++cell) {
    if (!givens[cell]) clues.Cells[cell] = 0;
  }
  const SearchResult result = Solve(clues, kLimit, random, stage);
  const auto* one = std::get_if<OneSolution>(&result);
  if (!one) return EntriesInTheWay(puzzle, givens, random, stage);
  std::vector<Place> wrong;
  for (std::size_t cell = 0; cell < givens.size(); ++cell) {
    const bool filled = puzzle.Cells[cell] != 0;
    if (filled && puzzle.Cells[cell] != one->Solved.Cells[cell]) {
      wrong.push_back(puzzle.PlaceOf(static_cast<int>(cell)));
    }
  }
  return wrong;
}

Remark CannotStay(const Board& board, const std::vector<Place>& wrong) {
  std::string text;
  constexpr std::size_t kMostNamed = 5;
  for (std::size_t i = 0; i < std::min(kMostNamed, wrong.size()); ++i) {
    text += (i > 0 ? "; " : "") + board.grid.Text(wrong[i].Row, wrong[i].Column) + " in " +
            NameOf(wrong[i]);
  }
  if (wrong.size() > kMostNamed) {
    text += "; and " + std::to_string(wrong.size() - kMostNamed) + " more";
  }
  return {text + (wrong.size() == 1 ? " cannot stay" : " cannot all stay"), wrong};
}

Remark Against(const AgainstRules& against) {
  Remark remark{against.Why};
  if (against.Where) remark.Where.push_back(*against.Where);
  return remark;
}

std::string NotInTime() {
  return "whether it has a solution was not settled in 3 seconds";
}

}  // namespace

Remark Hints::Next() {
  const std::vector<std::string> texts = PositionOf(board_).Texts;
  if (!step_ || texts != texts_) {
    step_.reset();
    texts_ = texts;
    presses_ = 0;
    const Remark remark = Begin();
    if (!step_) return remark;
  }
  const Place place{step_->Cell / board_.GridSize + 1, step_->Cell % board_.GridSize + 1};
  switch (++presses_) {
    case 1:
      return {"look at " + step_->WhereName, step_->Where};
    case 2:
      return {step_->Why, step_->Where};
    default:
      break;
  }
  const RedrawLock lock(board_.grid);
  board_.grid.SetText(place.Row, place.Column, std::to_string(step_->Number));
  board_.ReadGrid();
  board_.ShowTotals();
  RefreshTotals(board_);
  board_.ReturnTo(place.Row, place.Column);
  const std::string text = std::to_string(step_->Number) + " is in " + NameOf(place);
  step_.reset();
  return {text, {place}};
}

Remark Hints::Begin() {
  if (!board_.HasGaps()) return {"the board has no gaps"};
  const auto read = PuzzleOf(StoredSquareOf(board_));
  if (const auto* against = std::get_if<AgainstRules>(&read)) return Against(*against);
  const auto& puzzle = std::get<Puzzle>(read);
  random_.Reseed();
  const BusyPointer busy(stage_);
  const SearchResult result = Solve(puzzle, kLimit, random_, stage_);
  if (const auto* one = std::get_if<OneSolution>(&result)) {
    step_ = Find(puzzle, one->Solved);
    return {};
  }
  if (std::holds_alternative<SeveralSolutions>(result)) {
    return {"this board has several solutions, so no number follows"};
  }
  if (std::holds_alternative<NotSettled>(result)) return {NotInTime()};
  const std::vector<Place> wrong = WrongEntries(board_, puzzle, random_, stage_);
  return wrong.empty() ? Remark{"nothing can fill these gaps"} : CannotStay(board_, wrong);
}

/// The next number by rules, or else one of the solution that trying has to find.
std::optional<Step> Hints::Find(const Puzzle& puzzle, const Puzzle& solved) const {
  if (auto step = NextStep(puzzle, Grade::Expert)) return step;
  const Candidates board(puzzle);
  for (int cell = 0; cell < board.Cells(); ++cell) {
    if (board.Value(cell) != 0) continue;
    const std::int64_t number = solved.Cells[static_cast<std::size_t>(cell)];
    return Step{cell,
                number,
                Grade::Expert,
                {puzzle.PlaceOf(cell)},
                NameOf(puzzle.PlaceOf(cell)),
                WhyTried(board, cell, number)};
  }
  return std::nullopt;
}

Remark CheckEntries(const Board& board, Random& random, BuildStage& stage) {
  const auto read = PuzzleOf(StoredSquareOf(board));
  if (const auto* against = std::get_if<AgainstRules>(&read)) return Against(*against);
  const auto& puzzle = std::get<Puzzle>(read);
  random.Reseed();
  const BusyPointer busy(stage);
  const std::vector<bool> givens = StoredSquareOf(board).Givens;
  if (!givens.empty()) {
    const std::vector<Place> wrong = WrongEntries(board, puzzle, random, stage);
    if (!wrong.empty()) return CannotStay(board, wrong);
  }
  const SearchResult result = Solve(puzzle, kLimit, random, stage);
  if (std::holds_alternative<NotSettled>(result)) return {NotInTime()};
  if (!std::holds_alternative<NoSolution>(result)) return {"all entries can stay"};
  const std::vector<Place> wrong = EntriesInTheWay(puzzle, givens, random, stage);
  if (wrong.empty()) return {"these entries cannot all stay"};
  return CannotStay(board, wrong);
}

Remark EnterPuzzle(Board& board, Random& random, BuildStage& stage) {
  if (!board.HasGaps()) return {"a puzzle has gaps: empty some cells with Backspace first"};
  const auto read = PuzzleOf(StoredSquareOf(board));
  if (const auto* against = std::get_if<AgainstRules>(&read)) return Against(*against);
  const auto& puzzle = std::get<Puzzle>(read);
  random.Reseed();
  const BusyPointer busy(stage);
  constexpr std::int64_t kMostCounted = 100;
  const SearchResult result = Solve(puzzle, kLimit, random, stage);
  const bool several = std::holds_alternative<SeveralSolutions>(result);
  const auto count = several ? CountSolutions(puzzle, kMostCounted, kLimit, stage) : std::nullopt;
  ForEachCell(board.GridSize,
              [&](int r, int c) { board.grid.SetGiven(r, c, !board.grid.Text(r, c).empty()); });
  if (std::holds_alternative<OneSolution>(result)) {
    return {"one solution, " + std::string(NameOf(GradeOf(puzzle)))};
  }
  if (std::holds_alternative<NoSolution>(result)) return {"no solution"};
  if (!several) return {NotInTime()};
  if (!count) return {"several solutions"};
  return {(*count < kMostCounted ? "" : "at least ") + std::to_string(*count) + " solutions"};
}

}  // namespace numorra
