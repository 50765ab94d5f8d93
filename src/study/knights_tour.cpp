#include <cstdlib>

#include "study/terms.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Whether a knight goes from one place to the other in one move.
bool IsKnightsMove(Place from, Place to) {
  return std::abs(from.Row - to.Row) * std::abs(from.Column - to.Column) == 2;
}

}  // namespace

Judgement JudgeKnightsTour(const Facts& facts) {
  if (Judgement consecutive = All(facts, {"consecutive"}, Holds({})); !consecutive) {
    return consecutive;
  }
  const auto placeOf = [&](std::size_t rank) {
    return facts.Square.PlaceOf(facts.Ascending[rank]);
  };
  for (std::size_t rank = 1; rank < facts.Ascending.size(); ++rank) {
    const Place from = placeOf(rank - 1);
    const Place to = placeOf(rank);
    if (IsKnightsMove(from, to)) continue;
    return Fails(
        Say("from %1 to %2 is not a knight's move", facts.NumberAndPlace(facts.Ascending[rank - 1]),
            facts.NumberAndPlace(facts.Ascending[rank])),
        {from, to});
  }
  const Place first = placeOf(0);
  const Place last = placeOf(facts.Ascending.size() - 1);
  return Holds(IsKnightsMove(last, first)
                   ? Say("each number is a knight's move from the one before; the tour is closed, "
                         "as the first is one from the last")
                   : Say("each number is a knight's move from the one before; the tour is open, "
                         "as the first is not one from the last"),
               {first, last});
}

}  // namespace numorra
