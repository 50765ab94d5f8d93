#include <gtest/gtest.h>
#include <set>

#include "generate/top_row_command.h"
#include "generate/top_row_square.h"
#include "support/boards.h"
#include "support/soak.h"
#include "support/solve_harness.h"

namespace numorra {
namespace {

TEST(TopRows, AreFourNumbersAsInADate) {
  const TopRow row{14, 3, 20, 15};
  for (const char* text :
       {"14,3,20,15", " 14 , 3 ,20, 15 ", "14 3 20 15", "14\t3,20 15", "14/3/20/15", "14.3.20.15",
        "14-3-20-15", "14. 3. 20. 15", "14.3.2015", "14/3/2015", "14 3 2015 "}) {
    EXPECT_EQ(ParseTopRow(text), row) << text;
  }
  EXPECT_EQ(ParseTopRow("2015-03-14"), (TopRow{20, 15, 3, 14}));
  for (const char* text : {"", "1,2,3", "1,2015,3", "14.3.2015.", "14.3.999", "1,2,3,4,5",
                           "1,2,3,x", "1,2,3,-4", "1,2,3,10000", "1,,2,3", "1;2;3;4", "1.5,2,3,4",
                           "1,2,3,99999999999", "1--2-3-4", "/1/2/3/4"}) {
    EXPECT_EQ(ParseTopRow(text), std::nullopt) << text;
  }
}

TEST(TopRowCommand, AsksUntilItIsOneAndKeepsWhatMadeASquare) {
  SolveHarness h;
  TopRowCommand command(h.Context(), h.Stage);
  const std::string prompt =
      "Top row: four numbers from 0 to 9999, such as 30,9,19,95, or a date, such as 14.3.2014 ";
  h.TheDialogs.Texts = {"30,9,19", "31/12/19/99"};
  EXPECT_TRUE(command.Run());
  EXPECT_EQ(h.TheDialogs.Take(), (Messages{prompt + "[30,9,19,95]",
                                           "top row should be four whole numbers from 0 to 9999",
                                           prompt + "[30,9,19]"}));
  EXPECT_EQ(slow::WhyNotMagic(ShownRows(h.TheBoard.grid), 161), "");
  EXPECT_EQ(ShownRows(h.TheBoard.grid)[0], (std::vector<double>{31, 12, 19, 99}));
  EXPECT_EQ(h.Boxes.SizeText + " " + h.Boxes.SumText, "4 161");
  EXPECT_EQ(h.TheBoard.SolveMode, ModeVariable);
  h.TheDialogs.Texts = {"what?"};
  EXPECT_FALSE(command.Run()) << "left without an answer";
  EXPECT_FALSE(command.Run());
  EXPECT_EQ(h.TheDialogs.Take().back(), prompt + "[31/12/19/99]") << "no refused text is kept";
  const std::pair<const char*, Messages> remarks[] = {
      {"20,9,20,25", {}},
      {"1,1,20,1",
       {"no 4x4 square of different numbers has this top row\n"
        "some numbers are repeated"}},
      {"5,0,0,0", {"no 4x4 square of positive numbers has this top row\nsome numbers are 0"}}};
  for (const auto& [row, said] : remarks) {
    h.TheDialogs.Texts = {row};
    EXPECT_TRUE(command.Run()) << row;
    Messages told = h.TheDialogs.Take();
    told.erase(told.begin());
    EXPECT_EQ(told, said) << row;
    EXPECT_EQ(slow::WhyNotMagic(ShownRows(h.TheBoard.grid), h.TheBoard.TargetTotal), "") << row;
  }
}

/// Whether a square with this top row has twelve free cells that are positive and different, and,
/// if `allNew`, not in the row: tries every choice of the four free numbers.
bool HasSquare(const TopRow& top, bool allNew) {
  const auto [a, b, c, d] = top;
  const int sum = a + b + c + d;
  for (int m = 1; m < b + c; ++m) {
    for (int n = 1; n < a + d; ++n) {
      const int p = b + c - m, o = a + d - n;
      if (std::set{m, n, o, p}.size() < 4) continue;
      for (int f = 1; f < sum; ++f) {
        const int j = sum - b - n - f, k = sum - a - p - f, g = sum - c - o - k;
        if (j < 1 || k < 1 || g < 1) continue;
        for (int e = 1; e < sum - f - g; ++e) {
          const int h = sum - e - f - g, i = sum - a - m - e, l = sum - d - p - h;
          if (i < 1 || l < 1) continue;
          std::set<int> cells{e, f, g, h, i, j, k, l, m, n, o, p};
          if (cells.size() < 12) continue;
          const std::size_t row = std::set<int>(top.begin(), top.end()).size();
          cells.insert(top.begin(), top.end());
          if (!allNew || cells.size() == 12 + row) return true;
        }
      }
    }
  }
  return false;
}

/// Dates from 1950 to 2030, some in every run and all of them in a soak: the square has the best
/// possible quality.
TEST(TopRows, OfDatesMakeTheBestPossibleSquare) {
  const Soak soak;
  const int stride = soak.Minutes > 0 ? 1 : 131;
  SeededRandom random(4);
  int dates = 0, worst = 0;
  std::array<int, 4> count{};
  for (int date = 0; date < 81 * 12 * 31; date += stride) {
    const int day = 1 + date % 31, month = 1 + date / 31 % 12, year = 1950 + date / 31 / 12;
    if (day > (month == 2                                              ? 29
               : month == 4 || month == 6 || month == 9 || month == 11 ? 30
                                                                       : 31) ||
        (day == 29 && month == 2 && year % 4 != 0)) {
      continue;
    }
    const TopRow top{day, month, year / 100, year % 100};
    constexpr int kMost = 1'000'000;
    NotingStage stage;
    stage.YieldsLeft = kMost;
    const auto found = FindTopRowSquare(top, random, stage);
    ASSERT_TRUE(found);
    ++dates;
    ++count[static_cast<std::size_t>(found->Quality)];
    worst = std::max(worst, kMost - stage.YieldsLeft);
    const auto rows = RowsOf(found->Square, 4);
    ASSERT_EQ(slow::WhyNotMagic(rows, day + month + top[2] + top[3]), "");
    ASSERT_TRUE(std::equal(top.begin(), top.end(), rows[0].begin()));
    std::set<double> cells;
    for (int row = 1; row < 4; ++row)
      cells.insert(rows[static_cast<std::size_t>(row)].begin(),
                   rows[static_cast<std::size_t>(row)].end());
    const bool positive = *cells.begin() >= 1;
    const bool different = positive && cells.size() == 12;
    const bool isNew = different && std::none_of(top.begin(), top.end(), [&](int number) {
                         return cells.count(number) > 0;
                       });
    ASSERT_EQ(isNew, found->Quality == TopRowQuality::AllNew);
    ASSERT_EQ(different, found->Quality <= TopRowQuality::Different);
    ASSERT_EQ(positive, found->Quality <= TopRowQuality::Repeated);
    if (isNew) continue;
    ASSERT_FALSE(HasSquare(top, different)) << day << "." << month << "." << year;
  }
  std::printf("%d dates: %d all new, %d different, %d repeated, %d with zeros; %d yields at most\n",
              dates, count[0], count[1], count[2], count[3], worst);
}

/// Every top row gets an answer quickly, also large numbers and hopeless ones.
TEST(TopRows, AreDecidedQuickly) {
  SeededRandom random(4);
  for (int time = 0; time < 2000; ++time) {
    TopRow top{};
    for (int& number : top)
      number = random.Between(0, random.Between(0, 1) ? 9 : 9999);
    NotingStage stage;
    stage.YieldsLeft = 2000;
    const auto found = FindTopRowSquare(top, random, stage);
    if (!found) continue;
    const double sum = top[0] + top[1] + top[2] + top[3];
    const auto rows = RowsOf(found->Square, 4);
    ASSERT_EQ(slow::WhyNotMagic(rows, sum), "");
    const double lowest = found->Quality == TopRowQuality::WithZeros ? 0 : 1;
    for (int row = 1; row < 4; ++row)
      for (const double number : rows[static_cast<std::size_t>(row)])
        ASSERT_GE(number, lowest) << sum;
  }
}

}  // namespace
}  // namespace numorra
