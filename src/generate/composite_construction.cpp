#include <string>
#include <utility>

#include "app/board/board.h"
#include "generate/construction.h"
#include "generate/moved_steps.h"
#include "words/say.h"

/// The composite square, for orders n = m k with m and k from 3: m x m parts of order k. All hold
/// the same square of order k, raised by a multiple of k x k; how often tells a square of order m:
/// number = k k (outer - 1) + inner. Each line crosses m parts, whose outer numbers are a line of
/// the outer square, along the same line of the inner square.
namespace numorra {
namespace {

/// The orders of outer squares, from the smallest.
std::vector<int> OuterOrdersOf(int n) {
  std::vector<int> orders;
  for (int m = 3; 3 * m <= n; ++m) {
    if (n % m == 0) orders.push_back(m);
  }
  return orders;
}

Square<double> CompositeOf(const Square<double>& outer, const Square<double>& inner) {
  const int k = inner.Order();
  const int n = outer.Order() * k;
  return SquareOf(n, [&](int cell) {
    const int row = cell / n;
    const int column = cell % n;
    return k * k * (outer[Place{row / k + 1, column / k + 1}] - 1) +
           inner[Place{row % k + 1, column % k + 1}];
  });
}

CellTable BuildComposite(int order, BuildChoices& choices) {
  const std::vector<int> orders = OuterOrdersOf(order);
  const int m = orders[static_cast<std::size_t>(choices.PickOf(static_cast<int>(orders.size())))];
  const int k = order / m;
  const auto outer = SquareOf(ConstructionFor(m).Build(m, choices), m);
  return TableOf(CompositeOf(outer, SquareOf(ConstructionFor(k).Build(k, choices), k)));
}

/// The cells of the part of order k that stands for a place of the outer square.
std::vector<Place> CellsOfPart(Place part, int k) {
  std::vector<Place> cells;
  for (int cell = 0; cell < k * k; ++cell) {
    const Place inner = PlaceAt(cell, k);
    cells.push_back({(part.Row - 1) * k + inner.Row, (part.Column - 1) * k + inner.Column});
  }
  return cells;
}

/// The outer square with a number in each part, the inner one in part 1, then part by part.
std::vector<WalkStep> StepsOfParts(const PlacedNumbers& square, int m) {
  const int k = square.Order() / m;
  const PlacedNumbers outer(SquareOf(m, [&](int cell) -> double {
    const int raised = (square.At(CellsOfPart(PlaceAt(cell, m), k).front()) - 1) / (k * k);
    return raised + 1;
  }));
  const auto inner = SquareOf(
      k, [&](int cell) -> double { return (square.At(PlaceAt(cell, k)) - 1) % (k * k) + 1; });
  if (CompositeOf(outer.Numbers(), inner) != square.Numbers()) return {};
  const std::vector<WalkStep> outerSteps = WalkOf(outer.Numbers());
  const std::vector<WalkStep> innerSteps = WalkOf(inner);
  if (outerSteps.empty() || innerSteps.empty()) return {};
  const auto cellsOf = [k](Place part) { return CellsOfPart(part, k); };
  // Translators: %1 is a step of another construction: "2 goes up and to the right"
  std::vector<WalkStep> walk = MovedSteps(outerSteps, Mark("numbering the parts: %1"), cellsOf);
  for (WalkStep& step : walk)
    step.Number = 0;  // a part's number is in many cells
  const std::vector<Place> first = cellsOf(outer.PlaceOf(1));
  const auto inFirst = [&](Place place) { return std::vector{first[IndexOf(place, k)]}; };
  // Translators: %1 is a step of another construction: "2 goes up and to the right"
  const std::vector<WalkStep> within = MovedSteps(innerSteps, Mark("in part 1, %1"), inFirst);
  walk.insert(walk.end(), within.begin(), within.end());
  for (int number = 2; number <= m * m; ++number) {
    WalkStep step;
    step.Marked = cellsOf(outer.PlaceOf(number));
    for (const Place cell : step.Marked)
      step.Written.emplace_back(cell, std::to_string(square.At(cell)));
    step.Arrow = {first.front(), step.Marked.front()};
    step.Sentence =
        Say("part %1 takes the numbers of part 1, each raised by %2", number, (number - 1) * k * k);
    walk.push_back(std::move(step));
  }
  return walk;
}

std::vector<WalkStep> StepsOfComposite(const PlacedNumbers& square) {
  for (const int m : OuterOrdersOf(square.Order())) {
    if (std::vector<WalkStep> walk = StepsOfParts(square, m); !walk.empty()) return walk;
  }
  return {};
}

}  // namespace

const Construction kCompositeConstruction = {
    "composite",
    "BuildCompositex",
    Mark("&Composite"),
    Mark("an old method"),
    [](int order) -> std::string {
      if (!OuterOrdersOf(order).empty()) return {};
      return Say("the composite method makes products of two orders from 3, not %1", order);
    },
    BuildComposite,
    StepsOfComposite};

}  // namespace numorra
