#include "generate/construction.h"

#include <algorithm>

#include "app/board/board.h"
#include "app/board/orders.h"
#include "app/board/runtime_error.h"
#include "words/say.h"

namespace numorra {
namespace {

class ChoicesAtRandom : public BuildChoices {
 public:
  explicit ChoicesAtRandom(Random& random) : random_(random) {}

  int PickOf(int kept) override { return random_.Between(0, kept - 1); }
  int QuarterTurns() override { return random_.Between(0, 3); }

 private:
  Random& random_;
};

}  // namespace

const Construction& ConstructionFor(int order) {
  const auto* const found =
      std::find_if(kConstructions.begin(), kConstructions.end(),
                   [&](const auto* one) { return one->WhyNone(order).empty(); });
  if (found == kConstructions.end()) throw RuntimeError(Fault::InvalidPropertyValue);
  return **found;
}

std::vector<WalkStep> WalkOf(const Square<double>& square) {
  if (WhyNoBoardHas(square.Order())) return {};
  const PlacedNumbers placed(square);
  if (!placed.IsNormal()) return {};
  for (const Construction* const construction : kConstructions) {
    if (!construction->WhyNone(square.Order()).empty()) continue;
    if (std::vector<WalkStep> steps = construction->StepsOf(placed); !steps.empty()) return steps;
  }
  return {};
}

const Construction* FindConstruction(const std::string& term) {
  const auto* const found = std::find_if(kConstructions.begin(), kConstructions.end(),
                                         [&](const auto* one) { return one->Term == term; });
  return found == kConstructions.end() ? nullptr : *found;
}

Square<double> SquareBy(const Construction& construction, int order, Random& random) {
  ChoicesAtRandom choices(random);
  return SquareOf(construction.Build(order, choices), order);
}

Square<double> ExampleOf(const Construction& construction, int order) {
  BuildChoices firstOfAll;
  return SquareOf(construction.Build(order, firstOfAll), order);
}

Square<double> ExampleToWalk(int order) {
  return ExampleOf(ConstructionFor(order), order);
}

std::vector<WalkExample> WalkExamples() {
  std::vector<WalkExample> examples;
  for (const int order : {5, 8, 6})
    examples.push_back({Say("an example of size %1", order), ExampleToWalk(order)});
  constexpr int kLeastOrder = 5;
  for (const Construction* const construction : kConstructions) {
    int order = kLeastOrder;
    while (!construction->WhyNone(order).empty())
      ++order;
    if (&ConstructionFor(order) == construction) continue;
    std::string caption = Say(construction->Caption);
    std::erase(caption, '&');
    // Translators: %1 is a construction, such as "Two Latin Squares"
    examples.push_back({Say("%1, size %2", caption, order), ExampleOf(*construction, order)});
  }
  return examples;
}

CellTable TableOf(const Square<double>& square) {
  CellTable cells;
  ForEachCell(square.Order(), [&](int row, int column) {
    cells(row, column) = square[Place{row, column}];
  });
  return cells;
}

}  // namespace numorra
