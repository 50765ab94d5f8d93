#include "generate/spreading.h"

#include <cmath>
#include <gtest/gtest.h>

#include "generate/exchange.h"
#include "support/boards.h"
#include "support/stand_ins.h"
#include "transform/symmetry.h"

namespace numorra {
namespace {

/// The passes as they are told, on whole matrices that are turned cell by cell: slow and obvious.
class PlainSpreading {
 public:
  PlainSpreading(const CellTable& values, int order, bool limit, Random& random)
      : Values(values), n_(order), limit_(limit), random_(random) {}

  void CornerDiagonals() {
    const int n = n_;
    for (int k = 2, m = n - 1; k < m; ++k, --m) {
      const std::vector<FlaggedCell> pattern{{1, 1, -1}, {1, n, 1},  {n, 1, 1},  {n, n, -1},
                                             {k, k, 2},  {k, m, -2}, {n, k, -2}, {n, m, 2}};
      Twice(pattern);
    }
  }

  void CornerEdges() {
    const int n = n_;
    for (int c = n - 1; c > 1; --c)
      Twice({{1, 1, 1}, {1, n, 1}, {n, 1, -1}, {n, n, -1}, {1, c, -2}, {n, c, 2}});
  }

  void Rings() {
    for (int k = 1; k <= (n_ + 1) / 2 - 1; ++k)
      OneRing(k, n_ + 1 - k);
  }

  CellTable Values;
  int Passes = 0;

 private:
  void Write(const std::vector<FlaggedCell>& cells, int sign) {
    flags_ = CellTable();
    for (const auto& cell : cells)
      flags_(cell.Row, cell.Column) = sign * cell.Weight;
  }

  void Apply(double factor) {
    ++Passes;
    if (limit_ && Highest(factor) > 9) factor = 0;
    ForEachCell(n_, [&](int r, int c) { Values(r, c) += factor * flags_(r, c); });
  }

  double Highest(double factor) {
    double highest = 0;
    ForEachCell(n_, [&](int r, int c) {
      highest = std::max(highest, Values(r, c) + factor * flags_(r, c));
    });
    return highest;
  }

  double Factor() {
    double m = 9999;
    ForEachCell(n_, [&](int r, int c) {
      if (flags_(r, c) < 0 && Values(r, c) < m) m = Values(r, c);
    });
    if (m == 1) return 0;
    const double lim = m / 2 - 1;
    double f = 1 + random_.Next() * lim;
    if (f > lim) f = lim;
    f = std::nearbyint(f);
    return limit_ && Highest(f) > 9 ? 0 : f;
  }

  void Twice(const std::vector<FlaggedCell>& cells) {
    for (const int sign : {1, -1}) {
      Write(cells, sign);
      Apply(Factor());
    }
    RotateBoard90(Values, n_);
  }

  void OneRing(int a, int c) {
    int j1 = 0, i1 = 0, j2 = 0, i2 = 0;
    for (int round = 0; round < 100; ++round) {
      double low = 9999, low2 = 9999, high = -1, high2 = -1;
      for (int x = a + 1; x < c; ++x) {
        if (Values(a, x) < low) low = Values(a, j1 = x);
        if (Values(x, c) < low2) low2 = Values(i1 = x, c);
      }
      if (!Ring(a, c, i1, j1, 1)) return;
      for (int x = a + 1; x < c; ++x) {
        if (Values(1, x) > high) high = Values(1, j2 = x);
        if (Values(x, n_) > high2) high2 = Values(i2 = x, n_);
      }
      if (!Ring(a, c, i2, j2, -1)) return;
      RotateBoard90(Values, n_);
    }
  }

  bool Ring(int a, int c, int i, int j, int sign) {
    if (i == 0 || j == 0) return false;
    const std::vector<FlaggedCell> pattern{{a, a, -1}, {a, c, -2}, {a, j, 3}, {c, j, -3},
                                           {i, a, -1}, {i, c, 1},  {c, a, 2}, {c, c, 1}};
    Write(pattern, sign);
    bool low = false;
    ForEachCell(n_, [&](int r, int cc) {
      if (flags_(r, cc) != 0 && Values(r, cc) + flags_(r, cc) < 1) low = true;
    });
    if (!low) Apply(1);
    return !low;
  }

  CellTable flags_;
  int n_;
  bool limit_;
  Random& random_;
};

/// Any numbers from 1 to twice the base: the passes ask for no more.
CellTable AnyBoard(int order, int base, std::uint64_t seed) {
  SeededRandom random(seed);
  CellTable cells;
  ForEachCell(order, [&](int r, int c) { cells(r, c) = random.Between(1, 2 * base - 1); });
  return cells;
}

TEST(Spreading, IsThePlainMethodCellForCell) {
  std::uint64_t seed = 1;
  for (int order = 4; order <= 13; ++order) {
    for (const int base : {2, 3, 4, 5, 12, 50, 10500}) {
      for (const bool limit : {false, true}) {
        if (limit && base > 5) continue;
        const CellTable start = AnyBoard(order, base, ++seed);
        SeededRandom first(seed), second(seed);
        SilentStage stage;
        PatternedSquare fast(TurningSquare(start, order), limit, 0, first, stage);
        PlainSpreading plain(start, order, limit, second);
        SpreadCornerDiagonals(fast);
        plain.CornerDiagonals();
        SpreadCornerEdges(fast);
        plain.CornerEdges();
        SpreadRings(fast);
        plain.Rings();
        ASSERT_EQ(RowsOf(fast.Square().Settled(), order), RowsOf(plain.Values, order))
            << "order " << order << " base " << base << " limit " << limit;
        ASSERT_EQ(fast.PassCount(), plain.Passes);
      }
    }
  }
}

/// Every cell of every order has one; none touches (1, 1) but its own, nor asks more than the cells
/// of a flat board can give, nor less.
TEST(Exchanges, ReachEveryCellOfEveryOrderAndAddUpToZero) {
  SeededRandom random(8);
  SilentStage stage;
  for (const int order : {4, 5, 6, 7, 8, 13, 50}) {
    TurningSquare flat(order);
    flat.Fill(10);
    for (const bool limit : {false, true}) {
      const PatternedSquare start(flat, limit, 0, random, stage);
      ForEachCell(order, [&](int r, int c) {
        PatternedSquare square = start;
        const Pattern pattern = ExchangeAt(square, r, c);
        CellTable sums;
        int highest = 0, lowest = 0;
        for (const auto& cell : pattern)
          sums(cell.Row, cell.Column) += cell.Weight;
        ForEachCell(order, [&](int y, int x) {
          highest = std::max(highest, static_cast<int>(sums(y, x)));
          lowest = std::min(lowest, static_cast<int>(sums(y, x)));
        });
        ASSERT_EQ(slow::WhyNotMagic(RowsOf(sums, order), 0), "");
        ASSERT_EQ(sums(r, c), 1) << order << " " << r << " " << c;
        ASSERT_TRUE(sums(1, 1) == 0 || (r == 1 && c == 1));
        if (limit) return;
        const FactorRange range = ExchangeRange(square, pattern);
        ASSERT_EQ(range.Low, -(9 / highest)) << "no cell of 10 below 1";
        ASSERT_EQ(range.High, 9 / -lowest);
      });
    }
  }
}

}  // namespace
}  // namespace numorra
