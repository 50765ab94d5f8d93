#pragma once

#include <map>
#include <string>
#include <vector>

/// A second opinion on squares: slow, obvious, and sharing no code with the product.
namespace slow {

using Rows = std::vector<std::vector<double>>;

/// The total of every line: the rows from the top, the columns from the left, the falling diagonal
/// and the rising one.
inline std::vector<double> LineTotals(const Rows& rows) {
  const std::size_t n = rows.size();
  std::vector<double> totals(2 * n + 2, 0.0);
  for (std::size_t r = 0; r < n; ++r) {
    for (std::size_t c = 0; c < n; ++c) {
      totals[r] += rows[r][c];
      totals[n + c] += rows[r][c];
      if (r == c) totals[2 * n] += rows[r][c];
      if (r + c == n - 1) totals[2 * n + 1] += rows[r][c];
    }
  }
  return totals;
}

/// Empty if every line adds up to `total`, otherwise what is wrong.
inline std::string WhyNotMagic(const Rows& rows, double total) {
  const auto totals = LineTotals(rows);
  for (std::size_t line = 0; line < totals.size(); ++line) {
    if (totals[line] != total) {
      return "line " + std::to_string(line) + " adds up to " + std::to_string(totals[line]) +
             ", not " + std::to_string(total);
    }
  }
  return {};
}

/// The same for a square of the numbers 1 to n x n.
inline std::string WhyNotNormal(const Rows& rows) {
  const std::size_t n = rows.size();
  std::map<double, int> seen;
  for (const auto& row : rows) {
    for (const double value : row)
      ++seen[value];
  }
  for (std::size_t value = 1; value <= n * n; ++value) {
    if (seen[static_cast<double>(value)] != 1) return "not once: " + std::to_string(value);
  }
  return WhyNotMagic(rows, static_cast<double>(n * (n * n + 1)) / 2);
}

}  // namespace slow
