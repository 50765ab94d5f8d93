#include "app/board/totals_check.h"

#include <gtest/gtest.h>

#include "support/boards.h"
#include "support/invariants.h"

namespace numorra {
namespace {

constexpr const char* kLoShu = "2 7 6 / 9 5 1 / 4 3 8";

TEST(Recount, TellsBoardsApart) {
  struct Case {
    const char* rows;
    double target;
    std::int16_t baseValue;
    Finding finding;
  };
  const Case cases[] = {
      {kLoShu, 15, 5, Finding::Right},
      {kLoShu, 16, 5, Finding::Wrong},
      {"5 5 5 / 5 5 5 / 5 5 5", 15, 5, Finding::UntouchedBase},
      {"6 6 6 / 6 6 6 / 6 6 6", 18, 5, Finding::Right},
      {"5 5 5 / 5 6 5 / 5 5 5", 15, 5, Finding::Wrong},
      {"2.5 2.5 2.5 / 2.5 2.5 2.5 / 2.5 2.5 2.5", 7.5, 2, Finding::Right},
      // Only the columns are wrong, only one diagonal, only the other.
      {"1 5 9 / 1 5 9 / 1 5 9", 15, 5, Finding::Wrong},
      {"3 2 1 / 1 3 2 / 2 1 3", 6, 2, Finding::Wrong},
      {"1 2 3 / 2 3 1 / 3 1 2", 6, 2, Finding::Wrong},
  };
  for (const Case& c : cases) {
    Board board;
    ShowRows(board, c.rows, c.target, c.baseValue);
    EXPECT_EQ(Recount(board), c.finding) << c.rows;
    EXPECT_TRUE(board.TotalsChecked);
    EXPECT_EQ(board.UntouchedBase, c.finding == Finding::UntouchedBase);
    EXPECT_EQ(std::pair(board.grid.CurrentRow(), board.grid.CurrentColumn()), (std::pair{0, 0}));
    board.ReturnTo(1, 1);
    EXPECT_EQ(WhyInvalid(board), "") << c.rows;
  }
}

/// With givens, a gap leaves its lines unjudged; without them, it counts as 0.
TEST(Recount, LeavesUnfinishedLinesUnjudged) {
  for (const bool puzzle : {false, true}) {
    Board board;
    ShowRows(board, "8 1 6 / 3 5 7 / 4 9 2", 15);
    board.grid.SetText(1, 2, "");
    board.grid.SetText(3, 1, "5");
    board.grid.SetGiven(2, 2, puzzle);
    EXPECT_EQ(Recount(board), puzzle ? Finding::Unfinished : Finding::Wrong);
    const Verdict open = puzzle ? Verdict::Unjudged : Verdict::Wrong;
    EXPECT_EQ(board.grid.VerdictOf(1, 0), open);
    EXPECT_EQ(board.grid.VerdictOf(0, 2), open);
    EXPECT_EQ(board.grid.VerdictOf(2, 0), Verdict::Right);
    EXPECT_EQ(board.grid.VerdictOf(3, 0), Verdict::Wrong);
    EXPECT_EQ(board.grid.Text(1, 0), "14");
    board.ReturnTo(1, 1);
    EXPECT_EQ(WhyInvalid(board), "");
    // All right, but with a gap that counts as 0.
    ShowRows(board, "0 9 6 / 11 5 -1 / 4 1 10", 15);
    board.grid.SetText(1, 1, "");
    board.grid.SetGiven(2, 2, puzzle);
    EXPECT_EQ(Recount(board), puzzle ? Finding::Unfinished : Finding::Right);
  }
}

/// Quiet totals say nothing before the board is full, whatever its lines are.
TEST(Recount, IsQuietUntilTheBoardIsFull) {
  for (const bool given : {false, true}) {
    for (const char* const last : {"", "-", "4", "7"}) {
      Board board;
      board.QuietTotals = true;
      ShowRows(board, "8 1 6 / 3 5 7 / 4 9 2", 15);
      board.grid.SetGiven(2, 2, given);
      board.grid.SetText(3, 1, last);
      Recount(board);
      const bool full = last[0] > '0';
      EXPECT_EQ(board.grid.VerdictOf(1, 0), full ? Verdict::Right : Verdict::Unjudged) << last;
      EXPECT_EQ(board.grid.VerdictOf(3, 0) == Verdict::Wrong, full && last[0] == '7') << last;
      board.ReturnTo(1, 1);
      EXPECT_EQ(WhyInvalid(board), "");
      board.QuietTotals = false;
      RefreshTotals(board);
      EXPECT_EQ(board.grid.VerdictOf(2, 0), Verdict::Right);
    }
  }
}

}  // namespace
}  // namespace numorra
