#include "app/play/last_right.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "app/play/entry_names.h"
#include "app/play/fill_gaps.h"
#include "app/play/lay_out.h"
#include "puzzle/search.h"
#include "transform/symmetry.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The solution as texts, in the eight ways to turn and mirror the board: the way of the last
/// position comes first, because most steps turn nothing.
class SolutionTexts {
 public:
  SolutionTexts(const Puzzle& solution, const Position& position)
      : target_(position.Target),
        givens_(std::count(position.Givens.begin(), position.Givens.end(), true)) {
    const int order = solution.Order();
    const auto textOf = [&](int cell) { return std::to_string(solution.Cells[cell]); };
    ways_.push_back(SquareOf(order, textOf));
    for (const Symmetry& symmetry : kSymmetries) {
      CellTable from;
      ForEachCell(order, [&](int r, int c) {
        from(r, c) = static_cast<double>(IndexOf({r, c}, order));
      });
      symmetry.Turn(from, order);
      ways_.push_back(SquareOf(order, [&](int cell) {
        const auto [row, column] = PlaceAt(cell, order);
        return textOf(static_cast<int>(from(row, column)));
      }));
    }
  }

  /// The cells of a position whose entries differ from the solution; nothing if the position is of
  /// another puzzle.
  std::optional<std::vector<Place>> WrongIn(const Position& position) {
    const auto way = std::find_if(ways_.begin(), ways_.end(),
                                  [&](const auto& texts) { return HasGivens(position, texts); });
    if (way == ways_.end()) return std::nullopt;
    std::iter_swap(ways_.begin(), way);
    std::vector<Place> wrong;
    for (int cell = 0; cell < position.Texts.Size(); ++cell) {
      const std::string& text = position.Texts[cell];
      if (text.empty() || text == ways_.front()[cell]) continue;
      if (Decimal(Val(text)) != ways_.front()[cell]) wrong.push_back(position.Texts.PlaceOf(cell));
    }
    return wrong;
  }

 private:
  /// Whether the position is this puzzle in this way.
  bool HasGivens(const Position& position, const Square<std::string>& texts) const {
    if (position.Order() != texts.Order() || position.Target != target_) return false;
    std::ptrdiff_t givens = 0;
    for (int cell = 0; cell < position.Givens.Size(); ++cell) {
      if (!position.Givens[cell]) continue;
      if (position.Texts[cell] != texts[cell]) return false;
      ++givens;
    }
    return givens == givens_;
  }

  double target_;
  std::ptrdiff_t givens_;
  std::vector<Square<std::string>> ways_;
};

Remark GoBack(Board& board, UndoHistory& history, SolutionTexts& solution) {
  Position next = PositionOf(board);
  std::vector<Place> wrong = solution.WrongIn(next).value_or(std::vector<Place>());
  if (wrong.empty()) return {Say("all entries are right")};
  for (std::size_t steps = 1; steps <= history.Done(); ++steps) {
    const Position& before = history.Back(steps);
    auto earlier = solution.WrongIn(before);
    if (!earlier) break;
    if (earlier->empty()) {
      history.UndoSteps(board, steps);
      const std::string names = NamesOfEntries(next, wrong);
      return {wrong.size() == 1
                  ? Say("the board is as it was before %1, which cannot stay", names)
                  : Say("the board is as it was before %1, none of which can stay", names),
              wrong};
    }
    next = before;
    wrong = std::move(*earlier);
  }
  const std::string names = NamesOfEntries(next, wrong);
  return {wrong.size() == 1
              ? Say("%1 cannot stay, and undo does not reach back to a board without it", names)
              : Say("%1 cannot stay, and undo does not reach back to a board without them", names),
          wrong};
}

}  // namespace

Remark BackToLastRight(Board& board, UndoHistory& history, Random& random, WorkStage& stage) {
  StoredSquare square = StoredSquareOf(board);
  for (int cell = 0; cell < square.Cells.Size(); ++cell) {
    if (!square.IsGiven(cell)) square.Cells[cell].reset();
  }
  const auto read = PuzzleOf(square);
  if (const auto* against = std::get_if<AgainstRules>(&read)) return {against->Why};
  random.Reseed();
  const BusyPointer busy(stage);
  const SearchResult result =
      Solve(std::get<Puzzle>(read), {.Seconds = kFirstSearch}, random, stage);
  if (const auto* open = std::get_if<NotSettled>(&result)) return {WhyOpen(*open, kFirstSearch)};
  const auto* one = std::get_if<OneSolution>(&result);
  if (!one) {
    return {std::holds_alternative<NoSolution>(result)
                ? Say("no entry is right or wrong: the given numbers have no solution")
                : Say("no entry is right or wrong: the given numbers have several solutions")};
  }
  SolutionTexts solution(one->Solved, PositionOf(board));
  return GoBack(board, history, solution);
}

}  // namespace numorra
