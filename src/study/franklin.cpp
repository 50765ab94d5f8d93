#include <algorithm>
#include <array>

#include "study/terms.h"
#include "words/say.h"

namespace numorra {
namespace {

/// A bent row: two half diagonals that meet in the middle. In step i, 0..n-1, it has gone
/// min(i, n - 1 - i) steps aside from line k, counted modulo n.
struct BentRow {
  bool Upright;  ///< steps from row to row and bends along them; otherwise from column to column
  int Aside;     ///< 1: first down, or to the right; -1: first up, or to the left
  int K;         ///< the line, from 0, in which it starts and ends

  int Cell(int i, int n) const {
    const int line = (K + Aside * std::min(i, n - 1 - i) + n) % n;
    return Upright ? i * n + line : line * n + i;
  }

  std::string Name() const {
    const bool ahead = Aside > 0;
    const char* const name = Upright ? ahead ? Mark("the bent row that goes right from %1")
                                             : Mark("the bent row that goes left from %1")
                             : ahead ? Mark("the bent row that goes down from %1")
                                     : Mark("the bent row that goes up from %1");
    return Say(name, NameOf(Upright ? Place{1, K + 1} : Place{K + 1, 1}));
  }

  std::vector<Place> Places(int n) const {
    std::vector<Place> places;
    for (int i = 0; i < n; ++i)
      places.push_back(PlaceAt(Cell(i, n), n));
    return places;
  }
};

constexpr std::array<const char*, 2> kHalfFails = {
    Mark("the first half of %1 adds up to %2, not half of %3"),
    Mark("the second half of %1 adds up to %2, not half of %3")};

Judgement HalvesReachHalfOfTotal(const Facts& facts) {
  const int n = facts.N();
  for (const Line line : facts.Lines) {
    if (line.Way != Line::Row && line.Way != Line::Column) continue;
    for (const int half : {0, 1}) {
      std::int64_t sum = 0;
      std::vector<Place> places;
      for (int i = half * n / 2; i < (half + 1) * n / 2; ++i) {
        sum += facts.Square.Units()[line.Cell(i, n)];
        places.push_back(facts.Square.PlaceOf(line.Cell(i, n)));
      }
      if (2 * sum == facts.Total) continue;
      return Fails(Say(kHalfFails[static_cast<std::size_t>(half)], NameOf(line, n),
                       facts.Shown(sum), facts.Shown(facts.Total)),
                   std::move(places));
    }
  }
  return Holds({});
}

Judgement BentRowsReachTotal(const Facts& facts) {
  const int n = facts.N();
  for (const bool upright : {false, true}) {
    for (const int aside : {1, -1}) {
      for (int k = 0; k < n; ++k) {
        const BentRow row{upright, aside, k};
        std::int64_t sum = 0;
        for (int i = 0; i < n; ++i)
          sum += facts.Square.Units()[row.Cell(i, n)];
        if (sum == facts.Total) continue;
        return Fails(
            Say("%1 adds up to %2, not %3", row.Name(), facts.Shown(sum), facts.Shown(facts.Total)),
            row.Places(n));
      }
    }
  }
  return Holds({});
}

}  // namespace

Judgement JudgeFranklin(const Facts& facts) {
  constexpr int kSmallestFranklin = 8;
  const int n = facts.N();
  if (n < kSmallestFranklin || n % 4 != 0) {
    return DoesNotApply(
        Say("the term is defined only for orders from 8 on that are multiples of 4"));
  }
  if (Judgement lines = All(facts, {"semi-magic"}, Holds({})); !lines) return lines;
  if (Judgement halves = HalvesReachHalfOfTotal(facts); !halves) return halves;
  if (Judgement bent = BentRowsReachTotal(facts); !bent) return bent;
  const BentRow shown{false, 1, 0};
  return All(
      facts, {"compact"},
      Holds(Say("half rows and half columns add up to half of %1, and bent rows to %1, such as %2",
                facts.Shown(facts.Total), shown.Name()),
            shown.Places(n)));
}

}  // namespace numorra
