#include "app/board/numbers.h"

#include <gtest/gtest.h>
#include <numeric>
#include <set>

#include "app/board/decimal_sum.h"
#include "app/board/runtime_error.h"
#include "support/paper.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

template <class Action>
std::string FaultOf(Action action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return "none";
}

TEST(Numbers, ValReadsTheLeadingDecimalNumber) {
  const std::pair<const char*, double> cases[] = {
      {"", 0},         {"  12", 12},        {"12abc", 12}, {"abc", 0},
      {"-3.5x", -3.5}, {"+7", 7},           {".5", 0.5},   {"5.", 5},
      {"1.2.3", 1.2},  {"12e3", 12},        {"-", 0},      {".", 0},
      {"- 5", 0},      {"1 2", 1},          {"\t\n 4", 4}, {"0x1F", 0},
      {"inf", 0},      {"nan", 0},          {"٣", 0},      {"-.25", -0.25},
      {"0.1", 0.1},    {"32767.5", 32767.5}};
  for (const auto& [text, value] : cases)
    EXPECT_EQ(Val(text), value) << text;
  EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(FaultOf([] { Val(std::string(400, '9')); }), "Overflow");
}

TEST(Numbers, StrictValTakesTheWholeTextOrNothing) {
  EXPECT_EQ(StrictVal(" 7.5 "), 7.5);
  for (const char* text : {"", " ", "7x", "1e3", "--1"}) {
    EXPECT_EQ(FaultOf([&] { StrictVal(text); }), "Type mismatch") << text;
  }
}

TEST(Numbers, StrWritesAPlainDecimalThatReadsBack) {
  const std::pair<double, const char*> cases[] = {{12, " 12"},
                                                  {-3, "-3"},
                                                  {0, " 0"},
                                                  {-0.0, " 0"},
                                                  {0.5, " 0.5"},
                                                  {-0.25, "-0.25"},
                                                  {3.1, " 3.1"},
                                                  {1e21, " 1000000000000000000000"},
                                                  {62525, " 62525"},
                                                  {0.1 + 0.2, " 0.3"},
                                                  {1.0 / 3, " 0.333333333333333"},
                                                  {0x1p53, " 9007199254740992"},
                                                  {4e15 + 0.5, " 4000000000000000"}};
  for (const auto& [value, text] : cases)
    EXPECT_EQ(Str(value), text);
  for (const double value : {0.1 + 0.2, 1.0 / 3, 1e-300, 1.7e308, 123456789.123456789})
    EXPECT_EQ(Val(Str(value)), AsShown(value));
  EXPECT_EQ(FaultOf([] { Str(1e308 * 10); }), "Overflow");
}

TEST(Numbers, DigitsAreThoseThatCount) {
  const std::pair<const char*, int> cases[] = {{"-012.50", 3}, {"0", 0},  {"0.02", 2}, {"+100", 3},
                                               {"100.000", 3}, {".5", 1}, {"1.05", 3}, {"", 0}};
  for (const auto& [number, digits] : cases)
    EXPECT_EQ(DigitsOf(number), digits) << number;
}

/// Numbers of up to 14 digits, of every size and sign, added in decimal.
TEST(DecimalSums, AreThoseOfPaper) {
  SeededRandom random(6);
  for (int time = 0; time < 3000; ++time) {
    std::vector<std::string> numbers;
    DecimalSum sum;
    const int digits = random.Between(1, kMostCellDigits);
    const int point = random.Between(0, digits);
    for (int count = random.Between(1, 50); count > 0; --count) {
      std::string number = random.Between(0, 3) == 0 ? "-" : "";
      if (point == 0) number += "0";
      for (int i = 0; i < digits; ++i) {
        if (i == point) number += '.';
        number += static_cast<char>('0' + random.Between(0, 9));
      }
      numbers.push_back(number);
      sum.Add(Val(number));
    }
    const std::string paper = paper::Sum(numbers);
    const bool whole = paper.find('.') == std::string::npos;
    if (!whole && DigitsOf(paper) > 15) continue;  // shown rounded
    ASSERT_EQ(Decimal(sum.Total()), paper);
  }
}

TEST(Numbers, ConversionsRoundHalvesToEvenAndRaiseOverflow) {
  const std::pair<double, int> cases[] = {
      {2.5, 2}, {3.5, 4}, {-2.5, -2}, {2.51, 3}, {32767.4, 32767}, {-32768.5, -32768}, {0.5, 0}};
  for (const auto& [value, rounded] : cases) {
    EXPECT_EQ(ToInt16(value), rounded) << value;
    EXPECT_EQ(ToInt32(value), rounded) << value;
  }
  EXPECT_EQ(ToInt32(40000.5), 40000);
  EXPECT_EQ(FaultOf([] { ToInt16(32767.5); }), "Overflow");
  EXPECT_EQ(FaultOf([] { ToInt16(-32769); }), "Overflow");
  EXPECT_EQ(FaultOf([] { ToInt32(2147483648.0); }), "Overflow");
}

TEST(RandomNumbers, StayBelowOneAndDifferEvenWhenTheClockStandsStill) {
  ScriptedClock frozen({42});
  ClockSeededRandom random(frozen);
  std::set<double> numbers;
  for (int i = 0; i < 1000; ++i) {
    random.Reseed();
    numbers.insert(random.Next());
  }
  EXPECT_GT(numbers.size(), 990U);
  EXPECT_TRUE(*numbers.begin() >= 0 && *numbers.rbegin() < 1);
  EXPECT_NEAR(std::accumulate(numbers.begin(), numbers.end(), 0.0) / 1000, 0.5, 0.05);
}

}  // namespace
}  // namespace numorra
