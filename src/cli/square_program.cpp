#include "cli/square_program.h"

#include <new>
#include <ostream>

#include "app/board/runtime_error.h"
#include "cli/arguments.h"
#include "cli/build_squares.h"
#include "cli/complete_squares.h"
#include "cli/count_squares.h"
#include "cli/list_squares.h"
#include "cli/make_puzzles.h"
#include "cli/puzzle_writer.h"
#include "cli/study_squares.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kBadArguments = 2;
constexpr int kNoSolution = 3;
constexpr int kNotSettled = 4;
constexpr int kNoMemory = 5;
constexpr int kFellShort = 6;

int StatusOf(Completion completion) {
  switch (completion) {
    case Completion::Completed:
      return kDone;
    case Completion::Unreadable:
      return kFailed;
    case Completion::Impossible:
      return kNoSolution;
    case Completion::Unsettled:
      break;
  }
  return kNotSettled;
}

int WritePuzzles(const SquareRequest& request, const Streams& streams) {
  PuzzleWriter writer(request, streams);
  const bool all = VisitPuzzles(
      request, streams,
      [&](const Puzzle& clues, const MadePuzzle* solved) { writer.Write(clues, solved); });
  writer.Finish();
  return all ? kDone : request.Codes ? kFailed : kFellShort;
}

int Run(const SquareRequest& request, const Streams& streams) {
  switch (request.Command) {
    case SquareCommand::Study:
      return StudySquares(request, streams) ? kDone : kFailed;
    case SquareCommand::Complete:
      return StatusOf(CompleteSquares(request, streams));
    case SquareCommand::Puzzle:
      return WritePuzzles(request, streams);
    default:
      break;
  }
  return BuildSquares(request, streams) ? kDone : kFailed;
}

int Serve(const Arguments& arguments, const Streams& streams) {
  if (const auto* bad = std::get_if<BadArguments>(&arguments)) {
    streams.Err << streams.Program << bad->Message << "\n";
    return kBadArguments;
  }
  if (const auto* request = std::get_if<SquareRequest>(&arguments)) return Run(*request, streams);
  if (const auto* completions = std::get_if<CompletionsRequest>(&arguments)) {
    streams.Out << CompletionsFor(completions->Shell);
    return kDone;
  }
  if (const auto* counting = std::get_if<CountRequest>(&arguments)) {
    counting->Lists ? ListSquares(*counting, streams) : CountSquares(*counting, streams);
    return kDone;
  }
  const bool help = std::holds_alternative<HelpRequest>(arguments);
  streams.Out << (help ? Usage() : "numorra-square " NUMORRA_VERSION "\n");
  return kDone;
}

}  // namespace

int RunSquareProgram(const std::vector<std::string>& words, const Streams& streams) {
  try {
    const int status = Serve(ParseArguments(words), streams);
    if (streams.Out.flush()) return status;
    streams.Err << streams.Program << Say("the output cannot be written") << "\n";
  } catch (const Impossible& impossible) {
    streams.Err << streams.Program << impossible.Why << "\n";
  } catch (const RuntimeError& error) {
    streams.Err << streams.Program << error.what() << "\n";
  } catch (const std::bad_alloc&) {
    streams.Err << streams.Program << Say("there is not enough memory for this") << "\n";
    return kNoMemory;
  }
  return kFailed;
}

}  // namespace numorra
