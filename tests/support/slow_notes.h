#pragma once

#include <set>
#include <vector>

#include "support/slow_checker.h"

namespace slow {

/// The missing numbers that each gap (0) of a normal board can hold, in reading order: a number
/// stays if every line through the gap, alone, can still reach its total with it and different
/// missing numbers for its other gaps. Of two gaps, the other must be able to hold the rest; of
/// more, the rest must lie between the least and the largest sum.
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
  for (const auto& line : lines) {
    std::vector<std::size_t> gaps;
    int rest = total;
    for (const int cell : line) {
      rest -= value[static_cast<std::size_t>(cell)];
      if (value[static_cast<std::size_t>(cell)] == 0)
        gaps.push_back(static_cast<std::size_t>(cell));
    }
    for (const std::size_t gap : gaps) {
      for (const int number : missing) {
        std::set<int> others = missing;
        others.erase(number);
        int least = 0, most = 0;
        auto up = others.begin();
        auto down = others.rbegin();
        for (std::size_t other = 1; other < gaps.size(); ++other) {
          least += *up++;
          most += *down++;
        }
        const int left = rest - number;
        const bool stays =
            least <= left && left <= most && (gaps.size() != 2 || others.count(left) > 0);
        if (!stays) allowed[gap].erase(number);
      }
    }
  }
  return allowed;
}

}  // namespace slow
