#include "cli/make_puzzles.h"

#include <ostream>

#include "app/board/numbers.h"
#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "cli/write_puzzle.h"
#include "puzzle/fresh_puzzle.h"
#include "puzzle/grade.h"
#include "puzzle/making.h"

namespace numorra {
namespace {

MadePuzzle Make(const SquareRequest& request, Random& random) {
  SilentStage stage;
  SquareWish square{request.Size, {}, request.LimitToNine};
  if (request.Sum) square.Total = static_cast<std::int64_t>(*request.Sum);
  const auto made = MakeFreshPuzzle(square, {request.Wanted, request.ClueCount}, random, stage);
  if (const auto* cannot = std::get_if<CannotMake>(&made)) throw Impossible{cannot->Why};
  return std::get<MadePuzzle>(made);
}

/// Reports where a request could not be met.
void TellDifference(const SquareRequest& request, const MadePuzzle& made, std::ostream& err) {
  const auto total = static_cast<double>(made.Clues.Target);
  if (request.Sum && total != *request.Sum) {
    err << kProgramName << "the total is " << Decimal(total) << "\n";
  }
  if (made.Needed != request.Wanted) {
    err << kProgramName << "this square has no " << NameOf(request.Wanted)
        << " puzzle: this one is " << NameOf(made.Needed) << "\n";
  }
}

}  // namespace

void MakePuzzles(const SquareRequest& request, const Streams& streams) {
  const auto clock = ClockFrom(request.Seed);
  ClockSeededRandom random(*clock);
  for (int count = 0; count < request.Count && streams.Out; ++count) {
    const MadePuzzle made = Make(request, random);
    TellDifference(request, made, streams.Err);
    if (count > 0 && request.Format != SquareFormat::Json) streams.Out << "\n";
    WritePuzzle(made.Clues, &made, request.Format, streams.Out);
  }
}

}  // namespace numorra
