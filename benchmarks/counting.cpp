#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>
#include <vector>

#include "benches.h"
#include "count/order5_count.h"

namespace numorra::bench {

namespace {

/// The seconds that `threads` threads take for every 20th diagonal set, shared out among them.
double SecondsWith(std::size_t threads) {
  const auto start = std::chrono::steady_clock::now();
  std::vector<std::thread> running;
  for (std::size_t thread = 0; thread < threads; ++thread) {
    running.emplace_back([=] {
      Order5Count order5{Square<int>(5)};
      for (std::size_t set = 20 * thread; set < order5.Sets().size(); set += 20 * threads)
        order5.CountOf(order5.Sets()[set]);
    });
  }
  for (std::thread& thread : running)
    thread.join();
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  return elapsed.count();
}

}  // namespace

void PrintCounting() {
  constexpr std::size_t kSlices = 1000;
  Order5Count order5{Square<int>(5)};
  std::vector<double> slices(kSlices);
  std::int64_t squares = 0;
  std::clock_t before = std::clock();
  for (std::size_t set = 0; set < order5.Sets().size(); ++set) {
    squares += order5.CountOf(order5.Sets()[set]);
    const std::clock_t now = std::clock();
    slices[set % kSlices] += static_cast<double>(now - before) / CLOCKS_PER_SEC;
    before = now;
  }
  double whole = 0;
  for (const double slice : slices)
    whole += slice;
  std::printf(
      "Counting the %lld magic squares of order 5: %.1f core seconds (goal: at most 70)\n"
      "The longest of %zu slices takes %.2f times the mean (goal: at most 1.8)\n",
      static_cast<long long>(squares), whole, kSlices,
      *std::max_element(slices.begin(), slices.end()) * static_cast<double>(kSlices) / whole);
  const double alone = SecondsWith(1);
  std::printf("Two cores take %.2f of the time of one (goal: at most 0.6)\n",
              SecondsWith(2) / alone);
}

}  // namespace numorra::bench
