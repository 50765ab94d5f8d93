#include <algorithm>
#include <utility>

#include "app/board/numbers.h"
#include "study/images.h"
#include "study/terms.h"

namespace numorra {
namespace {

/// Whether every cell and its partner have the same sum as the first cell and its partner.
template <class PartnerOf>
Judgement PairsAddUp(const Facts& facts, const std::string& which, PartnerOf partnerOf) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  const auto& units = facts.Square.Units();
  const int n = facts.N();
  const auto pairAt = [&](int cell) { return partnerOf(cell / n, cell % n); };
  const auto places = [&](int cell) {
    return std::vector<Place>{facts.Square.PlaceOf(cell), facts.Square.PlaceOf(pairAt(cell))};
  };
  const std::int64_t wanted = units[0] + units[pairAt(0)];
  for (int cell = 1; cell < units.Size(); ++cell) {
    const std::int64_t sum = units[cell] + units[pairAt(cell)];
    if (sum == wanted) continue;
    return Fails(facts.NumberAndPlace(cell) + " and " + facts.NumberAndPlace(pairAt(cell)) +
                     " add up to " + facts.Shown(sum) + ", not " + facts.Shown(wanted) +
                     " as at the top left",
                 places(cell));
  }
  return Holds(which + " add up to " + facts.Shown(wanted), places(0));
}

/// Whether all lines of the k x k square in the middle add up to the sum of its first row.
Judgement MiddleIsMagic(const Facts& facts, int k) {
  const int first = (facts.N() - k) / 2;
  const auto& units = facts.Square.Units();
  const auto sumOf = [&](Line line) {
    std::int64_t sum = 0;
    for (int i = 0; i < k; ++i) {
      const int inMiddle = line.Cell(i, k);
      sum += units[facts.Square.Index(first + inMiddle / k, first + inMiddle % k)];
    }
    return sum;
  };
  const std::int64_t wanted = sumOf({Line::Row, 0});
  for (const Line line : MagicLines(k)) {
    const std::int64_t sum = sumOf(line);
    if (sum == wanted) continue;
    Judgement broken = Fails("in the " + std::to_string(k) + " x " + std::to_string(k) +
                             " square in the middle, " + NameOf(line, k) + " adds up to " +
                             facts.Shown(sum) + ", row 1 to " + facts.Shown(wanted));
    for (int i = 0; i < k; ++i) {
      const int inMiddle = line.Cell(i, k);
      broken.Cells.push_back({first + inMiddle / k + 1, first + inMiddle % k + 1});
    }
    return broken;
  }
  return Holds({});
}

/// The cells of the k x k square in the middle.
std::vector<Place> MiddlePlaces(int n, int k) {
  std::vector<Place> places;
  const int first = (n - k) / 2 + 1;
  for (int r = 0; r < k; ++r) {
    for (int c = 0; c < k; ++c)
      places.push_back({first + r, first + c});
  }
  return places;
}

constexpr int kSmallestMiddle = 3;

}  // namespace

Judgement JudgeAssociative(const Facts& facts) {
  const int n = facts.N();
  return PairsAddUp(facts, "every number and the one opposite it",
                    [&](int i, int j) { return facts.Square.Index(n - 1 - i, n - 1 - j); });
}

Judgement JudgeComplete(const Facts& facts) {
  const int n = facts.N();
  if (n % 2 != 0) return DoesNotApply("the term is defined only for even orders");
  return PairsAddUp(
      facts, "numbers " + std::to_string(n / 2) + " apart on a wrapped diagonal",
      [&](int i, int j) { return facts.Square.Index((i + n / 2) % n, (j + n / 2) % n); });
}

