#include "cli/square_program.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "support/boards.h"
#include "support/slow_classifier.h"

namespace numorra {
namespace {

struct Outcome {
  int Status;
  std::string Out;
  std::string Err;
};

Outcome RunOn(std::istream& in, const std::string& line) {
  std::istringstream words(line);
  const std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
  std::ostringstream out, err;
  const int status = RunSquareProgram(arguments, {in, out, err});
  return {status, out.str(), err.str()};
}

Outcome RunWith(const std::string& line, const std::string& input = "") {
  std::istringstream in(input);
  return RunOn(in, line);
}

/// A text followed by another one, repeated endlessly.
class Endless : public std::streambuf {
 public:
  Endless(std::string start, std::string again)
      : text_(std::move(start)), again_(std::move(again)) {}

 private:
  int_type underflow() override {
    if (begun_ || text_.empty()) text_ = again_;
    begun_ = true;
    setg(text_.data(), text_.data(), text_.data() + text_.size());
    return traits_type::to_int_type(text_[0]);
  }

  std::string text_, again_;
  bool begun_ = false;
};

/// Room for a few kilobytes.
class Full : public std::streambuf {
 public:
  Full() { setp(room_, room_ + sizeof room_); }

 private:
  char room_[5000];
};

/// The blocks between empty lines.
std::vector<std::string> Blocks(const std::string& text) {
  std::vector<std::string> blocks(1);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty()) {
      blocks.emplace_back();
    } else {
      blocks.back() += line + "\n";
    }
  }
  return blocks;
}

TEST(SquareProgram, WritesItsFormatsAndWhatItIs) {
  EXPECT_EQ(RunWith("--size=4").Out,
            " 4  9  5 16\n14  7 11  2\n15  6 10  3\n 1 12  8 13\n\ntotal 34\n");
  EXPECT_EQ(RunWith("--size 4 --format=json").Out,
            "{\"format\": \"numorra-square\", \"version\": 1, \"order\": 4, \"total\": 34, "
            "\"rules\": \"normal\", \"rows\": [[4, 9, 5, 16], [14, 7, 11, 2], "
            "[15, 6, 10, 3], [1, 12, 8, 13]]}\n");
  EXPECT_EQ(RunWith("--size 4 --format csv").Out, "4,9,5,16\n14,7,11,2\n15,6,10,3\n1,12,8,13\n");
  EXPECT_NE(RunWith("--help").Out.find("study [FILE|-] [--format text|json]\n"), std::string::npos);
  EXPECT_EQ(RunWith("--version").Out, "numorra-square 1.0.0\n");
}

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
  EXPECT_EQ(RunWith("--size 10 --sum 25").Status, 1);
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
  const Outcome none = RunWith("--kind most-perfect --size 6");
  EXPECT_EQ(none.Status, 1);
  EXPECT_EQ(none.Err,
            "numorra-square: no most-perfect normal square has order 6: such squares have an order "
            "that is a multiple of 4\n");
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

