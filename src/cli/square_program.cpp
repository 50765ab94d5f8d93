#include "cli/square_program.h"

#include <ostream>

#include "app/board/runtime_error.h"
#include "cli/arguments.h"
#include "cli/build_squares.h"
#include "cli/complete_squares.h"
#include "cli/make_puzzles.h"
#include "cli/study_squares.h"

namespace numorra {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kBadArguments = 2;
constexpr int kNoSolution = 3;
constexpr int kNotSettled = 4;

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

int Run(const SquareRequest& request, const Streams& streams) {
  switch (request.Command) {
    case SquareCommand::Study:
      return StudySquares(request, streams) ? kDone : kFailed;
    case SquareCommand::Complete:
      return StatusOf(CompleteSquares(request, streams));
    case SquareCommand::Puzzle:
      MakePuzzles(request, streams);
      return kDone;
    case SquareCommand::Build:
      break;
  }
  BuildSquares(request, streams);
  return kDone;
}

}  // namespace

int RunSquareProgram(const std::vector<std::string>& words, const Streams& streams) {
  const Arguments arguments = ParseArguments(words);
  if (const auto* bad = std::get_if<BadArguments>(&arguments)) {
    streams.Err << kProgramName << bad->Message << "\n";
    return kBadArguments;
  }
  int status = kDone;
  try {
    if (std::holds_alternative<HelpRequest>(arguments)) {
      streams.Out << kUsage;
    } else if (std::holds_alternative<VersionRequest>(arguments)) {
      streams.Out << "numorra-square " NUMORRA_VERSION "\n";
    } else {
      status = Run(std::get<SquareRequest>(arguments), streams);
    }
  } catch (const Impossible& impossible) {
    streams.Err << kProgramName << impossible.Why << "\n";
    return kFailed;
  } catch (const RuntimeError& error) {
    streams.Err << kProgramName << error.what() << "\n";
    return kFailed;
  }
  if (!streams.Out.flush()) {
    streams.Err << kProgramName << "the output cannot be written\n";
    return kFailed;
  }
  return status;
}

}  // namespace numorra
