#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "cli/commands.h"
#include "support/boards.h"
#include "support/companion.h"
#include "support/slow_classifier.h"

namespace numorra {
namespace {

TEST(SquareProgram, BuildsSquaresOfAnyTotal) {
  struct Case {
    const char* line;
    double total;
    const char* remark;
  };
  const Case cases[] = {
      {"--size 6 --sum 100", 100, ""},
      {"--size 50 --sum 32767", 32767, ""},
      {"--size 8 --sum 77 --limit-to-9", 40, "numorra-square: the total is 40\n"},
      {"--size 7 --corner 3", 175, ""},
      {"--size 5 --sum 163839", 163839, ""},
      {"--size 5 --sum 9999999 --limit-to-9", 25, "numorra-square: the total is 25\n"},
      {"--size 7 --sum 100.9", 101, "numorra-square: the total is 101\n"},
      {"--size 3 --sum 1", 6, "numorra-square: the total is 6\n"},
      {"--size 5 --sum 50 --corner 900", 50,
       "numorra-square: corner value 900 is out of reach for size 5 and sum 50, which allow whole "
       "numbers from 1 to 46\n"},
      {"--top-row 30,9,19,95", 153, ""},
      {"--top-row=0,0,0,0", 0, "numorra-square: some numbers are 0\n"}};
  for (const Case& c : cases) {
    const Outcome run = RunWith(std::string("--format csv ") + c.line);
    EXPECT_EQ(run.Status, 0) << c.line;
    EXPECT_EQ(run.Err, c.remark) << c.line;
    EXPECT_EQ(slow::WhyNotMagic(ParseRows(run.Out, '\n'), c.total), "") << c.line;
  }
}

TEST(SquareProgram, RepeatsARunFromItsSeed) {
  std::set<std::string> different;
  for (const char* seed : {"7", "8", "9"}) {
    const std::string line = std::string("--size 15 --sum 900 --seed ") + seed;
    const std::string first = RunWith(line).Out;
    EXPECT_EQ(RunWith(line).Out, first) << "the same seed, the same square";
    different.insert(first);
  }
  EXPECT_EQ(different.size(), 3U) << "other seeds, other squares";
}

TEST(SquareProgram, AnswersBadArgumentsWithOneLine) {
  for (const char* line : {"",
                           "puzzle",
                           "--size 9 --limit-to-9 --corner 3",
                           "--size",
                           "--size 2",
                           "--size 51",
                           "--size 8x",
                           "--size 99999999999",
                           "--size=",
                           "--size 8 --format xml",
                           "--size 8 --sum 0",
                           "--top-row 1,2,3,4 --size 4",
                           "--size 5 --corner x",
                           "--size 5 --corner 0",
                           "--size 5 --sum x",
                           "--size 5 --sum inf",
                           "--size 5 --sum 1e3",
                           "--size 5 --sum 163840",
                           "puzzle --size 5 --sum 163840",
                           "puzzle --size 5 --sum 90.5",
                           "puzzle --codes",
                           "puzzle --codes - --grade easy",
                           "puzzle --size 5 --grades easy",
                           "puzzle --size 5 --grades easy:0",
                           "puzzle --size 5 --grades odd:3",
                           "puzzle --size 5 --grades easy:1 --count 3",
                           "puzzle --size 5 --grade odd",
                           "complete --seconds 0",
                           "complete --corner 3",
                           "--top-row 1,2,3",
                           "--top-row list --size 4",
                           "--completions csh",
                           "--size 5 --vary --corner 7",
                           "--top-row 1,2,3,4 --vary",
                           "--size 5 --fresh --corner 7",
                           "--top-row 1,2,3,4 --fresh",
                           "--size 5 --fresh --sum 90.5",
                           "puzzle --size 5 --fresh",
                           "--size 5 --count x",
                           "--size 5 --seed x",
                           "--top-row 1,2,3,4 --sum 10",
                           "--seed -1 --size 8",
                           "--bogus",
                           "8",
                           "--size 8 --help=x",
                           "--format csv"}) {
    const Outcome run = RunWith(line);
    EXPECT_EQ(run.Status, 2) << line;
    EXPECT_EQ(run.Out, "") << line;
    EXPECT_EQ(std::count(run.Err.begin(), run.Err.end(), '\n'), 1) << line;
  }
}

TEST(SquareProgram, OffersEveryOptionToTheShells) {
  for (const char* shell : {"bash", "zsh", "fish"}) {
    const std::string completions = RunWith(std::string("--completions ") + shell).Out;
    for (const OptionEntry& option : Options()) {
      const std::string name(option.Name + (shell == std::string("fish") ? 2 : 0));
      EXPECT_NE(completions.find(name), std::string::npos) << shell << ": " << option.Name;
      for (const std::string& choice : option.Choices) {
        EXPECT_EQ(completions.find(choice) != std::string::npos,
                  choice.find_first_of(" '") == std::string::npos)
            << shell << ": " << choice;
      }
      EXPECT_NE(Usage().find(option.Name), std::string::npos);
    }
  }
}

TEST(SquareProgram, BuildsSpecialSquaresAgainAndAgain) {
  for (const char* kind : {"pandiagonal --size 9", "associative --size 7 --vary",
                           "pandiagonal --size 8 --vary", "associative --size 4 --vary --fresh"}) {
    const std::string line = std::string("--seed 4 --count 3 --format csv --kind ") + kind;
    const Outcome run = RunWith(line);
    EXPECT_EQ(run.Err, "");
    std::set<std::string> different;
    for (const std::string& rows : Blocks(run.Out)) {
      const auto square = ParseRows(rows, '\n');
      EXPECT_EQ(slow::WhyNotNormal(square), "");
      EXPECT_EQ(slow::Classify(square).at(std::string(kind, 11)), true) << rows;
      different.insert(rows);
    }
    EXPECT_EQ(different.size(), 3U);
    EXPECT_EQ(RunWith(line).Out, run.Out);
  }
}

TEST(SquareProgram, DrawsFreshSquares) {
  struct Case {
    const char* Line;
    double Total;
    bool Normal;
  };
  for (const Case& c : {Case{"--size 4", 34, true},
                        {"--size 6", 111, true},
                        {"--size 5 --sum 91", 91, false},
                        {"--size 5 --limit-to-9", 25, false}}) {
    const std::string line = std::string(c.Line) + " --fresh --count 8 --seed 2 --format csv";
    std::set<std::string> different;
    for (const std::string& rows : Blocks(RunWith(line).Out)) {
      const auto square = ParseRows(rows, '\n');
      EXPECT_EQ(slow::WhyNotMagic(square, c.Total), "") << c.Line;
      EXPECT_EQ(slow::WhyNotNormal(square).empty(), c.Normal) << c.Line;
      different.insert(rows);
    }
    EXPECT_EQ(different.size(), 8U) << c.Line;
  }
  EXPECT_EQ(RunWith("--size 5 --fresh --sum 30 --limit-to-9 --seed 1").Err,
            "numorra-square: the total is 25\n");
}

/// As in the window: quarter turns by 1, 2, 3, 0, and never the start of the last odd square.
TEST(SquareProgram, ContinuesFromTheSquareBefore) {
  const auto fours = Blocks(RunWith("--size 4 --count 5 --format csv").Out);
  EXPECT_EQ(std::set<std::string>(fours.begin(), fours.end()).size(), 4U);
  EXPECT_EQ(fours[0], fours[4]);
  const auto fives = Blocks(RunWith("--size 5 --count 200 --format csv --seed 1").Out);
  EXPECT_EQ(std::adjacent_find(fives.begin(), fives.end()), fives.end());
}

/// Of endless input, only as much is read as one square may take; squares are answered as they
/// come.
TEST(SquareProgram, ReadsEndlessInputInBoundedMemory) {
  const std::string square = "\r\n8 1 6\r3 5 7\r\n4 9 2\n\ntotal 15\n\n";
  struct Case {
    std::string start, again, line;
  };
  const Case cases[] = {{"", std::string(1, '\0'), "1"},
                        {"", "\n", "1"},
                        {square, "1 2 3\n", "8"},
                        {square, "{\"a\":", "8"},
                        {square + square, "7", "15"}};
  for (const Case& c : cases) {
    Endless endless(c.start, c.again);
    std::istream in(&endless);
    const Outcome run = RunOn(in, "complete");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Err, "numorra-square: line " + c.line +
                           ": this is too long for a square of numbers; reading stops here\n");
    EXPECT_EQ(run.Out.starts_with("one\n"), !c.start.empty());
  }
  Endless endless("", square);
  Full full;
  std::istream in(&endless);
  std::ostream out(&full);
  std::ostringstream err;
  EXPECT_EQ(RunSquareProgram({"complete"}, {in, out, err}), 1);
  EXPECT_EQ(err.str(), "numorra-square: the output cannot be written\n");
}

TEST(SquareProgram, SaysWhatWasNotSettled) {
  std::string hard;
  for (int row = 0; row < 12; ++row) {
    for (int column = 0; column < 12; ++column)
      hard += column == (row + 1) % 12 ? std::to_string(row * 9 + 3) + " " : ". ";
    hard += "\n";
  }
  const Outcome open = RunWith("complete --seconds 0.01", hard + "\n8 1 .\n. 5 .\n. . .\n");
  EXPECT_EQ(open.Status, 4);
  EXPECT_EQ(
      open.Out.find("unsettled: whether there is a solution was not settled in 0.01 seconds\n"),
      0U);
  for (const auto& [sum, answer] :
       {std::pair{"", "one"}, {" --sum 34", "one"}, {" --sum 50", "none"}}) {
    const std::string said =
        RunWith(std::string("complete") + sum, "16 . . 13\n5 10 11 8\n9 6 7 12\n4 . . 1\n").Out;
    EXPECT_EQ(said.substr(0, said.find_first_of(":\n")), answer) << sum;
  }
}

TEST(SquareProgram, ReadsWhateverItWrites) {
  for (const char* format : {"text", "csv", "tex", "python", "mathematica", "json"}) {
    const std::string as = std::string(" --format ") + format;
    const std::string squares = RunWith("--size 5 --count 3" + as).Out;
    const std::string studied = RunWith("study", squares).Out;
    EXPECT_EQ(Blocks(studied).size(), 3U) << format;
    EXPECT_EQ(RunWith("study", RunWith("study --format json", squares).Out).Out, studied);
    const std::string puzzles = RunWith("puzzle --size 5 --sum 90 --count 3 --seed 4" + as).Out;
    const std::string answers = RunWith("complete --sum 90", puzzles).Out;
    EXPECT_EQ(answers.find("one\n\n"), 0U) << format;
    const std::string solved = RunWith("complete --sum 90 --format json", puzzles).Out;
    EXPECT_EQ(RunWith("complete", solved).Out, answers) << format;
  }
  EXPECT_EQ(RunWith("complete", RunWith("puzzle --size 5 --sum 90 --format json").Out).Status, 0)
      << "the total and the rules come with the puzzle";
}

TEST(SquareProgram, WritesThePuzzlesOfCodesAgain) {
  for (const char* steps : {"", " --steps"}) {
    const std::string as = std::string(" --format json") + steps;
    const std::string made = RunWith("puzzle --size 5 --sum 90 --count 3 --seed 4" + as).Out;
    const Outcome again = RunWith("puzzle --codes -" + as, made);
    EXPECT_EQ(again.Out, made);
    EXPECT_EQ(again.Err, "");
    EXPECT_EQ(again.Status, 0);
  }
}

}  // namespace
}  // namespace numorra
