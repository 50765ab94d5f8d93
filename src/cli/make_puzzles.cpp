#include "cli/make_puzzles.h"

#include <ostream>

#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "puzzle/puzzle_set.h"

namespace numorra {

bool MakePuzzles(const SquareRequest& request, const Streams& streams, const PuzzleVisitor& visit) {
  const auto clock = ClockFrom(request.Seed);
  ClockSeededRandom random(*clock);
  SilentStage stage;
  SquareWish square{request.Size, {}, request.LimitToNine};
  if (request.Sum) square.Total = static_cast<std::int64_t>(*request.Sum);
  PuzzleSet set({square, request.Grades, request.ClueCount, request.Symmetric}, random, stage);
  bool any = false;
  while (streams.Out) {
    const auto made = set.Next();
    if (!made) break;
    any = true;
    visit(made->Clues, &*made);
  }
  const std::string shortfall = set.Shortfall();
  if (!any && !shortfall.empty()) throw Impossible{shortfall};
  if (!shortfall.empty()) streams.Err << streams.Program << shortfall << "\n";
  return shortfall.empty();
}

bool VisitPuzzles(const SquareRequest& request, const Streams& streams,
                  const PuzzleVisitor& visit) {
  return request.Codes ? ReadCodedPuzzles(request, streams, visit)
                       : MakePuzzles(request, streams, visit);
}

}  // namespace numorra
