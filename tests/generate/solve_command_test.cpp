#include "generate/solve_command.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "generate/corner_choice.h"
#include "support/boards.h"
#include "support/solve_harness.h"

namespace numorra {
namespace {

constexpr const char* kNotGood = "result may not look good\ntotal sum for this grid is too small";

class SolveCommandTest : public testing::Test, protected SolveHarness {
 protected:
  std::string WhyNotMagicNow(double total) {
    return slow::WhyNotMagic(ShownRows(TheBoard.grid), total);
  }

  /// Draws that vary nothing, so that a remainder finds no cell to take from.
  void DullAuto(const std::string& size, const std::string& sum) {
    Boxes = PlainBoxes(size, sum);
    dull_.Auto();
  }

  ScriptedRandom halves_{{0.5}};
  SolveCommand dull_{{{TheBoard, Boxes, TheDialogs, halves_}, Options, Stage, List2, List3}};

  void ExpectSettled() {
    EXPECT_FALSE(Stage.Busy);
    EXPECT_FALSE(Stage.Counting);
    EXPECT_FALSE(TheBoard.grid.RedrawLocked());
  }
};

TEST_F(SolveCommandTest, BuildsCorrectsAndReports) {
  struct Case {
    const char *size, *sum;
    bool limit;
    double total;
    const char* sumAfter;
    Messages said;
  };
  const Case cases[] = {
      {"6", "100", false, 100, "100", {}},
      {"3", "15", false, 15, "15", {}},
      {"3", "16", false, 15, "16", {"Size 3 grid can be solved only for sums divisible by 3"}},
      {"3", "6", false, 6, "6", {"cannot create matrix", kNotGood}},
      {"5", "7", false, 10, "10", {kNotGood}},
      {"10", "100", true, 50, "50", {}},
      {"10", "44", true, 40, "44", {}},
      {"7", "100.9", false, 101, "100.9", {}},
      {" 8x", "80", false, 80, "80", {}}};
  for (const Case& c : cases) {
    Options.Limit = c.limit;
    TheBoard.TotalsChecked = true;
    Auto(c.size, c.sum);
    EXPECT_EQ(TheDialogs.Take(), c.said) << c.size << "/" << c.sum;
    EXPECT_EQ(WhyNotMagicNow(c.total), "") << c.size << "/" << c.sum;
    EXPECT_EQ(TheBoard.TargetTotal, c.total);
    EXPECT_EQ(Boxes.SumText, c.sumAfter);
    EXPECT_FALSE(TheBoard.TotalsChecked);
    EXPECT_EQ(TheBoard.grid.Background(0, 0), kWindowBackground);
    ExpectSettled();
  }
}

TEST_F(SolveCommandTest, RefusesAndKeepsTheBoard) {
  Auto("4", "40");
  const auto before = ShownRows(TheBoard.grid);
  const std::pair<const char*, const char*> cases[] = {
      {"2", "grid size should be 3x3 or bigger"},
      {"", "grid size should be 3x3 or bigger"},
      {"0", "grid size should be 3x3 or bigger"},
      {"-5", "grid size should be 3x3 or bigger"},
      {"abc", "grid size should be 3x3 or bigger"},
      {"51", "grid size should be 50x50 or smaller"},
      {"21", "solution may take some time - continue?"}};
  for (const auto& [size, said] : cases) {
    Auto(size, "3000");
    EXPECT_EQ(TheDialogs.Take(), Messages{said}) << size;
    EXPECT_EQ(ShownRows(TheBoard.grid), before);
    EXPECT_EQ(std::tuple(TheBoard.GridSize, TheBoard.BaseValue, TheBoard.TargetTotal),
              std::tuple(std::int16_t{4}, std::int16_t{10}, 40.0));
    ExpectSettled();
  }
  Boxes.SizeText = "3";
  Boxes.SumText = "1000000";
  EXPECT_THROW(Commands.Auto(), RuntimeError);
  EXPECT_EQ(ShownRows(TheBoard.grid), before);
  Auto("20", "3000");
  EXPECT_EQ(TheDialogs.Take(), Messages{}) << "the largest that is quick";
  TheDialogs.Answers = {true};
  Auto("21", "3000");
  TheDialogs.Take();
  EXPECT_EQ(WhyNotMagicNow(3000), "");
}

TEST_F(SolveCommandTest, AsksAfterTenTriesAndContinuesIfTold) {
  const std::string question = "\ngive another 10 tries?";
  Auto("10", "25");
  EXPECT_EQ(TheDialogs.Take(),
            (Messages{"Cell value too small", "Could not solve in1 tries" + question}));
  EXPECT_FALSE(TheBoard.Shown()) << "no try helps where the remainder is larger than the cells";
  Auto("4", "40");
  const auto before = ShownRows(TheBoard.grid);
  TheDialogs.Answers = {true, true, false};
  DullAuto("4", "10");
  EXPECT_EQ(TheDialogs.Take(), Messages(3, "Could not solve in10 tries" + question));
  EXPECT_EQ(ShownRows(TheBoard.grid), before) << "the board of before is back";
  EXPECT_TRUE(TheBoard.grid.Visible());
  ExpectSettled();
}

TEST_F(SolveCommandTest, SolveAgainFollowsTheLastPlanWhateverTheBoxesSay) {
  Commands.Again();
  EXPECT_FALSE(TheBoard.Shown());
  Auto("6", "100");
  const auto first = ShownRows(TheBoard.grid);
  Boxes.SizeText = "9";
  Commands.Again();
  EXPECT_NE(ShownRows(TheBoard.grid), first);
  EXPECT_EQ(WhyNotMagicNow(100), "");
  Commands.Again();
  EXPECT_EQ(WhyNotMagicNow(100), "") << "the total is not spread twice";
  DullAuto("4", "10");
  const std::string low = "result may not look good\ntotal sum for this grid is too small";
  const Messages said = TheDialogs.Take();
  EXPECT_EQ(std::count(said.begin(), said.end(), low), 0) << "nothing of ten tries stays";
  dull_.Again();
  EXPECT_EQ(TheDialogs.Take(), Messages{low});
  EXPECT_EQ(WhyNotMagicNow(8), "") << "a failed try stays, without a question";
  EXPECT_EQ(TheBoard.TargetTotal, 8);
}

TEST_F(SolveCommandTest, ABuildThatIsCutShortLeavesNoTrace) {
  Auto("8", "400");
  const auto before = ShownRows(TheBoard.grid);
  const auto expectNoTrace = [&] {
    EXPECT_EQ(ShownRows(TheBoard.grid), before);
    EXPECT_EQ(TheBoard.GridSize, 8);
    ExpectSettled();
  };
  for (const int yields : {0, 1, 50, 300}) {
    Stage.YieldsLeft = yields;
    Stage.OnLastYield = [] { throw Superseded(); };
    EXPECT_THROW(Auto("12", "900"), Superseded);
    expectNoTrace();
    Stage.YieldsLeft = yields;
    Stage.OnLastYield = [] { throw std::bad_alloc(); };
    EXPECT_THROW(Auto("12", "900"), std::bad_alloc);
    expectNoTrace();
  }
  TheBoard.SolveMode = ModeNormal;
  Stage.YieldsLeft = 0;
  EXPECT_THROW(Auto("9", ""), std::bad_alloc);
  expectNoTrace();
}

TEST_F(SolveCommandTest, CornerPassesVaryTheBoardOnTheScreen) {
  Commands.VaryCornerEdges();
  EXPECT_FALSE(TheBoard.Shown());
  Auto("9", "450");
  const auto before = ShownRows(TheBoard.grid);
  const std::string count = Stage.Count;
  Commands.VaryCornerDiagonals();
  const auto once = ShownRows(TheBoard.grid);
  EXPECT_NE(once, before);
  EXPECT_EQ(std::stoi(Stage.Count), std::stoi(count) + 2 * 3) << "the count continues";
  Commands.VaryCornerEdges();
  EXPECT_NE(ShownRows(TheBoard.grid), once);
  EXPECT_EQ(WhyNotMagicNow(450), "");
}

TEST_F(SolveCommandTest, CornerPassesRefuseNumbersBelowOne) {
  ShowRows(TheBoard, "2.5 3 4.5 6 / 7 8.5 1 0.5 / 3 4 5 5 / 3.5 0 6 7", 16);
  const auto before = ShownRows(TheBoard.grid);
  Commands.VaryCornerDiagonals();
  Commands.VaryCornerEdges();
  EXPECT_EQ(TheDialogs.Take(), Messages(2,
                                        "0.5 in row 2, column 4 is below 1, and a board with such "
                                        "a number cannot be varied"));
  EXPECT_EQ(ShownRows(TheBoard.grid), before);
  ShowRows(TheBoard, "2.5 12 1 9.5 / 9.5 1 12 2.5 / 12 2.5 9.5 1 / 1 9.5 2.5 12", 25);
  for (int time = 0; time < 50; ++time) {
    Commands.VaryCornerDiagonals();
    Commands.VaryCornerEdges();
    EXPECT_EQ(WhyNotMagicNow(25), "");
    for (const auto& row : ShownRows(TheBoard.grid))
      EXPECT_GE(*std::min_element(row.begin(), row.end()), 1);
  }
}

/// Whole numbers are added again and again without rounding errors.
TEST_F(SolveCommandTest, CornerPassesKeepDecimals) {
  std::string rows;
  for (const char* end : {" / ", " / ", " / ", ""})
    rows += std::string("5000.7 5000.7 5000.7 5000.7") + end;
  ShowRows(TheBoard, rows, 0);
  for (int time = 0; time < 50; ++time)
    Commands.VaryCornerDiagonals();
  ForEachCell(4, [&](int r, int c) {
    const std::string& text = TheBoard.grid.Text(r, c);
    EXPECT_EQ(text.substr(text.find('.')), ".7") << text;
  });
  ShowRows(TheBoard, rows.replace(0, 6, "95.123456789012"), 0);
  const auto before = ShownRows(TheBoard.grid);
  Commands.VaryCornerEdges();
  EXPECT_EQ(ShownRows(TheBoard.grid), before);
  EXPECT_EQ(TheDialogs.Take(),
            Messages{"the varied board would have numbers with more than 14 digits"});
}

TEST_F(SolveCommandTest, OffersTheCornersThatFit) {
  struct Case {
    const char *size, *sum;
    std::size_t entries;
    const char *second, *last, *sumAfter;
  };
  const Case cases[] = {
      {"5", "25", 10, "1", "9", "25"},     {"4", "40", 1, "any", "any", "40"},
      {"5", "3", 4, "1", "3", "10"},       {"", "50", 1, "any", "any", "50"},
      {"5", "255", 53, "1", "100", "255"}, {"5", "50000", 101, "1", "19800", "50000"}};
  for (const Case& c : cases) {
    PlainListBox choice;
    Boxes.SizeText = c.size;
    Boxes.SumText = c.sum;
    OfferCorners(TheBoard, Boxes, List2, choice);
    ASSERT_EQ(choice.Entries.size(), c.entries) << c.size << "/" << c.sum;
    EXPECT_EQ(choice.Entries[0], "any");
    EXPECT_EQ(choice.Entries[c.entries > 1 ? 1 : 0], c.second);
    EXPECT_EQ(choice.Entries.back(), c.last);
    EXPECT_EQ(Boxes.SumText, c.sumAfter);
    EXPECT_EQ(std::count(choice.Entries.begin(), choice.Entries.end(),
                         std::to_string(TheBoard.BaseValue)),
              c.entries > 1 ? 1 : 0);
  }
  PlainListBox choice;
  Boxes.SizeText = "5";
  Boxes.SumText = "99999999";
  EXPECT_THROW(OfferCorners(TheBoard, Boxes, List2, choice), RuntimeError);
  EXPECT_EQ(choice.Entries, Messages{"any"});
}

/// The sum is that of the plan, even if the box has changed; a corner that is not met is reported.
TEST_F(SolveCommandTest, ReportsThePlanThatWasBuilt) {
  const Messages notDivisible{"Size 3 grid can be solved only for sums divisible by 3"};
  Auto("3", "16");
  EXPECT_EQ(TheDialogs.Take(), notDivisible);
  Boxes.SumText = "15";
  Commands.Again();
  EXPECT_EQ(TheDialogs.Take(), notDivisible);
  Auto("3", "15");
  Boxes.SumText = "16";
  Commands.Again();
  EXPECT_EQ(TheDialogs.Take(), Messages{});
  Options.WantedCorner = 7;
  Auto("6", "60");
  EXPECT_EQ(TheBoard.grid.Text(1, 1), "7");
  EXPECT_EQ(TheDialogs.Take(), Messages{});
  Boxes.SizeText = "3";
  Options.WantedCorner = 90;
  const Messages outOfReach{
      "corner value 90 is out of reach for size 6 and sum 60, which allow whole numbers from 1 to "
      "55"};
  Commands.Auto();
  EXPECT_EQ(TheDialogs.Take(), Messages{"a 3x3 square takes no corner value"});
  Auto("6", "60");
  EXPECT_EQ(TheDialogs.Take(), outOfReach);
  Commands.Again();
  EXPECT_EQ(TheDialogs.Take(), outOfReach);
}

}  // namespace
}  // namespace numorra