TEST(SquareProgram, StudiesWhatItReads) {
  const std::string squares = RunWith("--size 4 --count 2").Out;
  EXPECT_EQ(RunWith("--size 4 --count 1").Status, 0);
  const Outcome text = RunWith("study", squares);
  EXPECT_EQ(text.Status, 0);
  EXPECT_NE(
      text.Out.find("\nmagic: holds, all rows, columns and both main diagonals add up to 34\n"),
      std::string::npos);
  EXPECT_NE(text.Out.find("\n\n4 x 4\n"), std::string::npos);
  const Outcome json = RunWith("study - --format json", "8;1;6\r\n3;5;7\r\n4;9;2\r\n\r\n1,2\n");
  EXPECT_EQ(json.Status, 1);
  EXPECT_EQ(json.Err, "numorra-square: line 5: this is not a square of numbers\n");
  EXPECT_EQ(json.Out.find("{\"order\": 3, \"total\": 15, \"properties\": {\"semi-magic\": true, "),
            0U);
  EXPECT_NE(json.Out.find("\"compact\": null"), std::string::npos);
  EXPECT_NE(
      json.Out.find("\"prime\": false}, \"evidence\": {\"semi-magic\": \"all rows and columns "
                    "add up to 15\""),
      std::string::npos);
  EXPECT_NE(json.Out.find("\"standard-form\": [[2, 7, 6], [9, 5, 1], [4, 3, 8]]}\n"),
            std::string::npos);
  EXPECT_EQ(RunWith("study", "1 2 3\n4 x 6\n7 8 9\n\n1 2 3\n4 5 6\n7 y 9\n").Err,
            "numorra-square: line 2: \"x\" is not a number\n"
            "numorra-square: line 7: \"y\" is not a number\n");
  EXPECT_NE(RunWith("study", "16 3 2 13\n5 10 11 8\n9 6 7 12\n4 15 14 1\n")
                .Out.find("\nfamous: Albrecht Dürer's engraving"),
            std::string::npos);
  EXPECT_EQ(RunWith("study", "1 2 3\n4 _ 6\n7 8 9\n").Err,
            "numorra-square: row 2, column 2 is empty: only full squares can be studied\n");
  EXPECT_EQ(
      RunWith("study", "\n{\"order\": 3}\n\n{\"rows\": [[1, 2, 3], [4, \"\", 6], [7, 8, 9]]}").Err,
      "numorra-square: line 2: this JSON is not a Numorra square\n"
      "numorra-square: line 4: row 2, column 2: this is not a number\n");
  EXPECT_EQ(RunWith("study", "\n").Err, "numorra-square: there is no square to read\n");
  EXPECT_EQ(RunWith("study one two").Err,
            "numorra-square: only one file can be read, not 'two' too; try --help\n");
  EXPECT_EQ(RunWith("study /no/such/file").Err, "numorra-square: '/no/such/file' cannot be read\n");
  EXPECT_EQ(RunWith("study /").Status, 1);
}

TEST(SquareProgram, CompletesWhatItReads) {
  const Outcome text = RunWith("complete", "8 1 .\n. 5 .\n. . .\n");
  EXPECT_EQ(text.Out, "one\n\n8 1 6\n3 5 7\n4 9 2\n\ntotal 15\n");
  EXPECT_EQ(text.Status, 0);
  const Outcome json = RunWith("complete --format json", "8,1,\n,4,\n,,\n\n,,\n,5,\n,,8\n");
  EXPECT_EQ(json.Status, 3);
  EXPECT_EQ(
      json.Out.find("{\"answer\": \"none\", \"why\": null, \"rows\": null, \"second\": null}\n"),
      0U);
  EXPECT_NE(json.Out.find("\n{\"answer\": \"several\", \"why\": null, \"rows\": [[2, "),
            std::string::npos);
  EXPECT_EQ(
      RunWith("complete --sum 15.5 --format json", "8 1 .\n. . .\n. . .\n").Out,
      "{\"answer\": \"none\", \"why\": \"the sum 15.5 is not possible here with whole numbers of "
      "1 or more\", \"rows\": null, \"second\": null}\n");
  EXPECT_EQ(RunWith("complete", "8 1 6\n3 . 7\n4 . 8\n").Out, "none\n")
      << "the rules are the positive ones unless the numbers are different";
  EXPECT_EQ(RunWith("complete --rules positive --sum 30", "12 . .\n. 10 .\n. . .\n").Status, 0);
  EXPECT_EQ(
      RunWith("complete --rules positive --sum 30 --limit-to-9", ". . .\n. . .\n. . .\n").Status,
      3);
  for (const auto& [sum, answer] :
       {std::pair{"", "one"}, {" --sum 34", "one"}, {" --sum 50", "none"}}) {
    const std::string said =
        RunWith(std::string("complete") + sum, "16 . . 13\n5 10 11 8\n9 6 7 12\n4 . . 1\n").Out;
    EXPECT_EQ(said.substr(0, said.find_first_of(":\n")), answer) << sum;
  }
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
  EXPECT_EQ(RunWith("complete --kind associative", "8 . .\n. . .\n. . 1\n").Out, "none\n");
  EXPECT_EQ(RunWith("complete --kind associative", "8 . .\n. . .\n4 . .\n").Out,
            "one\n\n8 1 6\n3 5 7\n4 9 2\n\ntotal 15\n");
  const Outcome none = RunWith("complete --kind pandiagonal", ". . 6\n. 5 .\n. . .\n");
  EXPECT_EQ(none.Status, 3);
  EXPECT_EQ(none.Out,
            "none: no pandiagonal normal square has order 3: the lines through any cell would "
            "make it a third of the total, 5\n");
  EXPECT_EQ(RunWith("complete --kind bordered").Err,
            "numorra-square: the kind is one of associative, pandiagonal, most-perfect, "
            "ultramagic; try --help\n");
  EXPECT_EQ(RunWith("complete --seconds 0").Status, 2);
  EXPECT_EQ(RunWith("complete --rules odd").Status, 2);
  EXPECT_EQ(RunWith("complete --corner 3").Status, 2);
}

