#include "study/special.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

#include "study/images.h"
#include "support/soak.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

std::size_t ClassesIn(int draws, const char* term, int order, Random& random) {
  std::set<Square<double>> forms;
  for (int draw = 0; draw < draws; ++draw)
    forms.insert(StandardForm(FindSpecialKind(term)->Build(order, random)));
  return forms.size();
}

TEST(Special, SaysWhyThereIsNone) {
  for (const SpecialKind& kind : kSpecialKinds) {
    for (int order = 3; order <= 50; ++order) {
      const std::string term = kind.Term;
      const bool exists = term == "bordered"       ? order >= 5
                          : term == "most-perfect" ? order % 4 == 0
                          : term == "associative"  ? order % 4 != 2
                          : term == "ultramagic"   ? order >= 5 && order % 4 != 2
                                                   : order >= 4 && order % 4 != 2;
      EXPECT_EQ(kind.WhyNone(order).empty(), exists) << term << " of order " << order;
    }
  }
  EXPECT_EQ(FindSpecialKind("pandiagonal")->WhyNone(6),
            "no pandiagonal normal square has order 6: its sums would make a quarter of the "
            "numbers add up to 166.5, which is not a whole number");
}

/// As many classes as chance has them where all are as likely as each other, less a little: all 48
/// of order 4, 497 of 500 draws from the 48,544 associative squares of order 5.
TEST(Special, IsDrawnFromMany) {
  struct Case {
    const char* Term;
    int Order, Draws;
    std::size_t Classes;
  };
  const Case cases[] = {
      {"associative", 4, 600, 48},  {"pandiagonal", 4, 600, 48}, {"most-perfect", 4, 600, 48},
      {"associative", 5, 500, 490}, {"associative", 8, 50, 50},  {"pandiagonal", 5, 200, 170},
      {"pandiagonal", 9, 50, 48},   {"most-perfect", 8, 50, 45}, {"ultramagic", 5, 200, 16},
      {"ultramagic", 7, 50, 40},    {"bordered", 5, 500, 440},   {"bordered", 9, 50, 50}};
  SeededRandom random(11);
  for (const Case& c : cases)
    EXPECT_GE(ClassesIn(c.Draws, c.Term, c.Order, random), c.Classes) << c.Term << c.Order;
}

/// The number of rings of order 5, by the top row and the left column, minus 13: each has five of
/// the numbers from 5 to 12, with signs, that add up to 0. With the eight images of the inner
/// square, this is also the number of squares up to images.
std::size_t RingsOfOrder5() {
  std::size_t rings = 0;
  int sizes[] = {5, 6, 7, 8, 9, 10, 11, 12};
  do {
    if (sizes[2] > sizes[3] || sizes[3] > sizes[4] || sizes[5] > sizes[6] || sizes[6] > sizes[7])
      continue;  // the order within a side: six ways each
    for (unsigned signs = 0; signs < 256; ++signs) {
      const auto at = [&](unsigned i) { return (signs >> i & 1U) != 0 ? -sizes[i] : sizes[i]; };
      const int top = at(0) + at(1) + at(2) + at(3) + at(4);
      const int left = at(0) - at(1) + at(5) + at(6) + at(7);
      rings += top == 0 && left == 0 ? 36 : 0;
    }
  } while (std::next_permutation(std::begin(sizes), std::end(sizes)));
  return rings;
}

TEST(Special, IsAnyBorderedSquareOfOrder5) {
  constexpr int kEnough = 60'000;  // on average one square in 2,880 is missed 3e-6 times
  EXPECT_EQ(RingsOfOrder5(), 2880U);
  const Soak soak;
  if (soak.Minutes == 0) return;
  SeededRandom random(soak.Seed);
  EXPECT_EQ(ClassesIn(kEnough, "bordered", 5, random), 2880U);
}

}  // namespace
}  // namespace numorra
