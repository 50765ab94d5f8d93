#include "app/play/enter_puzzle.h"

#include "app/board/totals_check.h"
#include "app/play/fill_gaps.h"
#include "app/play/lay_out.h"
#include "puzzle/rating.h"
#include "words/say.h"

namespace numorra {
namespace {

/// How many solutions a puzzle has, and its grade if there is one.
std::string SolutionsOf(const Puzzle& puzzle, Random& random, WorkStage& stage) {
  constexpr std::int64_t kMostCounted = 100;
  const SearchLimit limit{.Seconds = kFirstSearch};
  const BusyPointer busy(stage);
  const SearchResult result = Solve(puzzle, limit, random, stage);
  if (std::holds_alternative<OneSolution>(result)) {
    // Translators: the name of a grade stands in the place, such as "hard".
    return Say("one solution, %1", Say(NameOf(GradeOf(puzzle, stage))));
  }
  if (std::holds_alternative<NoSolution>(result)) return Say("no solution");
  if (const auto* open = std::get_if<NotSettled>(&result)) return WhyOpen(*open, kFirstSearch);
  const auto count = CountSolutions(puzzle, kMostCounted, limit, stage);
  if (!count) return Say("several solutions");
  if (*count < kMostCounted) return SayCounted("%1 solution", "%1 solutions", *count);
  return SayCounted("at least %1 solution", "at least %1 solutions", *count);
}

}  // namespace

Remark EnterPuzzle(const CommandContext& context, WorkStage& stage) {
  Board& board = context.TheBoard;
  if (!board.HasGaps()) return {Say("a puzzle has gaps: empty some cells with Backspace first")};
  const auto readBy = [&](Rules rules) {
    StoredSquare square = StoredSquareOf(board);
    square.Asked = rules;
    return PuzzleOf(square);
  };
  const auto normal = readBy(Rules::Normal);
  const auto positive = readBy(Rules::Positive);
  if (const auto* against = std::get_if<AgainstRules>(&positive)) {
    return {against->Why, against->Where ? std::vector{*against->Where} : std::vector<Place>()};
  }
  context.TheRandom.Reseed();
  const auto told = [&](const std::variant<Puzzle, AgainstRules>& read) {
    const auto& puzzle = std::get<Puzzle>(read);
    const std::string solutions = SolutionsOf(puzzle, context.TheRandom, stage);
    // Translators: how many solutions a puzzle has if these numbers may fill its gaps.
    if (puzzle.Asked == Rules::Positive) return Say("by any whole numbers: %1", solutions);
    // Translators: how many solutions a puzzle has if these numbers may fill its gaps.
    return Say("by the numbers 1 to %1, each once: %2", puzzle.Cells.Size(), solutions);
  };
  auto chosen = Rules::Positive;
  std::string text = told(positive);
  if (std::holds_alternative<Puzzle>(normal)) {
    const std::string byNormal = told(normal);
    const int most = board.GridSize * board.GridSize;
    // Translators: asks whether these numbers shall fill the gaps of a puzzle.
    const std::string question = Say("take the numbers 1 to %1, each once?", most);
    if (context.TheDialogs.Ask(byNormal + "\n" + text + "\n" + question)) {
      chosen = Rules::Normal;
      text = byNormal;
    }
  }
  board.Asked = chosen;
  ForEachCell(board.GridSize,
              [&](int r, int c) { board.grid.SetGiven(r, c, !board.grid.At(r, c).IsGap()); });
  RefreshTotals(board);  // lines with gaps are now unfinished
  return {text};
}

}  // namespace numorra
