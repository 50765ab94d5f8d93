#include "study/moved_places.h"

#include <numeric>
#include <span>

#include "study/images.h"

namespace numorra {
namespace {

/// The square with the number of the cell sourceOf(i, j) at (i, j).
template <class SourceOf>
Square<double> Moved(const Square<double>& square, SourceOf sourceOf) {
  const int n = square.Order();
  return SquareOf(n, [&](int cell) { return square[sourceOf(cell / n, cell % n)]; });
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

Square<double> WithLinesFrom(const Square<double>& square, const std::vector<int>& rows,
                             const std::vector<int>& columns) {
  return Moved(square, [&](int i, int j) {
    return rows[static_cast<std::size_t>(i)] * square.Order() +
           columns[static_cast<std::size_t>(j)];
  });
}

std::optional<Square<double>> MovedRound(const Square<double>& square, Random& random) {
  const int order = square.Order();
  const int down = random.Between(0, order - 1);
  const int right = random.Between(down == 0 ? 1 : 0, order - 1);
  return Moved(square,
               [&](int i, int j) { return (i + down) % order * order + (j + right) % order; });
}

std::optional<Square<double>> WithPlacesMultiplied(const Square<double>& square, Random& random) {
  const int order = square.Order();
  std::vector<int> factors;  // the last, n - 1, turns the square half round
  for (int factor = 2; factor < order - 1; ++factor) {
    if (std::gcd(factor, order) == 1) factors.push_back(factor);
  }
  if (factors.empty()) return std::nullopt;
  const int last = static_cast<int>(factors.size()) - 1;
  const int k = factors[static_cast<std::size_t>(random.Between(0, last))];
  const int shift = k * order - (k - 1) * (order - 1) / 2;  // so that the centre stays in its place
  const auto from = [&](int line) { return (k * line + shift) % order; };
  return Moved(square, [&](int i, int j) { return from(i) * order + from(j); });
}

std::optional<Square<double>> WithDiagonalsAsLines(const Square<double>& square,
                                                   Random& /*random*/) {
  const int order = square.Order();
  if (order % 2 == 0) return std::nullopt;
  const int middle = order / 2;
  return Moved(square, [&](int i, int j) {
    return (i + j + order - middle) % order * order + (i - j + order + middle) % order;
  });
}

std::optional<Square<double>> WithOppositesExchanged(const Square<double>& square, Random& random) {
  const std::vector<int> rows = DrawOrderOfOpposites(square.Order(), random);
  return WithLinesFrom(square, rows, DrawOrderOfOpposites(square.Order(), random));
}

std::optional<Square<double>> WithHalvesExchanged(const Square<double>& square, Random& random) {
  if (square.Order() % 4 != 0) return std::nullopt;
  const std::vector<int> rows = DrawOrderOfHalves(square.Order(), random);
  return WithLinesFrom(square, rows, DrawOrderOfHalves(square.Order(), random));
}

std::optional<Square<double>> WithRingsExchanged(const Square<double>& square, Random& random) {
  constexpr int kSmallestRing = 5;
  const int order = square.Order();
  if (order < kSmallestRing) return std::nullopt;
  const auto within = [&](int cell) {
    const Place place = PlaceAt(cell, order - 2);
    return square[Place{place.Row + 1, place.Column + 1}];
  };
  Square<double> inner = ImageOf(random.Between(0, kImages - 1), SquareOf(order - 2, within));
  if (const auto exchanged = WithRingsExchanged(inner, random)) inner = *exchanged;
  const std::vector<int> above = Shuffled(2, order - 1, 1, random);
  const std::vector<int> beside = Shuffled(2, order - 1, 1, random);
  Square<double> exchanged = square;
  for (int i = 2; i < order; ++i) {
    const int column = above[static_cast<std::size_t>(i - 2)];
    const int row = beside[static_cast<std::size_t>(i - 2)];
    for (const int edge : {1, order}) {
      exchanged[Place{edge, i}] = square[Place{edge, column}];
      exchanged[Place{i, edge}] = square[Place{row, edge}];
    }
    for (int j = 2; j < order; ++j)
      exchanged[Place{i, j}] = inner[Place{i - 1, j - 1}];
  }
  return exchanged;
}

}  // namespace numorra
