#include <random>

#include "app/board/note_ranges.h"
#include "app/play/lay_out.h"
#include "app/play/moves.h"
#include "app/play/puzzle_aids.h"
#include "files/formats.h"
#include "support/puzzle_session.h"
#include "support/slow_notes.h"
#include "support/soak.h"

namespace numorra {
namespace {

class NotesTest : public PuzzleSession {
 protected:
  /// A puzzle of order 4: 16 and 1 are given, all other cells are gaps.
  void ShowPuzzle() {
    StoredSquare square{.Cells = StoredCells(4), .Givens = Square<bool>(4)};
    square.Asked = Rules::Normal;
    square.Cells[0] = 16;
    square.Cells[15] = 1;
    square.Givens[0] = square.Givens[15] = true;
    Do("Open", [&] { session_.LayOut(square); });
    Go(1, 2);
  }
  std::string At(int row, int column) { return RangesOf(TheGrid().NotesIn(row, column)); }
};

TEST_F(NotesTest, DigitsToggleNumbers) {
  const std::pair<const char*, const char*> cases[] = {
      {"2", "2"},         {"23", "2-3"},    {"22", ""},   {"12", "12"},        {"121", "12"},
      {"12|1|5", "5 12"}, {"13|3", "3 13"}, {"12<", ""},  {"12<4", "14"},      {"14|<", ""},
      {"05", "5"},        {"101", "10"},    {"16", ""},   {"2x|-3", "2-3"},    {"17", "7"},
      {"15<", ""},        {"5<<", ""},      {"52<<", ""}, {"2|3|4|3|", "2 4"}, {"13|1|2", "2 13"}};
  for (const auto& [keys, notes] : cases) {
    ShowPuzzle();
    Note(keys);
    EXPECT_EQ(At(1, 2), notes) << keys;
    EXPECT_EQ(TheGrid().Text(1, 2), "");
  }
  Go(1, 1);
  Note("5");
  Go(1, 3);
  Type("5");
  Note("6");
  EXPECT_EQ(dialogs_.Take(),
            (Messages{"the number in row 1, column 1 is given and cannot be changed",
                      "row 1, column 3 holds a number: only gaps take notes"}));
}

TEST_F(NotesTest, EveryNumberIsOneStep) {
  ShowPuzzle();
  Note("12|34");
  EXPECT_EQ(session_.History.UndoName(), "note");
  Type("7");
  EXPECT_EQ(session_.History.UndoName(), "typing");
  Type("<");
  Note("5");
  for (const char* const left : {"3-4 12", "3 12", "12", ""}) {
    Undo();
    EXPECT_EQ(At(1, 2), left);
  }
  Note("2|1");
  Undo();
  Note("3");
  EXPECT_EQ(At(1, 2), "3") << "undo ends a number";
}

/// Notes of numbers on the board are not shown, and come back with the gap or the missing number.
TEST_F(NotesTest, NumbersOnTheBoardAreNotShown) {
  ShowPuzzle();
  Note("5|6");
  Go(2, 2);
  Note("5|7");
  Enter({1, 2}, 5);
  EXPECT_EQ(At(1, 2) + "/" + At(2, 2), "/7");
  const auto stored = ReadSquare(JsonOf(StoredSquareOf(session_.TheBoard)));
  EXPECT_EQ(RangesOf(std::get<StoredSquare>(stored).Noted[5]), "7");
  EXPECT_TRUE(std::get<StoredSquare>(stored).Noted[1].none());
  Go(1, 2);
  Type("<");
  EXPECT_EQ(At(1, 2) + "/" + At(2, 2), "5-6/5 7");
}

TEST_F(NotesTest, MoveWithTheirCells) {
  ShowPuzzle();
  Note("5|6");
  Go(3, 4);
  Note("7");
  for (const Symmetry& symmetry : kSymmetries) {
    CellTable turned;
    turned(1, 2) = 1;
    turned(3, 4) = 2;
    symmetry.Turn(turned, 4);
    Turn(symmetry.Name);
    ForEachCell(4, [&](int r, int c) {
      EXPECT_EQ(At(r, c), turned(r, c) == 1   ? "5-6"
                          : turned(r, c) == 2 ? "7"
                                              : "")
          << symmetry.Caption;
    });
    Undo();
  }
  Do("swap", [&] { SwapRows(session_.TheBoard, dialogs_, 2, 3); });
  EXPECT_EQ(At(2, 4) + At(3, 4), "7");
  Do("Empty Board", [&] { session_.EmptyBoard(); });
  EXPECT_TRUE(TheGrid().AllNotes().IsEmpty());
  Undo();
  EXPECT_EQ(At(1, 2), "5-6");
  Do("Clear Notes", [&] { session_.ClearNotes(); });
  EXPECT_EQ(At(1, 2), "");
}

/// Filled notes, also on half-solved boards, against a plain reading of the rules.
TEST_F(NotesTest, FilledEqualWhatTheRulesAllow) {
  const Soak soak;
  std::mt19937 dice(soak.Seed);
  const int puzzles = soak.Minutes > 0 ? 1000 : 60;
  for (int puzzle = 0; puzzle < puzzles; ++puzzle) {
    const int order = 3 + puzzle % 5;
    const MadePuzzle made = LayOutPuzzle(order, static_cast<Grade>(puzzle % 4));
    ForEachCell(order, [&](int r, int c) {
      if (TheGrid().At(r, c).IsGap() && dice() % 4 == 0) {
        TheGrid().SetText(r, c, std::to_string(made.Solution.Cells[Place{r, c}]));
      }
    });
    std::string why;
    Do("Fill Notes", [&] { why = session_.FillNotes().Text; });
    EXPECT_EQ(why, "");
    slow::Rows rows(static_cast<std::size_t>(order));
    ForEachCell(order, [&](int r, int c) {
      rows[static_cast<std::size_t>(r - 1)].push_back(Val(TheGrid().Text(r, c)));
    });
    const auto allowed = slow::AllowedIn(rows);
    ForEachCell(order, [&](int r, int c) {
      std::set<int> noted;
      const NoteSet notes = TheGrid().NotesIn(r, c);
      for (int number = 1; number <= order * order; ++number) {
        if (notes[static_cast<std::size_t>(number)]) noted.insert(number);
      }
      const auto cell = static_cast<std::size_t>((r - 1) * order + c - 1);
      EXPECT_EQ(noted, allowed[cell]) << "order " << order << ", " << r << ", " << c;
    });
  }
}

TEST_F(NotesTest, AreNotFilledAgainstTheRules) {
  ShowPuzzle();
  const std::pair<std::vector<int>, const char*> rows[] = {
      {{0, 16, 0, 0}, "16 in row 2, column 2 is also in row 1, column 1"},
      {{15, 14, 0, 0}, "no number fits row 2, column 4"},
      {{15, 14, 13, 12}, "nothing can fill these gaps: row 2 adds up to 54, not 34"}};
  for (const auto& [numbers, why] : rows) {
    for (int column = 1; column <= 4; ++column) {
      const int number = numbers[static_cast<std::size_t>(column - 1)];
      TheGrid().SetText(2, column, number == 0 ? "" : std::to_string(number));
    }
    EXPECT_EQ(session_.FillNotes().Text, why);
    EXPECT_TRUE(TheGrid().AllNotes().IsEmpty());
  }
}

/// The largest board with notes everywhere still fits into a file that can be opened.
TEST_F(NotesTest, OfTheLargestBoardAreSavedAndOpened) {
  const auto square = FreshSquare({50}, session_.TheRandom, stage_);
  StoredSquare stored = StoredSquareOf(*square, true);
  for (int cell = 0; cell < stored.Cells.Size(); cell += 1 + cell % 2) {
    stored.Cells[cell].reset();
    stored.Givens[cell] = false;
  }
  Do("Open", [&] { session_.LayOut(stored); });
  Do("Fill Notes", [&] { EXPECT_EQ(session_.FillNotes().Text, ""); });
  const StoredSquare filled = StoredSquareOf(session_.TheBoard);
  EXPECT_FALSE(filled.Noted.IsEmpty());
  EXPECT_EQ(std::get<StoredSquare>(ReadSquare(JsonOf(filled))), filled);
}

TEST_F(NotesTest, EqualNumbersAreMarkedAtOnceAndMissingOnesCounted) {
  ShowPuzzle();
  EXPECT_EQ(NumbersToPlaceOn(session_.TheBoard).Missing(), 14);
  Type("1");
  EXPECT_EQ(TheGrid().Repeated(), (std::vector<Place>{{1, 2}, {4, 4}}));
  Type("2");
  EXPECT_TRUE(TheGrid().Repeated().empty());
  EXPECT_EQ(NumbersToPlaceOn(session_.TheBoard).Missing(), 13);
  Go(1, 3);
  Type("12");
  EXPECT_EQ(TheGrid().Repeated(), (std::vector<Place>{{1, 2}, {1, 3}}));
  EXPECT_EQ(NumbersToPlaceOn(session_.TheBoard).Missing(), 13);
  Undo();
  EXPECT_TRUE(TheGrid().Repeated().empty());
  boxes_.SizeText = "4";
  Do("Manual", [&] { session_.BuildManually(); });
  Type("2");
  EXPECT_TRUE(TheGrid().Repeated().empty()) << "no puzzle";
  EXPECT_TRUE(NumbersToPlaceOn(session_.TheBoard).Numbers.empty());
}

}  // namespace
}  // namespace numorra
