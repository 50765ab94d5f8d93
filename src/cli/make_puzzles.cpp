#include "cli/make_puzzles.h"

#include <ostream>

#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "cli/puzzle_writer.h"
#include "puzzle/puzzle_set.h"

namespace numorra {

bool MakePuzzles(const SquareRequest& request, const Streams& streams) {
  const auto clock = ClockFrom(request.Seed);
  ClockSeededRandom random(*clock);
  SilentStage stage;
  SquareWish square{request.Size, {}, request.LimitToNine};
  if (request.Sum) square.Total = static_cast<std::int64_t>(*request.Sum);
  PuzzleSet set({square, request.Grades, request.ClueCount, request.Symmetric}, random, stage);
  PuzzleWriter writer(request, streams);
  while (streams.Out) {
    const auto made = set.Next();
    if (!made) break;
    writer.Write(made->Clues, &*made);
  }
  const std::string shortfall = set.Shortfall();
  if (!writer.WroteAny() && !shortfall.empty()) throw Impossible{shortfall};
  if (!shortfall.empty()) streams.Err << kProgramName << shortfall << "\n";
  return shortfall.empty();
}

}  // namespace numorra