Judgement JudgeCompact(const Facts& facts) {
  const int n = facts.N();
  if (n % 2 != 0) return DoesNotApply("the term is defined only for even orders");
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  const std::string wanted =
      Decimal(4.0 * static_cast<double>(facts.Total) / n / static_cast<double>(facts.Square.One()));
  const auto placesAt = [&](int i, int j) {
    std::vector<Place> places;
    for (const int r : {i, (i + 1) % n}) {
      for (const int c : {j, (j + 1) % n})
        places.push_back({r + 1, c + 1});
    }
    return places;
  };
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      const int below = i + 1 < n ? i + 1 : 0;
      const int right = j + 1 < n ? j + 1 : 0;
      const std::int64_t sum = facts.Square.Unit(i, j) + facts.Square.Unit(i, right) +
                               facts.Square.Unit(below, j) + facts.Square.Unit(below, right);
      if (sum * n == facts.Total * 4) continue;
      return Fails("the 2 x 2 block at row " + std::to_string(i + 1) + ", column " +
                       std::to_string(j + 1) + " adds up to " + facts.Shown(sum) + ", not " +
                       wanted,
                   placesAt(i, j));
    }
  }
  return Holds("every wrapped 2 x 2 block adds up to " + wanted, placesAt(0, 0));
}

Judgement JudgeMostPerfect(const Facts& facts) {
  if (facts.N() % 4 != 0) {
    return DoesNotApply("the term is defined only for orders that are multiples of 4");
  }
  return All(facts, {"normal", "compact", "complete"}, Holds("it is normal, compact and complete"));
}

Judgement JudgeUltramagic(const Facts& facts) {
  return All(facts, {"magic", "associative", "pandiagonal"},
             Holds("it is magic, associative and pandiagonal"));
}

Judgement JudgeSelfComplementary(const Facts& facts) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  const int n = facts.N();
  const auto& units = facts.Square.Units();
  const std::int64_t wanted = units[facts.Ascending.front()] + units[facts.Ascending.back()];
  const auto isComplement = [&](int image) {
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) {
        if (facts.Square.Unit(i, j) + units[SourceInImage(image, i, j, n)] != wanted) return false;
      }
    }
    return true;
  };
  const std::string complement = facts.Shown(wanted) + " - number";
  for (int image = 0; image < kImages; ++image) {
    if (!isComplement(image)) continue;
    return Holds(complement + " gives the square " + NameOfImage(image));
  }
  return Fails(complement + " does not give any of the square's eight images");
}

Judgement JudgeConcentric(const Facts& facts) {
  constexpr int kSmallestRinged = 5;
  if (facts.N() < kSmallestRinged) {
    return DoesNotApply("the term is defined only for orders from 5 on");
  }
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  for (int k = facts.N() - 2; k >= kSmallestMiddle; k -= 2) {
    if (Judgement middle = MiddleIsMagic(facts, k); !middle) return middle;
  }
  const int inner = facts.N() - 2;
  return Holds("the square inside every ring is magic", MiddlePlaces(facts.N(), inner));
}

/// Compares the neighbours in ascending order among the numbers inside each ring.
Judgement JudgeBordered(const Facts& facts) {
  if (Judgement concentric = JudgeConcentric(facts); !concentric) return concentric;
  const int n = facts.N();
  const auto& units = facts.Square.Units();
  const auto ringOf = [n](Place place) {
    return std::min({place.Row, place.Column, n + 1 - place.Row, n + 1 - place.Column}) - 1;
  };
  std::vector<int> rings;
  for (int cell = 0; cell < units.Size(); ++cell)
    rings.push_back(ringOf(facts.Square.PlaceOf(cell)));
  for (int ring = (n - kSmallestMiddle) / 2; ring > 0; --ring) {
    const int* before = nullptr;
    for (const int& cell : facts.Ascending) {
      if (rings[static_cast<std::size_t>(cell)] < ring) continue;
      const int* const last = std::exchange(before, &cell);
      if (!last || units[cell] - units[*last] == facts.Square.One()) continue;
      const std::string side = std::to_string(n - 2 * ring);
      return Fails("in the " + side + " x " + side +
                       " square in the middle, the next number after " + facts.NumberIn(*last) +
                       " is " + facts.NumberIn(cell),
                   MiddlePlaces(n, n - 2 * ring));
    }
  }
  return Holds("the numbers inside every ring are consecutive", MiddlePlaces(n, n - 2));
}

}  // namespace numorra
