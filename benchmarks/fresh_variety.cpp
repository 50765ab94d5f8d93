#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <set>
#include <string>

#include "benches.h"
#include "puzzle/fresh_square.h"
#include "study/images.h"
#include "study/special.h"
#include "study/terms.h"

namespace numorra::bench {
namespace {

using Numbers = Square<double>;

/// Small orders have few squares, large ones take long.
int DrawsOf(int order) {
  constexpr int kDraws = 10'000;
  if (order <= 6) return kDraws;
  return order <= 10 ? kDraws / 10 : kDraws / 500;
}

/// Draws squares and prints how many of them are different, how many up to their images, how many
/// are of each kind that has a name, and the time of one.
void PrintDraws(const char* what, int order, const std::function<Numbers()>& draw) {
  const int draws = DrawsOf(order);
  std::set<Numbers> squares;
  std::chrono::duration<double, std::milli> taken{};
  for (int i = 0; i < draws; ++i) {
    const auto start = std::chrono::steady_clock::now();
    Numbers square = draw();
    taken += std::chrono::steady_clock::now() - start;
    squares.insert(std::move(square));
  }
  std::map<Numbers, std::string> classes;
  std::map<std::string, int> kinds;
  for (const Numbers& square : squares)
    classes.try_emplace(StandardForm(square));
  for (auto& [form, kind] : classes) {
    const Facts facts{NumberSquare(form)};
    for (const SpecialKind& special : kSpecialKinds) {
      if (All(facts, {special.Term}, Holds(""))) ++kinds[special.Term];
    }
  }
  std::printf("%-22s %5d %7d %8zu %8zu %9.3f ", what, order, draws, squares.size(), classes.size(),
              taken.count() / draws);
  for (const auto& [kind, count] : kinds)
    std::printf(" %s %d", kind.c_str(), count);
  std::printf("\n");
}

}  // namespace

void PrintFreshVariety() {
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  std::printf("\n%-22s %5s %7s %8s %8s %9s  classes of a kind\n", "squares", "order", "draws",
              "squares", "classes", "ms each");
  const auto fresh = [&](const char* what, const SquareWish& wish) {
    PrintDraws(what, wish.Order,
               [&] { return Numbers(FreshSquare(wish, random, stage).value_or(Puzzle{}).Cells); });
  };
  for (const int order : {3, 4, 5, 6, 8, 10, 20, 30, 50})
    fresh("fresh", {order});
  for (const int order : {3, 4, 5, 10}) {
    fresh("total 3n", {order, 3 * order});
    fresh("total 20n", {order, 20 * order});
    fresh("limit, total 5n", {order, 5 * order, true});
  }
  for (const SpecialKind& kind : kSpecialKinds) {
    for (const int order : {4, 5, 7, 8, 9, 10}) {
      if (kind.WhyNone(order).empty())
        PrintDraws(kind.Term, order, [&] { return kind.Build(order, random); });
    }
  }
}

}  // namespace numorra::bench
