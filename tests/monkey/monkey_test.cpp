#include "monkey/monkey.h"

#include <gtest/gtest.h>

#include "support/soak.h"

namespace numorra {
namespace {

/// Some steps in every run of the tests; in a soak as many as fit the time. NUMORRA_SEED repeats a
/// run.
TEST(MonkeyTest, BreaksNothing) {
  constexpr int kSteps = 1500;
  constexpr int kStepsAWindow = 500;
  const Soak soak;
  unsigned seed = soak.Seed;
  int steps = 0, builds = 0, boxes = 0;
  while (soak.Minutes > 0 ? soak.Goes() : steps < kSteps) {
    Monkey monkey(seed);
    SCOPED_TRACE("seed " + std::to_string(seed));
    for (int step = 0; step < kStepsAWindow; ++step, ++steps) {
      const std::string wrong = monkey.Step();
      ASSERT_EQ(wrong, "") << "seed " << seed << ", step " << step << ": " << monkey.LastDone;
    }
    ASSERT_EQ(monkey.UndoAndRedoEverything(), "") << "seed " << seed;
    builds += monkey.Builds;
    boxes += monkey.BoxesAnswered;
    ++seed;
  }
  std::printf("%d steps, %d builds, %d boxes answered, seeds from %u\n", steps, builds, boxes,
              soak.Seed);
}

}  // namespace
}  // namespace numorra
