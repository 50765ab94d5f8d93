#include "support/soak.h"

#include <cmath>
#include <gtest/gtest.h>

#include "generate/normal_square.h"
#include "generate/proposal.h"
#include "generate/top_row_square.h"
#include "generate/variable_square.h"
#include "support/boards.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

/// Random builds of every generator, each judged: returns an empty text or what is wrong.
class RandomBuilds {
 public:
  explicit RandomBuilds(Random& random) : random_(random) {}

  /// Any build over a grid of sizes, sums, limits and corners.
  std::string One() {
    ++Builds;
    const int order = random_.Between(3, kMaxOrder);
    const int base = random_.Between(0, 2) ? random_.Between(2, 60) : random_.Between(2, 32000);
    const int sum = base * order + random_.Between(0, order - 1);
    constexpr double kOutOfReach[] = {0, -3, 0.5, 500000};
    switch (random_.Between(0, 6)) {
      case 0:
        return Normal(order);
      case 1:
        return TopRowSquare();
      case 2:
        return Variable(order, order * random_.Between(1, 9), true, {});
      case 3:
        return Variable(order, sum, false, kOutOfReach[random_.Between(0, 3)]);
      case 4:
        return Variable(order, sum, false, random_.Between(1, order * (base - 1) + 1));
      default:
        return Variable(order, sum, false, {});
    }
  }

  std::string Normal(int order) { return slow::WhyNotNormal(RowsOf(normal_.Build(order), order)); }

  std::string TopRowSquare() {
    TopRow top{};
    for (int& number : top)
      number = random_.Between(0, random_.Between(0, 1) ? 31 : 9999);
    const auto found = FindTopRowSquare(top, random_, stage_);
    if (!found && ++Unsolvable) return {};
    const slow::Rows rows = RowsOf(found->Square, 4);
    if (!std::equal(top.begin(), top.end(), rows[0].begin())) return "another top row";
    return slow::WhyNotMagic(rows, top[0] + top[1] + top[2] + top[3]);
  }

  std::string Variable(int order, double sum, bool limit, std::optional<double> corner) {
    const VariablePlan plan = PlanVariableSquare(order, sum, limit, corner.has_value());
    const double flat = order * plan.BaseValue;
    for (int tries = 1; tries <= kTries; ++tries) {
      const VariableBuild build = variable_.Build(plan, corner, tries);
      if (build.Status == SolveStatus::CellValueTooSmall) {
        return plan.BaseValue < plan.TotalRemainder ? "" : "refused without need";
      }
      const bool built = build.Status == SolveStatus::Built;
      std::string why = slow::WhyNotMagic(RowsOf(build.Square, order),
                                          built && order != 3 ? flat + plan.TotalRemainder : flat);
      ForEachCell(order, [&](int r, int c) {
        const double value = build.Square(r, c);
        if (value < 1 || value != std::floor(value)) why += " a cell is " + std::to_string(value);
        if (limit && value > 9) why += " a cell is above 9";
      });
      const bool inReach = corner && *corner >= 1 && *corner <= flat - order + 1;
      const bool whole = corner && *corner == std::floor(*corner);
      if (inReach && whole && order > 3 && build.Square(1, 1) != *corner) why += " another corner";
      if (!why.empty()) {
        return why + " at order " + std::to_string(order) + " sum " + std::to_string(sum);
      }
      if (built) return {};
    }
    ++Unsolvable;
    return {};
  }

  int Builds = 0;
  int Unsolvable = 0;

 private:
  Random& random_;
  SilentStage stage_;
  NormalSquare normal_{random_, stage_};
  VariableSquare variable_{random_, stage_};
};

TEST(BuildsOfEveryKind, AreWhatTheyShouldBe) {
  constexpr int kBuilds = 800;
  const Soak soak;
  SeededRandom random(soak.Seed);
  RandomBuilds lot(random);
  while (soak.Minutes > 0 ? soak.Goes() : lot.Builds < kBuilds)
    ASSERT_EQ(lot.One(), "");
  EXPECT_LE(lot.Unsolvable, lot.Builds / 100) << "more than one in a hundred without a solution";
  std::printf("%d builds judged, %d of them without a solution\n", lot.Builds, lot.Unsolvable);
}

/// Random sources and clocks that no real machine has: every build ends, and is right or refused.
TEST(BuildsOfEveryKind, EndOnAnyRandomSourceAndAnyClock) {
  ScriptedClock still({42}), back({90, 80, 70, 70, 60}),
      midnight({86399999999998, 86399999999999, 0, 1});
  constexpr double kAlmostOne = 1 - 0x1p-24;
  std::vector<std::unique_ptr<Random>> sources;
  for (const auto& numbers : std::initializer_list<std::vector<double>>{
           {0}, {kAlmostOne}, {0.5}, {0, kAlmostOne}, {kAlmostOne, 0, 0}, {0.25, 0.75}})
    sources.push_back(std::make_unique<ScriptedRandom>(numbers));
  for (ScriptedClock* clock : {&still, &back, &midnight})
    sources.push_back(std::make_unique<ClockSeededRandom>(*clock));
  for (const auto& random : sources) {
    RandomBuilds lot(*random);
    for (int build = 0; build < 6; ++build)
      ASSERT_EQ(lot.One(), "");
    PlainBoxes boxes;
    for (const int order : {3, 5, 6, 8, 9, 15}) {
      for (int time = 0; time < 3; ++time) {
        ASSERT_EQ(lot.Normal(order), "");
        ASSERT_EQ(lot.Variable(order, 20 * order + 1, false, {}), "");
        ProposeSquare(boxes, ModeVariable, *random);
      }
    }
  }
}

}  // namespace
}  // namespace numorra