TEST(SquareProgram, ReadsWhateverItWrites) {
  for (const char* format : {"text", "csv", "json"}) {
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

TEST(SquareProgram, MakesPuzzles) {
  const Outcome json = RunWith("puzzle --size 3 --format json --seed 1");
  EXPECT_EQ(json.Out,
            "{\"format\": \"numorra-square\", \"version\": 1, \"order\": 3, \"total\": 15, "
            "\"rules\": \"normal\", \"rows\": [[4, null, null], [null, null, 7], [null, null, 6]], "
            "\"givens\": [[true, false, false], [false, false, true], [false, false, true]], "
            "\"solution\": [[4, 9, 2], [3, 5, 7], [8, 1, 6]], \"grade\": \"easy\", \"clues\": 3, "
            "\"code\": \"NP2C25MVEGZA\"}\n");
  const std::string three = RunWith("puzzle --size 5 --grade hard --count 3 --seed 9").Out;
  EXPECT_EQ(RunWith("complete --format json", three).Status, 0) << three;
  EXPECT_EQ(RunWith("complete", "NP12S3W04").Out, "one\n\n6 1 8\n7 5 3\n2 9 4\n\ntotal 15\n");
  EXPECT_EQ(RunWith("puzzle --size 5 --clues 3 --seed 1").Status, 1);
  const Outcome other = RunWith("puzzle --size 3 --grades expert:1,easy:1 --seed 1");
  EXPECT_EQ(other.Err, "numorra-square: 1 of 2 puzzles is of another grade than wished\n");
  EXPECT_EQ(other.Status, 6);
  EXPECT_EQ(RunWith("puzzle --size 4 --sum 50 --limit-to-9 --seed 1").Err,
            "numorra-square: the total is 20, not 50\n");
  for (const char* grades : {"easy", "easy:0", "easy:1,,hard:1", "odd:3", "easy:1 --count 3"})
    EXPECT_EQ(RunWith(std::string("puzzle --size 5 --grades ") + grades).Status, 2) << grades;
  EXPECT_EQ(RunWith("puzzle --size 5 --grade odd").Status, 2);
  EXPECT_EQ(RunWith("puzzle --size 4 --sum 90 --format csv --seed 2").Status, 0);
}

TEST(SquareProgram, WritesThePuzzlesOfCodes) {
  const std::string made = RunWith("puzzle --size 5 --sum 90 --count 3 --seed 4 --format json").Out;
  const Outcome again = RunWith("puzzle --codes - --format json", made);
  EXPECT_EQ(again.Out, made);
  EXPECT_EQ(again.Err, "");
  EXPECT_EQ(again.Status, 0);
  const Outcome some = RunWith("puzzle --codes=-", "Puzzle 7: np12s3w04\n\nNP12S3W05\nNP12ZS9\n");
  EXPECT_EQ(some.Out.find(". . .\n. 5 .\n2 9 .\n\ntotal 15, easy, 3 clues, NP2C1J45R0PT\n"), 0U);
  EXPECT_EQ(some.Err,
            "numorra-square: line 3: this puzzle code has a mistake in it\n"
            "numorra-square: line 4: this puzzle code has a mistake in it\n");
  EXPECT_EQ(some.Status, 1);
  const Outcome several = RunWith("puzzle --codes -", "NP2A1WR0TB NP2A1F80DW\n");
  EXPECT_EQ(several.Out,
            ". . .\n. 5 .\n. . .\n\ntotal 15, 1 clue, NP2A1WR0TB\n\n"
            ". . .\n. 4 .\n. . .\n\ntotal 15, 1 clue, NP2A1F80DW\n");
  EXPECT_EQ(several.Err,
            "numorra-square: line 1: this puzzle has several solutions\n"
            "numorra-square: line 1: this puzzle has no solution\n");
  EXPECT_EQ(RunWith("puzzle --codes -", "\n").Err,
            "numorra-square: there is no puzzle code to read\n");
  EXPECT_EQ(RunWith("puzzle --codes /no/such/file").Err,
            "numorra-square: '/no/such/file' cannot be read\n");
}

}  // namespace
}  // namespace numorra
