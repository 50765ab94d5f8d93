#include "puzzle/deduction.h"

#include <gtest/gtest.h>

#include "puzzle/making.h"
#include "puzzle/step_words.h"
#include "support/boards.h"
#include "support/chain_judge.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

Puzzle PuzzleFrom(const std::string& rows, LineKind kind = LineKind::Magic) {
  Puzzle puzzle{Square<std::int64_t>(SquareFrom(ParseRows(rows)))};
  puzzle.Target = NormalTotal(puzzle.Order());
  puzzle.Kind = kind;
  return puzzle;
}

/// The sentences of the next deduction, with a slash between them; empty if there is none.
std::string Said(const Puzzle& puzzle) {
  SilentStage stage;
  const auto next = NextDeduction(puzzle, Grade::Expert, stage);
  std::string said;
  for (const Step& step : next ? next->Steps : std::vector<Step>{})
    said +=
        (said.empty() ? "" : " / ") + SentenceOf(step, LineMap::Of(puzzle.Order(), puzzle.Kind));
  return said;
}

TEST(Deduction, SaysStepByStepWhyANumberFollows) {
  struct Case {
    const char* Rows;
    LineKind Kind;
    const char* Said;
  };
  const Case cases[] = {
      {"8 1 6 / 3 0 0 / 0 0 0", LineKind::Magic,
       "2 numbers are in column 1, the total is 15: the last one is 4"},
      {"8 0 0 / 0 5 0 / 0 0 0", LineKind::Magic,
       "2 numbers are in the main diagonal that falls, the total is 15: the last one is 2"},
      {"8 0 0 / 0 0 0 / 0 0 0", LineKind::Associative,
       "1 number is in the pair of row 1, column 1 and row 3, column 3, the total is 10: "
       "the last one is 2"},
      {"0 0 0 5 / 0 0 0 0 / 9 1 8 16 / 0 7 2 0", LineKind::Magic,
       "column 4 needs 13 for its two gaps, so row 4, column 4 can hold only 3 or 10 / "
       "row 4 needs 25 for its two gaps; row 4, column 4 can hold 3 or 10, so row 4, column 1 can "
       "hold only 15"},
      {"0 0 4 / 7 0 0 / 0 1 0", LineKind::Magic,
       "column 1 needs 8 for its two gaps; row 1, column 1 can hold 2, 3, 5, 6, 8 or 9, so row 3, "
       "column 1 can hold only 2, 3, 5 or 6 / column 2 needs 14 for its two gaps; row 1, column 2 "
       "can hold 2, 3, 5, 6, 8 or 9, so row 2, column 2 can hold only 5, 6, 8 or 9 / row 3 needs "
       "14 for its two gaps; row 3, column 1 can hold 2, 3, 5 or 6, so row 3, column 3 can hold "
       "only 8 or 9 / the main diagonal that falls needs 15 for its 3 gaps; the others add up to "
       "at least 7, so row 3, column 3 holds at most 8: only 8 is left there"},
      {"0 0 0 0 / 0 0 0 0 / 0 0 12 1 / 4 9 15 6", LineKind::Magic,
       "suppose that 2 is in row 2, column 3 / then the main diagonal that rises needs 28 for its "
       "two gaps, so row 1, column 4 can hold nothing / so 2 cannot be in row 2, column 3 / "
       "column 3 needs 7 for its two gaps, so row 1, column 3 can hold only 2"},
      {"8 1 6 / 3 5 7 / 4 9 2", LineKind::Magic, ""},
      {"9 0 0 / 0 0 0 / 0 0 0", LineKind::Magic, ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(Said(PuzzleFrom(c.Rows, c.Kind)), c.Said) << c.Rows;
}

/// Puzzles of all grades, rules and kinds: every chain follows, and no step of it can be left out.
TEST(Deduction, NeedsEachOfItsSteps) {
  SeededRandom random(4);
  SilentStage stage;
  std::array<int, kGrades.size()> needed{};
  for (const LineKind kind : {LineKind::Magic, LineKind::Associative, LineKind::Pandiagonal}) {
    for (const Grade grade : {Grade::Medium, Grade::Hard, Grade::Expert}) {
      const Square<std::int64_t> cells(BuiltOfKind(kind, 5, random));
      const auto made = MakePuzzle({cells, 65, Rules::Normal, false, kind}, {grade}, random, stage);
      Puzzle board = std::get<MadePuzzle>(made).Clues;
      while (const auto next = NextDeduction(board, Grade::Expert, stage)) {
        const std::int64_t solution = cells[next->Cell];
        ASSERT_EQ(ChainJudge(board).WhyWrong(*next, solution), "");
        for (std::size_t left = 0; left < next->Steps.size(); ++left) {
          Deduction without = *next;
          without.Steps.erase(without.Steps.begin() + static_cast<std::ptrdiff_t>(left));
          EXPECT_NE(ChainJudge(board).WhyWrong(without, solution), "")
              << SentenceOf(next->Steps[left], LineMap::Of(5, kind));
        }
        ++needed[static_cast<std::size_t>(next->Needed)];
        board.Cells[next->Cell] = next->Number;
      }
      EXPECT_EQ(board.Gaps(), 0);
    }
  }
  EXPECT_GT(*std::min_element(needed.begin(), needed.end() - 1), 0);
}

}  // namespace
}  // namespace numorra
