#include "app/play/last_right.h"

#include <random>

#include "puzzle/code.h"
#include "support/boards.h"
#include "support/puzzle_session.h"
#include "support/soak.h"

namespace numorra {
namespace {

class LastRightTest : public PuzzleSession {
 protected:
  Remark Back() {
    Remark remark;
    Do("Back to Last Right", [&] { remark = session_.BackToLastRight(); });
    return remark;
  }
  void Read(const char* code) {
    Do("Paste", [&] { session_.Paste(code); });
  }
};

/// Right entries and turns, one wrong entry, more entries and turns: back leads to the board before
/// the wrong one, and redoing leads forward again.
TEST_F(LastRightTest, LandsBeforeTheWrongEntryOfAnyPuzzle) {
  const Soak soak;
  std::mt19937 dice(soak.Seed);
  const auto below = [&](int bound) {
    return static_cast<int>(dice() % static_cast<unsigned>(bound));
  };
  const int puzzles = soak.Minutes > 0 ? 1000 : 60;
  for (int puzzle = 0; puzzle < puzzles; ++puzzle) {
    const int order = 3 + below(3);
    const MadePuzzle made = LayOutPuzzle(order, static_cast<Grade>(below(4)));
    SCOPED_TRACE(CodeOf(made.Clues));
    // The board turns with the numbers of the solution, so it is followed by the number it shows.
    CellTable solution = TableFrom(RowsOf(made.Solution.Cells));
    const auto turn = [&] {
      const Symmetry& symmetry = kSymmetries[static_cast<std::size_t>(below(7))];
      symmetry.Turn(solution, order);
      Turn(symmetry.Name);
    };
    const auto enter = [&](int wrongBy) {
      std::vector<Place> gaps;
      ForEachCell(order, [&](int r, int c) {
        if (TheGrid().At(r, c).IsGap()) gaps.push_back({r, c});
      });
      if (gaps.empty()) return Place();
      const Place place = gaps[static_cast<std::size_t>(below(static_cast<int>(gaps.size())))];
      const auto right = static_cast<std::int64_t>(solution(place.Row, place.Column));
      const std::int64_t numbers = made.Solution.Most();
      Enter(place, (right + wrongBy - 1) % numbers + 1);
      return place;
    };
    const int gaps = made.Clues.Gaps();
    for (int entry = below(gaps); entry > 0; --entry) {
      enter(0);
      if (below(4) == 0) turn();
    }
    const Position right = PositionOf(session_.TheBoard);
    const Place wrong = enter(1 + below(order * order - 1));
    const std::string number = TheGrid().Text(wrong.Row, wrong.Column);
    for (int entry = below(gaps + 1); entry > 0; --entry) {
      enter(below(3) == 0 ? 1 : 0);
      if (below(4) == 0) turn();
    }
    dialogs_.Take();
    const Position after = PositionOf(session_.TheBoard);
    EXPECT_EQ(Back().Text, "the board is as it was before " + number + " in " + NameOf(wrong) +
                               ", which cannot stay");
    EXPECT_FALSE(IsStep(PositionOf(session_.TheBoard), right));
    while (session_.History.CanRedo())
      Do("Redo", [this] { session_.History.Redo(session_.TheBoard); });
    EXPECT_FALSE(IsStep(PositionOf(session_.TheBoard), after));
  }
}

TEST_F(LastRightTest, FindsTheLastBoardThatWasWhollyRight) {
  Read("NP12S3W04");  // . . . / . 5 . / 2 9 .
  EXPECT_EQ(Back().Text, "all entries are right");
  Enter({1, 1}, 8);
  Enter({1, 1}, 6);
  Enter({1, 2}, 1);
  EXPECT_EQ(Back().Text, "all entries are right") << "the wrong one was corrected";
  Enter({1, 3}, 3);
  Enter({2, 1}, 3);
  Enter({1, 3}, 8);
  const Remark remark = Back();
  EXPECT_EQ(remark.Text, "the board is as it was before 3 in row 1, column 3, which cannot stay")
      << "every board after it had a wrong entry, if another one";
  EXPECT_EQ(remark.Where, (std::vector<Place>{{1, 3}}));
  EXPECT_EQ(TheGrid().Text(1, 2) + TheGrid().Text(1, 3) + TheGrid().Text(2, 1), "1");
  EXPECT_EQ(session_.History.RedoName(), UndoHistory::kTyping);
}

TEST_F(LastRightTest, SaysWhyItCannotGoBack) {
  Do("Open", [&] {
    session_.LayOut({.Cells = {3, {8, 6, {}, {}, 5, {}, 2, 9, {}}},
                     .Givens = {3, {false, false, false, false, true, false, true, true, false}},
                     .Asked = Rules::Normal});
  });
  EXPECT_EQ(Back().Text,
            "8 in row 1, column 1; 6 in row 1, column 2 cannot stay, and undo does not reach back "
            "to a board without them");
  EXPECT_EQ(TheGrid().Text(1, 1), "8");
  Read("4 . . 16\n. . . .\n. . . .\n1 . . 13");
  dialogs_.Answers = {true};
  Do("Enter Your Own", [&] { session_.EnterPuzzle(); });
  dialogs_.Take();
  Enter({1, 2}, 9);
  EXPECT_EQ(Back().Text, "no entry is right or wrong: the given numbers have several solutions");
  EXPECT_EQ(TheGrid().Text(1, 2), "9");
}

}  // namespace
}  // namespace numorra
