#include "app/play/hints.h"

#include "app/board/position.h"
#include "app/board/totals_check.h"
#include "app/play/entry_names.h"
#include "app/play/fill_gaps.h"
#include "app/play/lay_out.h"
#include "puzzle/search.h"
#include "puzzle/step_words.h"
#include "words/say.h"

namespace numorra {
namespace {

const SearchLimit kLimit{.Seconds = kFirstSearch};

/// Entries that cannot stay: all of them, or at least one of them.
struct Wrong {
  std::vector<Place> Cells;
  bool All = true;
};

/// The entries that differ from the only solution of the board's givens; empty if there are no
/// givens, or not exactly one solution.
std::optional<Wrong> AgainstGivens(const Board& board, const Puzzle& puzzle, Random& random,
                                   WorkStage& stage) {
  const Square<bool> givens = StoredSquareOf(board).Givens;
  if (givens.IsEmpty()) return std::nullopt;
  Puzzle clues = puzzle;
  for (int cell = 0; cell < givens.Size(); ++cell) {
    if (!givens[cell]) clues.Cells[cell] = 0;
  }
  const SearchResult result = Solve(clues, kLimit, random, stage);
  const auto* one = std::get_if<OneSolution>(&result);
  if (!one) return std::nullopt;
  Wrong wrong;
  for (int cell = 0; cell < givens.Size(); ++cell) {
    const bool filled = puzzle.Cells[cell] != 0;
    if (filled && puzzle.Cells[cell] != one->Solved.Cells[cell]) {
      wrong.Cells.push_back(puzzle.Cells.PlaceOf(cell));
    }
  }
  return wrong;
}

/// Why a board has no solution.
Wrong InTheWay(const Board& board, const Puzzle& puzzle, Random& random, WorkStage& stage) {
  if (auto wrong = AgainstGivens(board, puzzle, random, stage)) return *wrong;
  return {EntriesInTheWay(puzzle, StoredSquareOf(board).Givens, random, stage), false};
}

Remark CannotStay(const Board& board, const Wrong& wrong) {
  const std::vector<Place>& cells = wrong.Cells;
  if (cells.empty()) {
    return {board.HasGaps() ? Say("nothing can fill these gaps")
                            : Say("not all lines of the board are right")};
  }
  const std::string names = NamesOfEntries(PositionOf(board), cells);
  if (cells.size() == 1) return {Say("%1 cannot stay", names), cells};
  return {wrong.All ? Say("%1: none of these can stay", names)
                    : Say("%1: one of these cannot stay", names),
          cells};
}

Remark Against(const AgainstRules& against) {
  Remark remark{against.Why};
  if (against.Where) remark.Where.push_back(*against.Where);
  return remark;
}

/// Runs `tell` on the puzzle on the board and the result of a search, with the busy pointer; or
/// returns why the board is no puzzle.
template <class Tell>
Remark AfterSearch(const Board& board, Random& random, WorkStage& stage, Tell tell) {
  const auto read = PuzzleOf(StoredSquareOf(board));
  if (const auto* against = std::get_if<AgainstRules>(&read)) return Against(*against);
  const auto& puzzle = std::get<Puzzle>(read);
  random.Reseed();
  const BusyPointer busy(stage);
  return tell(puzzle, Solve(puzzle, kLimit, random, stage));
}

/// The steps as remarks; the first one holds them all if there are several.
Remark Explained(const Deduction& deduction, const LineMap& map) {
  std::vector<Remark> steps;
  for (const Step& step : deduction.Steps)
    steps.push_back({SentenceOf(step, map), PlacesOf(step, map)});
  Remark remark = steps.front();
  if (steps.size() > 1) remark.Steps = std::move(steps);
  return remark;
}

}  // namespace

Remark Hints::Next() {
  Position now = PositionOf(board_);
  if (!next_ || IsChange(position_, now) || position_.Asked != now.Asked) {
    next_.reset();
    position_ = std::move(now);
    presses_ = 0;
    Remark remark = Begin();
    if (!next_) return remark;
  }
  const LineMap& map = LineMap::Of(board_.GridSize);
  const Place place = PlaceAt(next_->Cell, board_.GridSize);
  switch (++presses_) {
    case 1:
      // Translators: a line or a cell stands in the place.
      return {Say("look at %1", WhereToLook(*next_, map)), PlacesToLook(*next_, map)};
    case 2:
      return Explained(*next_, map);
    default:
      break;
  }
  const RedrawLock lock(board_.grid);
  board_.grid.SetText(place.Row, place.Column, std::to_string(next_->Number));
  board_.ReadGrid();
  board_.ShowTotals();
  RefreshTotals(board_);
  board_.ReturnTo(place.Row, place.Column);
  const std::string text = Say("%1 is in %2", next_->Number, NameOf(place));
  next_.reset();
  return {text, {place}};
}

Remark Hints::Begin() {
  const auto tell = [this](const Puzzle& puzzle, const SearchResult& result) -> Remark {
    if (std::holds_alternative<NoSolution>(result)) {
      return CannotStay(board_, InTheWay(board_, puzzle, random_, stage_));
    }
    if (!board_.HasGaps()) return {Say("the board has no gaps")};
    if (const auto* one = std::get_if<OneSolution>(&result)) {
      next_ = NextNumber(puzzle, one->Solved, stage_);
      return {};
    }
    if (const auto* open = std::get_if<NotSettled>(&result)) return {WhyOpen(*open, kFirstSearch)};
    return {Say("this board has several solutions, so no number follows")};
  };
  return AfterSearch(board_, random_, stage_, tell);
}

Remark CheckEntries(const Board& board, Random& random, WorkStage& stage) {
  const auto tell = [&](const Puzzle& puzzle, const SearchResult& result) -> Remark {
    if (std::holds_alternative<NoSolution>(result)) {
      return CannotStay(board, InTheWay(board, puzzle, random, stage));
    }
    const auto* open = std::get_if<NotSettled>(&result);
    return {open && !open->Found ? WhyOpen(*open, kFirstSearch) : Say("all entries can stay")};
  };
  return AfterSearch(board, random, stage, tell);
}

}  // namespace numorra
