#include "study/moved_places.h"

#include <cstddef>
#include <numeric>
#include <span>

#include "study/images.h"

namespace numorra {
namespace {

/// The numbers with that of sourceOf(i, j), an index, at (i, j).
template <class SourceOf>
std::vector<double> Moved(int order, const std::vector<double>& numbers, SourceOf sourceOf) {
  std::vector<double> moved;
  moved.reserve(numbers.size());
  for (int i = 0; i < order; ++i) {
    for (int j = 0; j < order; ++j) {
      const int source = sourceOf(i, j);
      moved.push_back(numbers[static_cast<std::size_t>(source)]);
    }
  }
  return moved;
}

std::vector<int> Shuffled(int first, int last, int step, Random& random) {
  std::vector<int> lines;
  for (int line = first; line <= last; line += step)
    lines.push_back(line);
  Shuffle(std::span(lines), random);
  return lines;
}

std::vector<int> DrawOrderOfHalves(int order, Random& random) {
  const int half = order / 2;
  std::vector<int> lines(static_cast<std::size_t>(order));
  for (const int parity : {0, 1}) {
    int line = parity;
    for (const int pair : Shuffled(parity, half - 1, 2, random)) {
      const int first = random.Between(0, 1) == 1 ? pair + half : pair;
      const int partner = line + half;
      lines[static_cast<std::size_t>(line)] = first;
      lines[static_cast<std::size_t>(partner)] = (first + half) % order;
      line += 2;
    }
  }
  return lines;
}

}  // namespace

std::vector<int> DrawOrderOfOpposites(int order, Random& random) {
  const int half = order / 2;
  std::vector<int> lines(static_cast<std::size_t>(order), half);
  int line = 0;
  for (const int pair : Shuffled(0, half - 1, 1, random)) {
    const bool turned = random.Between(0, 1) == 1;
    lines[static_cast<std::size_t>(line)] = turned ? order - 1 - pair : pair;
    lines[static_cast<std::size_t>(order - 1 - line)] = turned ? pair : order - 1 - pair;
    ++line;
  }
  return lines;
}

std::vector<double> WithLinesFrom(const std::vector<double>& numbers, const std::vector<int>& rows,
                                  const std::vector<int>& columns) {
  const auto order = static_cast<int>(rows.size());
  return Moved(order, numbers, [&](int i, int j) {
    return rows[static_cast<std::size_t>(i)] * order + columns[static_cast<std::size_t>(j)];
  });
}

std::optional<std::vector<double>> MovedRound(int order, const std::vector<double>& numbers,
                                              Random& random) {
  const int down = random.Between(0, order - 1);
  const int right = random.Between(down == 0 ? 1 : 0, order - 1);
  return Moved(order, numbers,
               [&](int i, int j) { return (i + down) % order * order + (j + right) % order; });
}

std::optional<std::vector<double>> WithPlacesMultiplied(int order,
                                                        const std::vector<double>& numbers,
                                                        Random& random) {
  std::vector<int> factors;  // the last, n - 1, turns the square half round
  for (int factor = 2; factor < order - 1; ++factor) {
    if (std::gcd(factor, order) == 1) factors.push_back(factor);
  }
  if (factors.empty()) return std::nullopt;
  const int last = static_cast<int>(factors.size()) - 1;
  const int k = factors[static_cast<std::size_t>(random.Between(0, last))];
  const int shift = k * order - (k - 1) * (order - 1) / 2;  // which leaves the centre in its place
  const auto from = [&](int line) { return (k * line + shift) % order; };
  return Moved(order, numbers, [&](int i, int j) { return from(i) * order + from(j); });
}

std::optional<std::vector<double>> WithDiagonalsAsLines(int order,
                                                        const std::vector<double>& numbers,
                                                        Random& /*random*/) {
  if (order % 2 == 0) return std::nullopt;
  const int middle = order / 2;
  return Moved(order, numbers, [&](int i, int j) {
    return (i + j + order - middle) % order * order + (i - j + order + middle) % order;
  });
}

std::optional<std::vector<double>> WithOppositesExchanged(int order,
                                                          const std::vector<double>& numbers,
                                                          Random& random) {
  const std::vector<int> rows = DrawOrderOfOpposites(order, random);
  return WithLinesFrom(numbers, rows, DrawOrderOfOpposites(order, random));
}

std::optional<std::vector<double>> WithHalvesExchanged(int order,
                                                       const std::vector<double>& numbers,
                                                       Random& random) {
  if (order % 4 != 0) return std::nullopt;
  const std::vector<int> rows = DrawOrderOfHalves(order, random);
  return WithLinesFrom(numbers, rows, DrawOrderOfHalves(order, random));
}

std::optional<std::vector<double>> WithRingsExchanged(int order, const std::vector<double>& numbers,
                                                      Random& random) {
  constexpr int kSmallestRing = 5;
  if (order < kSmallestRing) return std::nullopt;
  std::vector<double> inner;
  for (int i = 1; i < order - 1; ++i) {
    const auto row = numbers.begin() + std::ptrdiff_t{i} * order;
    inner.insert(inner.end(), row + 1, row + order - 1);
  }
  inner = ImageOf(random.Between(0, kImages - 1), order - 2, inner);
  if (const auto exchanged = WithRingsExchanged(order - 2, inner, random)) inner = *exchanged;
  const std::vector<int> above = Shuffled(1, order - 2, 1, random);
  const std::vector<int> beside = Shuffled(1, order - 2, 1, random);
  std::vector<double> square = numbers;
  const auto at = [order](int i, int j) {
    const int cell = i * order + j;
    return static_cast<std::size_t>(cell);
  };
  for (int i = 1; i < order - 1; ++i) {
    const int column = above[static_cast<std::size_t>(i - 1)];
    const int row = beside[static_cast<std::size_t>(i - 1)];
    for (const int edge : {0, order - 1}) {
      square[at(edge, i)] = numbers[at(edge, column)];
      square[at(i, edge)] = numbers[at(row, edge)];
    }
    for (int j = 1; j < order - 1; ++j)
      square[at(i, j)] = inner[static_cast<std::size_t>((i - 1) * (order - 2) + j - 1)];
  }
  return square;
}

}  // namespace numorra
