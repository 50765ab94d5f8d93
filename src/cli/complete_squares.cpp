#include "cli/complete_squares.h"

#include <algorithm>
#include <ostream>

#include "app/board/numbers.h"
#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "cli/read_squares.h"
#include "files/aim.h"
#include "puzzle/search.h"
#include "words/say.h"

namespace numorra {
namespace {

/// An answer in the words of the output.
struct Completed {
  const char* Answer;  ///< a phrase about solutions
  Completion Status;
  std::optional<Puzzle> First = {};
  std::optional<Puzzle> Second = {};
  std::string Why = {};
};

Completed AnswerOf(const SearchResult& result, double seconds) {
  if (const auto* one = std::get_if<OneSolution>(&result)) {
    return {MarkIn("solutions", "one"), Completion::Completed, one->Solved};
  }
  if (const auto* several = std::get_if<SeveralSolutions>(&result)) {
    return {MarkIn("solutions", "several"), Completion::Completed, several->First, several->Second};
  }
  if (const auto* open = std::get_if<NotSettled>(&result)) {
    return {MarkIn("solutions", "unsettled"),
            Completion::Unsettled,
            open->Found,
            {},
            WhyOpen(*open, seconds)};
  }
  return {MarkIn("solutions", "none"),
          Completion::Impossible,
          {},
          {},
          std::get<NoSolution>(result).Why};
}

Completed Complete(StoredSquare square, const SquareRequest& request, Random& random) {
  if (const auto aim = AimOf(square)) {
    square.Total = aim->Target;
    square.Asked = aim->Asked;
  }
  if (request.Sum && square.Total != *request.Sum) {
    square.Total = *request.Sum;
    square.Asked = Rules::Positive;
  }
  square.Asked = request.RulesWanted.value_or(square.Asked);
  auto puzzle = PuzzleOf(square, request.LimitToNine);
  if (const auto* against = std::get_if<AgainstRules>(&puzzle)) {
    return {MarkIn("solutions", "none"), Completion::Impossible, {}, {}, against->Why};
  }
  std::get<Puzzle>(puzzle).Kind = request.LinesWanted;
  SilentStage stage;
  const double seconds = request.Seconds;
  return AnswerOf(Solve(std::get<Puzzle>(puzzle), {.Seconds = seconds}, random, stage), seconds);
}

std::string RowsOf(const std::optional<Puzzle>& puzzle) {
  return puzzle ? JsonRowsOf(StoredSquareOf(*puzzle, false).Cells) : "null";
}

void Write(const Completed& completed, int order, SquareFormat format, std::ostream& out) {
  if (format == SquareFormat::Json) {
    out << JsonLine()
               .Add("answer", JsonString(completed.Answer))
               .Add("order", std::to_string(order))
               .Add("why", completed.Why.empty() ? "null" : JsonString(completed.Why))
               .Add("rows", RowsOf(completed.First))
               .Add("second", RowsOf(completed.Second))
               .Text()
        << "\n";
    return;
  }
  const std::string answer = SayIn("solutions", completed.Answer);
  out << (completed.Why.empty() ? answer : Say("%1: %2", answer, completed.Why)) << "\n";
  for (const auto& square : {completed.First, completed.Second}) {
    if (square) out << "\n" << TextOf(StoredSquareOf(*square, false));
  }
}

}  // namespace

Completion CompleteSquares(const SquareRequest& request, const Streams& streams) {
  TickingClock clock(0);
  ClockSeededRandom random(clock);
  auto worst = Completion::Completed;
  bool first = true;
  const bool allRead = ReadSquares(request.File, streams, [&](const StoredSquare& square) {
    const Completed completed = Complete(square, request, random);
    if (request.Format == SquareFormat::Text && !first) streams.Out << "\n";
    first = false;
    Write(completed, square.Order(), request.Format, streams.Out);
    streams.Out.flush();
    worst = std::max(worst, completed.Status);
  });
  return allRead ? worst : std::max(worst, Completion::Unreadable);
}

}  // namespace numorra
