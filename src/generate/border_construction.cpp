#include <string>
#include <utility>

#include "generate/construction.h"
#include "words/say.h"

/// Bordering, for orders n from 5: ring after ring from the outside, around a middle of one cell or
/// of order 4. A ring of order m takes the 2m - 2 smallest numbers that are left, and opposite
/// each, along its row, its column or, in a corner, its diagonal, the complement to n x n + 1. So
/// all lines through the ring are right but its own, and for these it is enough that the top row
/// and the left column are right. With the small numbers counted from 1, they go to the sides
///
///     m = 2k + 1   1 to k top, then k - 1 left, k - 1 bottom, 1 bottom left corner, 1 right,
///                  1 bottom right corner, k - 1 right
///     m = 4k + 2   1 top left corner, 2 top right corner, then 3 bottom, 1 left, 2 right, 1 top,
///                  1 left; then eight at a time
///     m = 4k       1 top left corner, 2 top right corner, then 4 bottom, 2 top, 1 right, 2 left,
///                  2 right, 1 left; then eight at a time
///
///     eight: 1 top, 2 bottom, 1 top, 1 left, 2 right, 1 left; each four keeps both lines right
namespace numorra {
namespace {

enum class BorderPart { Top, Left, Bottom, Right, TopLeft, TopRight, BottomLeft, BottomRight };

/// The parts of a ring that its small numbers go to, in ascending order.
std::vector<BorderPart> PartsOfRing(int m) {
  using enum BorderPart;
  std::vector<BorderPart> parts;
  const auto add = [&](int count, BorderPart part) {
    parts.insert(parts.end(), static_cast<std::size_t>(count), part);
  };
  if (m % 2 == 1) {
    const int k = m / 2;
    add(k, Top);
    add(k - 1, Left);
    add(k - 1, Bottom);
    parts.insert(parts.end(), {BottomLeft, Right, BottomRight});
    add(k - 1, Right);
    return parts;
  }
  parts = m % 4 == 2 ? std::vector{TopLeft, TopRight, Bottom, Bottom, Bottom,
                                   Left,    Right,    Right,  Top,    Left}
                     : std::vector{TopLeft, TopRight, Bottom, Bottom, Bottom, Bottom, Top,
                                   Top,     Right,    Left,   Left,   Right,  Right,  Left};
  while (static_cast<int>(parts.size()) < 2 * m - 2) {
    parts.insert(parts.end(), {Top, Bottom, Bottom, Top, Left, Right, Right, Left});
  }
  return parts;
}

/// The places in a square of order m, by small number. Numbers on the upper and the lower side fill
/// the columns from the left, those on the others the rows from the top.
std::vector<Place> PlacesInRing(int m) {
  std::vector<Place> places;
  int column = 2;
  int row = 2;
  for (const BorderPart part : PartsOfRing(m)) {
    switch (part) {
      case BorderPart::Top:
        places.push_back({1, column++});
        break;
      case BorderPart::Bottom:
        places.push_back({m, column++});
        break;
      case BorderPart::Left:
        places.push_back({row++, 1});
        break;
      case BorderPart::Right:
        places.push_back({row++, m});
        break;
      case BorderPart::TopLeft:
        places.push_back({1, 1});
        break;
      case BorderPart::TopRight:
        places.push_back({1, m});
        break;
      case BorderPart::BottomLeft:
        places.push_back({m, 1});
        break;
      case BorderPart::BottomRight:
        places.push_back({m, m});
        break;
    }
  }
  return places;
}

bool IsEnd(int line, int m) {
  return line == 1 || line == m;
}

Place OppositeInRing(Place place, int m) {
  return {IsEnd(place.Row, m) ? m + 1 - place.Row : place.Row,
          IsEnd(place.Column, m) ? m + 1 - place.Column : place.Column};
}

/// A ring of a square of order n, or its middle: the order of what it encloses, itself included,
/// and the number below its smallest.
struct Border {
  int Order;
  int Below;
};

/// The rings from the outside, and the middle, of order 1 or 4, as the last.
std::vector<Border> RingsOf(int n) {
  std::vector<Border> rings;
  int below = 0;
  for (int m = n; m > 0 && m != 2; m -= 2) {
    rings.push_back({m, below});
    below += 2 * m - 2;
  }
  return rings;
}

Place InSquare(Place place, int m, int n) {
  const int before = (n - m) / 2;
  return {place.Row + before, place.Column + before};
}

/// The number of a cell of the middle: in reading order, and counted from the end on the diagonals.
int NumberInMiddle(Place place, const Border& middle) {
  const int m = middle.Order;
  const int number = (place.Row - 1) * m + place.Column;
  const bool marked = place.Row == place.Column || place.Row + place.Column == m + 1;
  return middle.Below + (marked ? m * m + 1 - number : number);
}

CellTable BuildByBorders(int order, BuildChoices& /*choices*/) {
  Square<double> square(order);
  std::vector<Border> rings = RingsOf(order);
  const Border middle = rings.back();
  rings.pop_back();
  for (const Border& ring : rings) {
    int number = ring.Below;
    for (const Place place : PlacesInRing(ring.Order)) {
      square[InSquare(place, ring.Order, order)] = ++number;
      square[InSquare(OppositeInRing(place, ring.Order), ring.Order, order)] =
          order * order + 1 - number;
    }
  }
  for (int cell = 0; cell < middle.Order * middle.Order; ++cell) {
    const Place place = PlaceAt(cell, middle.Order);
    square[InSquare(place, middle.Order, order)] = NumberInMiddle(place, middle);
  }
  return TableOf(square);
}

void WriteInRing(WalkStep& step, Place place, int number) {
  step.Written.emplace_back(place, std::to_string(number));
  step.Marked.push_back(place);
}

/// "row 5, column 1", "row 5, columns 2 to 4" or "column 1, rows 2 to 4".
std::string NameOfRun(Place first, Place last) {
  if (first == last) return NameOf(first);
  return first.Row == last.Row
             ? Say("row %1, columns %2 to %3", first.Row, first.Column, last.Column)
             : Say("column %1, rows %2 to %3", first.Column, first.Row, last.Row);
}

/// Writes the small numbers, a run on one side per step, and then their complements.
void AddRing(std::vector<WalkStep>& walk, const Border& ring, int n) {
  const std::vector<BorderPart> parts = PartsOfRing(ring.Order);
  const std::vector<Place> places = PlacesInRing(ring.Order);
  const int complements = n * n + 1;
  WalkStep opposite;
  opposite.Sentence =
      Say("in the ring of order %1, opposite each number, at corners along the diagonal, goes %2 "
          "minus it",
          ring.Order, complements);
  for (std::size_t i = 0; i < parts.size();) {
    const int first = ring.Below + static_cast<int>(i) + 1;
    int number = first;
    WalkStep run{{}, {}, {}, {}, first};
    for (const BorderPart part = parts[i]; i < parts.size() && parts[i] == part; ++i, ++number) {
      WriteInRing(run, InSquare(places[i], ring.Order, n), number);
      WriteInRing(opposite, InSquare(OppositeInRing(places[i], ring.Order), ring.Order, n),
                  complements - number);
    }
    const int last = number - 1;
    const std::string cells = NameOfRun(run.Marked.front(), run.Marked.back());
    run.Sentence =
        first == last
            // Translators: %2 is a number, and %3 is its cell: "row 5, column 1"
            ? Say("in the ring of order %1, %2 goes to %3", ring.Order, first, cells)
            // Translators: %2 and %3 are numbers, and %4 names cells: "row 5, columns 2 to 4"
            : Say("in the ring of order %1, %2 to %3 go to %4", ring.Order, first, last, cells);
    walk.push_back(std::move(run));
  }
  walk.push_back(std::move(opposite));
}

WalkStep MiddleStep(const Border& middle, int n) {
  const int m = middle.Order;
  WalkStep step{{}, {}, {}, {}, 0};
  for (int cell = 0; cell < m * m; ++cell) {
    const Place place = PlaceAt(cell, m);
    WriteInRing(step, InSquare(place, m, n), NumberInMiddle(place, middle));
  }
  const int last = middle.Below + m * m;
  step.Sentence = m == 1 ? Say("%1 goes to the middle", last)
                         : Say("the middle takes %1 to %2 in reading order, but on its two "
                               "diagonals counted back from %2",
                               middle.Below + 1, last);
  return step;
}

std::vector<WalkStep> StepsOfBorders(const PlacedNumbers& square) {
  const int n = square.Order();
  if (ExampleOf(kBorderConstruction, n) != square.Numbers()) return {};
  std::vector<WalkStep> walk;
  std::vector<Border> rings = RingsOf(n);
  const WalkStep middle = MiddleStep(rings.back(), n);
  rings.pop_back();
  for (const Border& ring : rings)
    AddRing(walk, ring, n);
  walk.push_back(middle);
  return walk;
}

}  // namespace

const Construction kBorderConstruction = {
    "borders",
    "BuildBordersx",
    Mark("&Borders"),
    Mark("an old method, which Michael Stifel described in 1544"),
    [](int order) -> std::string {
      if (order >= 5) return {};
      return Say("the method of borders makes orders from 5, not %1", order);
    },
    BuildByBorders,
    StepsOfBorders};

}  // namespace numorra
