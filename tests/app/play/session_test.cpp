#include "app/play/session.h"

#include "support/boards.h"
#include "support/invariants.h"
#include "support/puzzle_session.h"
#include "support/slow_checker.h"

namespace numorra {
namespace {

class SessionTest : public PuzzleSession {
 protected:
  void Type(int row, int column, const std::string& digits) {
    Go(row, column);
    PuzzleSession::Type(digits);
  }
};

/// From the empty window to the last number, with one wrong number undone, without a window.
TEST_F(SessionTest, APuzzleIsMadeAndSolvedWithHints) {
  boxes_.SizeText = "4";
  EXPECT_EQ(session_.SquareToHide().WhyNot, "there is no full board");
  Do("Auto", [this] { session_.Solve().Auto(); });
  const PuzzleSource source = session_.SquareToHide();
  ASSERT_TRUE(source.Square) << source.WhyNot;
  auto made = MakePuzzle(*source.Square, {Grade::Medium}, session_.TheRandom, stage_);
  Do("Hide Numbers", [&] { session_.Take(std::get<MadePuzzle>(made)); });
  Board& board = session_.TheBoard;
  EXPECT_EQ(board.SolveMode, ModeNormal);
  EXPECT_EQ(boxes_.SumText, "34");
  const auto code = session_.PuzzleCode();
  ASSERT_TRUE(code);

  Place gap;
  ForEachCell(4, [&](int r, int c) {
    if (board.grid.At(r, c).IsGap()) gap = {r, c};
  });
  const auto solved = session_.SolvedPuzzleOnBoard();
  ASSERT_TRUE(solved);
  const std::int64_t right = solved->Solution.Cells[gap];
  Type(gap.Row, gap.Column, std::to_string(right % 16 + 1));
  const std::vector<Place> wrong = Do("Hint", [this] { return session_.Hint(); }).Where;
  EXPECT_NE(std::find(wrong.begin(), wrong.end(), gap), wrong.end()) << "pointed at";
  Undo();
  EXPECT_TRUE(board.grid.At(gap.Row, gap.Column).IsGap());
  EXPECT_EQ(session_.PuzzleCode(), code);

  int undone = 0;
  while (board.HasGaps()) {
    Do("Hint", [this] { return session_.Hint(); });
    EXPECT_EQ(WhyInvalid(board), "");
  }
  EXPECT_EQ(slow::WhyNotNormal(ShownRows(board.grid)), "");
  for (; session_.History.UndoName() == "Hint"; ++undone)
    Undo();
  EXPECT_EQ(undone, std::get<MadePuzzle>(made).Clues.Gaps()) << "each number was a step";
  EXPECT_EQ(dialogs_.Take(), Messages{});
}

TEST_F(SessionTest, ChoosesTheRulesOfFreshSquares) {
  struct Case {
    Mode mode;
    const char *size, *sum;
    std::optional<std::int64_t> total;
  };
  const Case cases[] = {{ModeNormal, "4", "99", std::nullopt},
                        {ModeVariable, "4", "99", 99},
                        {ModeVariable, "4", "34", std::nullopt},
                        {ModeVariable, "5", "-3", 1}};
  for (const Case& c : cases) {
    boxes_.SizeText = c.size;
    session_.SetMode(c.mode);
    EXPECT_EQ(c.mode == ModeVariable || boxes_.SumText == "34", true);
    boxes_.SumText = c.sum;
    const auto wish = session_.WishForFreshSquares();
    ASSERT_TRUE(wish);
    EXPECT_EQ(wish->Total, c.total) << c.size << "/" << c.sum;
  }
  boxes_.SizeText = "51";
  EXPECT_FALSE(session_.WishForFreshSquares());
  EXPECT_FALSE(session_.PuzzleCode());
  EXPECT_EQ(dialogs_.Take(),
            (Messages{"grid size should be 50x50 or smaller",
                      "only puzzles of size 3 to 20 have a code: boards with gaps and numbers that "
                      "break no rule"}));
}

TEST_F(SessionTest, ForgetsWhoeverShowedIt) {
  int told = 0;
  session_.Watch.Listen([&](const CommandResult&) { ++told; });
  Do("Auto", [this] { session_.Solve().Auto(); });
  const Position before = PositionOf(session_.TheBoard);
  session_.Disconnect();
  session_.BeginCommand();
  session_.TheBoard.grid.SetCurrent(2, 2);
  session_.EndCommand("move");
  EXPECT_EQ(told, 1);
  session_.Connect({boxes_, options_, dialogs_, stage_, stage_});
  EXPECT_FALSE(IsChange(PositionOf(session_.TheBoard), before));
  EXPECT_TRUE(session_.History.CanUndo());
}

}  // namespace
}  // namespace numorra
