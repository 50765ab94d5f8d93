#pragma once

#include <algorithm>
#include <limits>
#include <set>
#include <vector>

#include "support/slow_checker.h"

namespace slow {

/// The missing numbers that each gap (0) of a normal board can hold, by a plain reading of the
/// rules, in reading order: a number stays if every line through the gap can still reach its total
/// with it. The last gap of a line must hold the rest; of two gaps, the other must be able to hold
/// the rest; of more, the rest must lie between the least and the largest sum of different numbers
/// for the others. Repeats until nothing changes.
inline std::vector<std::set<int>> AllowedIn(const Rows& rows) {
  const int n = static_cast<int>(rows.size());
  const int total = n * (n * n + 1) / 2;
  std::vector<int> value;
  std::set<int> missing;
  for (int number = 1; number <= n * n; ++number)
    missing.insert(number);
  for (const auto& row : rows) {
    for (const double cell : row) {
      value.push_back(static_cast<int>(cell));
      missing.erase(value.back());
    }
  }
  std::vector<std::vector<int>> lines(static_cast<std::size_t>(2 * n + 2));
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      lines[static_cast<std::size_t>(i)].push_back(i * n + j);
      lines[static_cast<std::size_t>(n + i)].push_back(j * n + i);
    }
    lines[static_cast<std::size_t>(2 * n)].push_back(i * n + i);
    lines[static_cast<std::size_t>(2 * n + 1)].push_back(i * n + n - 1 - i);
  }
  std::vector<std::set<int>> allowed;
  for (const int number : value)
    allowed.push_back(number == 0 ? missing : std::set<int>());
  const auto least = [](std::vector<int> ends) {
    std::sort(ends.begin(), ends.end());
    int sum = 0;
    int last = std::numeric_limits<int>::min();
    for (const int end : ends)
      sum += last = std::max(end, last == std::numeric_limits<int>::min() ? end : last + 1);
    return sum;
  };
  for (bool changed = true; changed;) {
    changed = false;
    for (const auto& line : lines) {
      std::vector<std::size_t> gaps;
      int rest = total;
      for (const int cell : line) {
        rest -= value[static_cast<std::size_t>(cell)];
        if (value[static_cast<std::size_t>(cell)] == 0)
          gaps.push_back(static_cast<std::size_t>(cell));
      }
      for (const std::size_t gap : gaps) {
        std::vector<int> lows, highs;
        for (const std::size_t other : gaps) {
          if (other == gap) continue;
          lows.push_back(*allowed[other].begin());
          highs.push_back(-*allowed[other].rbegin());
        }
        for (const int number : std::set<int>(allowed[gap])) {
          const int left = rest - number;
          bool stays = left == 0;
          if (gaps.size() == 2) {
            const auto& others = allowed[gap == gaps[0] ? gaps[1] : gaps[0]];
            stays = left != number && others.count(left) > 0;
          } else if (gaps.size() > 2) {
            stays = least(lows) <= left && left <= -least(highs);
          }
          if (stays) continue;
          allowed[gap].erase(number);
          changed = true;
        }
      }
    }
  }
  return allowed;
}

}  // namespace slow
