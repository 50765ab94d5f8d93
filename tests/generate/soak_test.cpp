#include "support/soak.h"

#include <cmath>
#include <gtest/gtest.h>

#include "generate/normal_square.h"
#include "generate/proposal.h"
#include "generate/top_row_square.h"
#include "generate/variable_square.h"
#include "support/boards.h"
#include "support/scripted_random.h"

namespace numorra {
namespace {

/// Builds of every generator over a grid of sizes, sums, limits and corners, by lot.
class BuildsByLot {
 public:
  explicit BuildsByLot(Random& random) : random_(random) {}

  /// One build, judged: empty or what is wrong.
  std::string One() {
    ++Builds;
    const int order = random_.Between(3, kMaxOrder);
    switch (random_.Between(0, 5)) {
      case 0:
        return slow::WhyNotNormal(RowsOf(normal_.Build(order), order));
      case 1:
        return TopRowOne();
      case 2:
        return VariableOne(order, true, false);
      case 3:
        return VariableOne(order, false, true);
      default:
        return VariableOne(order, false, false);
    }
  }

  bool Fair = true;  ///< whether the random source is one, so that corners are met
  int Builds = 0;
  int Unsolvable = 0;

 private:
  std::string TopRowOne() {
    TopRow top{};
    for (int& number : top)
      number = random_.Between(0, random_.Between(0, 1) ? 31 : 9999);
    const auto found = FindTopRowSquare(top, random_, [] {});
    if (!found) {
      ++Unsolvable;
      return {};
    }
    for (int c = 0; c < 4; ++c) {
      if (found->Square(1, c + 1) != top[static_cast<std::size_t>(c)]) return "another top row";
    }
    return slow::WhyNotMagic(RowsOf(found->Square, 4), top[0] + top[1] + top[2] + top[3]);
  }

  std::string VariableOne(int order, bool limit, bool corner) {
    const int base = random_.Between(0, 2) ? random_.Between(2, 60) : random_.Between(2, 32000);
    const double sum =
        limit ? order * random_.Between(1, 9) : base * order + random_.Between(0, order - 1);
    const VariablePlan plan = PlanVariableSquare(order, sum, limit, corner);
    std::optional<double> wanted;
    if (corner) wanted = random_.Between(1, 2 * plan.BaseValue - 1);
    for (int tries = 1; tries <= 10; ++tries) {
      const VariableBuild build = variable_.Build(plan, wanted, tries);
      if (build.Status == SolveStatus::CellValueTooSmall) {
        return plan.BaseValue < plan.TotalRemainder ? "" : "refused without need";
      }
      const bool built = build.Status == SolveStatus::Built;
      const double total = built && order != 3 ? order * plan.BaseValue + plan.TotalRemainder
                                               : order * plan.BaseValue;
      std::string why = slow::WhyNotMagic(RowsOf(build.Square, order), total);
      ForEachCell(order, [&](int r, int c) {
        const double value = build.Square(r, c);
        if (value < 1 || value != std::floor(value)) why += " a cell is " + std::to_string(value);
        if (limit && value > 9) why += " a cell is above 9";
      });
      if (Fair && corner && order > 4 && build.Square(1, 1) != *wanted)
        why += " the corner is missed";
      if (!why.empty()) {
        return why + " at order " + std::to_string(order) + " sum " + std::to_string(sum);
      }
      if (built) return {};
    }
    ++Unsolvable;
    return {};
  }

  Random& random_;
  SilentStage stage_;
  ListBoy list_{random_};
  NormalSquare normal_{random_, stage_};
  VariableSquare variable_{random_, stage_, list_};
};

TEST(BuildsOfEveryKind, AreWhatTheyShouldBe) {
  constexpr int kBuilds = 800;
  const Soak soak;
  TickingClock clock(soak.Seed());
  ClockSeededRandom random(clock);
  BuildsByLot lot(random);
  while (soak.Minutes() > 0 ? soak.Goes() : lot.Builds < kBuilds)
    ASSERT_EQ(lot.One(), "");
  std::printf("%d builds judged, %d of them without a solution\n", lot.Builds, lot.Unsolvable);
}

/// Random sources and clocks that no machine should have: every build ends, and is right or
/// refused.
TEST(BuildsOfEveryKind, EndOnAnyRandomSource) {
  constexpr double kAlmostOne = 1 - 0x1p-24;
  const std::vector<double> sources[] = {
      {0}, {kAlmostOne}, {0.5}, {0, kAlmostOne}, {kAlmostOne, 0, 0}, {0.25, 0.75}};
  for (const auto& numbers : sources) {
    ScriptedRandom random(numbers);
    BuildsByLot lot(random);
    lot.Fair = false;
    for (int build = 0; build < 6; ++build)
      ASSERT_EQ(lot.One(), "");
    SilentStage stage;
    NormalSquare normal(random, stage);
    ListBoy list(random);
    VariableSquare variable(random, stage, list);
    for (const int order : {3, 5, 6, 8, 9, 15}) {
      for (int time = 0; time < 3; ++time) {
        ASSERT_EQ(slow::WhyNotNormal(RowsOf(normal.Build(order), order)), "");
        const VariablePlan plan = PlanVariableSquare(order, 20 * order + 1, false, false);
        const VariableBuild build = variable.Build(plan, {}, 1);
        ASSERT_EQ(slow::WhyNotMagic(RowsOf(build.Square, order), build.Total), "");
      }
    }
  }
}

}  // namespace
}  // namespace numorra
