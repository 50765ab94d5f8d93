#include <algorithm>
#include <utility>

#include "app/board/numbers.h"
#include "study/images.h"
#include "study/terms.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Whether every cell and its partner have the same sum as the first cell and its partner. If so,
/// `holds` says it of the sum; its second place is for half the order.
template <class PartnerOf>
Judgement PairsAddUp(const Facts& facts, const char* holds, PartnerOf partnerOf) {
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
    return Fails(
        Say("%1 and %2 add up to %3, not %4 as at the top left", facts.NumberAndPlace(cell),
            facts.NumberAndPlace(pairAt(cell)), facts.Shown(sum), facts.Shown(wanted)),
        places(cell));
  }
  return Holds(Say(holds, facts.Shown(wanted), n / 2), places(0));
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
    Judgement broken =
        Fails(Say("in the %1 x %1 square in the middle, %2 adds up to %3, row 1 to %4", k,
                  NameOf(line, k), facts.Shown(sum), facts.Shown(wanted)));
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
  return PairsAddUp(facts, Mark("every number and the one opposite it add up to %1"),
                    [&](int i, int j) { return facts.Square.Index(n - 1 - i, n - 1 - j); });
}

Judgement JudgeComplete(const Facts& facts) {
  const int n = facts.N();
  if (n % 2 != 0) return DoesNotApply(Say("the term is defined only for even orders"));
  return PairsAddUp(

      facts,
      // Translators: %1 is a sum, and %2 is a number of cells
      Mark("numbers %2 apart on a wrapped diagonal add up to %1"),
      [&](int i, int j) { return facts.Square.Index((i + n / 2) % n, (j + n / 2) % n); });
}

Judgement JudgeCompact(const Facts& facts) {
  const int n = facts.N();
  if (n % 2 != 0) return DoesNotApply(Say("the term is defined only for even orders"));
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  const std::string wanted =
      Written(4.0 * static_cast<double>(facts.Total) / n / static_cast<double>(facts.Square.One()));
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
      return Fails(Say("the 2 x 2 block at %1 adds up to %2, not %3", NameOf(Place{i + 1, j + 1}),
                       facts.Shown(sum), wanted),
                   placesAt(i, j));
    }
  }
  return Holds(Say("every wrapped 2 x 2 block adds up to %1", wanted), placesAt(0, 0));
}

Judgement JudgeMostPerfect(const Facts& facts) {
  if (facts.N() % 4 != 0) {
    return DoesNotApply(Say("the term is defined only for orders that are multiples of 4"));
  }
  return All(facts, {"normal", "compact", "complete"},
             Holds(Say("it is normal, compact and complete")));
}

Judgement JudgeUltramagic(const Facts& facts) {
  return All(facts, {"magic", "associative", "pandiagonal"},
             Holds(Say("it is magic, associative and pandiagonal")));
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
  constexpr const char* kGives[kImages] = {
      // Translators: here and in the next phrases, "10 - number" tells that each number is
      // subtracted from 10
      Mark("%1 - number gives the square as it is"),
      Mark("%1 - number gives the square mirrored left to right"),
      Mark("%1 - number gives the square mirrored top to bottom"),
      Mark("%1 - number gives the square turned half round"),
      Mark("%1 - number gives the square mirrored in the diagonal that falls"),
      Mark("%1 - number gives the square turned a quarter to the left"),
      Mark("%1 - number gives the square turned a quarter to the right"),
      Mark("%1 - number gives the square mirrored in the diagonal that rises")};
  for (int image = 0; image < kImages; ++image) {
    if (isComplement(image)) return Holds(Say(kGives[image], facts.Shown(wanted)));
  }
  return Fails(
      Say("%1 - number does not give any of the square's eight images", facts.Shown(wanted)));
}

Judgement JudgeConcentric(const Facts& facts) {
  constexpr int kSmallestRinged = 5;
  if (facts.N() < kSmallestRinged) {
    return DoesNotApply(Say("the term is defined only for orders from 5 on"));
  }
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  for (int k = facts.N() - 2; k >= kSmallestMiddle; k -= 2) {
    if (Judgement middle = MiddleIsMagic(facts, k); !middle) return middle;
  }
  const int inner = facts.N() - 2;
  return Holds(Say("the square inside every ring is magic"), MiddlePlaces(facts.N(), inner));
}

/// Compares the neighbours in ascending order among the numbers inside each ring.
Judgement JudgeBordered(const Facts& facts) {
  if (Judgement concentric = JudgeConcentric(facts); !concentric) return concentric;
  const int n = facts.N();
  const auto& units = facts.Square.Units();
  const auto ringOf = [n](Place place) {
    return std::min({place.Row, place.Column, n + 1 - place.Row, n + 1 - place.Column}) - 1;
  };
  const auto rings = SquareOf(n, [&](int cell) { return ringOf(facts.Square.PlaceOf(cell)); });
  for (int ring = (n - kSmallestMiddle) / 2; ring > 0; --ring) {
    const int* before = nullptr;
    for (const int& cell : facts.Ascending) {
      if (rings[cell] < ring) continue;
      const int* const last = std::exchange(before, &cell);
      if (!last || units[cell] - units[*last] == facts.Square.One()) continue;
      const int side = n - 2 * ring;
      return Fails(Say("in the %1 x %1 square in the middle, the next number after %2 is %3", side,
                       facts.NumberIn(*last), facts.NumberIn(cell)),
                   MiddlePlaces(n, side));
    }
  }
  return Holds(Say("the numbers inside every ring are consecutive"), MiddlePlaces(n, n - 2));
}

}  // namespace numorra
