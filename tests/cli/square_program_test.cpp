#include "cli/square_program.h"

#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "support/boards.h"

namespace numorra {
namespace {

struct Outcome {
  int Status;
  std::string Out;
  std::string Err;
};

Outcome RunWith(const std::string& line) {
  std::istringstream words(line);
  const std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
  std::ostringstream out, err;
  const int status = RunSquareProgram(arguments, out, err);
  return {status, out.str(), err.str()};
}

TEST(SquareProgram, WritesItsFormatsAndWhatItIs) {
  EXPECT_EQ(RunWith("--size=4").Out,
            " 4  9  5 16\n14  7 11  2\n15  6 10  3\n 1 12  8 13\n\ntotal 34\n");
  EXPECT_EQ(RunWith("--size 4 --format=json").Out,
            "{\"format\": \"numorra-square\", \"version\": 1, \"order\": 4, \"total\": 34, "
            "\"rules\": \"normal\", \"rows\": [[4, 9, 5, 16], [14, 7, 11, 2], "
            "[15, 6, 10, 3], [1, 12, 8, 13]]}\n");
  EXPECT_EQ(RunWith("--size 4 --format csv").Out, "4,9,5,16\n14,7,11,2\n15,6,10,3\n1,12,8,13\n");
  EXPECT_NE(RunWith("--help").Out.find("--size N"), std::string::npos);
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
      {"--size 5 --sum 50 --corner 900", 50,
       "numorra-square: corner value 900 is out of reach for this size and sum\n"},
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
  for (const char* line :
       {"", "--size 9 --limit-to-9 --corner 3", "--size", "--size 2", "--size 51", "--size 8x",
        "--size 99999999999", "--size=", "--size 8 --format xml", "--size 8 --sum 0",
        "--seed -1 --size 8", "--bogus", "8", "--size 8 --help=x", "--format csv"}) {
    const Outcome run = RunWith(line);
    EXPECT_EQ(run.Status, 2) << line;
    EXPECT_EQ(run.Out, "") << line;
    EXPECT_EQ(std::count(run.Err.begin(), run.Err.end(), '\n'), 1) << line;
  }
}

}  // namespace
}  // namespace numorra
