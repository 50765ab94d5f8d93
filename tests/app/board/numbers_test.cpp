#include "app/board/numbers.h"

#include <gtest/gtest.h>
#include <numeric>
#include <set>

#include "app/board/runtime_error.h"
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
  const std::pair<double, const char*> cases[] = {
      {12, " 12"},      {-3, "-3"},       {0, " 0"},     {-0.0, " 0"},
      {0.5, " 0.5"},    {-0.25, "-0.25"}, {3.1, " 3.1"}, {1e21, " 1000000000000000000000"},
      {62525, " 62525"}};
  for (const auto& [value, text] : cases)
    EXPECT_EQ(Str(value), text);
  for (const double value : {0.1 + 0.2, 1.0 / 3, 1e-300, 1.7e308}) {
    EXPECT_EQ(Val(Str(value)), value);
  }
  EXPECT_EQ(FaultOf([] { Str(1e308 * 10); }), "Overflow");
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
