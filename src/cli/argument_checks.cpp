#include "cli/argument_checks.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "app/board/numbers.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr const char* kOnePicture = Mark("a picture has room for one square, not several");

bool IsBroken(const std::optional<double>& sum) {
  return sum && *sum != std::floor(*sum);
}

/// Squares are built from 16-bit shares of the sum; the limit lowers any larger sum.
std::string WhyTooLarge(const SquareRequest& request) {
  const double bound = (std::numeric_limits<std::int16_t>::max() + 1.0) * request.Size;
  if (!request.Sum || request.LimitToNine || *request.Sum < bound) return {};
  return Say("the sum for size %1 must be below %2", request.Size, Written(bound));
}

/// The number of puzzles wished for.
int PuzzlesIn(const SquareRequest& request) {
  int all = 0;
  for (const GradeShare& share : request.Grades)
    all += share.Count;
  return std::max(all, request.Count);
}

std::string WhyNoPuzzle(const SquareRequest& request, const OptionsGiven& given) {
  if (request.Title && request.Format != SquareFormat::Html) {
    return Say("a title needs the format html");
  }
  if (request.Format == SquareFormat::Svg && PuzzlesIn(request) > 1) return Say(kOnePicture);
  if (request.Steps && request.Format != SquareFormat::Json) {
    return Say("steps are written in the format json only");
  }
  if (request.Codes) {
    return given.Wishes
               ? Say("a list of codes can be combined with a format, a title and steps only")
               : "";
  }
  if (request.Size == 0) return Say("the size is missing");
  if (IsBroken(request.Sum)) return Say("the sum of a puzzle must be a whole number");
  if (!request.Grades.empty() && (given.Grade || given.Count)) {
    return Say("several grades cannot be combined with a grade or count");
  }
  return WhyTooLarge(request);
}

std::string WhyNoAnswer(const SquareRequest& request) {
  if (request.LimitToNine && request.RulesWanted == Rules::Normal) {
    return Say("the limit to 9 needs the positive rules");
  }
  return Of(request.Format).ForAnswers ? "" : Say("the format must be %1", FormatNames(true));
}

std::string WhyNoFreshSquare(const SquareRequest& request) {
  if (request.Top || request.TopRows)
    return Say("a fresh square cannot be combined with a top row");
  if (request.Corner) return Say("a fresh square cannot be combined with a corner");
  return IsBroken(request.Sum) ? Say("the sum of a fresh square must be a whole number") : "";
}

/// A relative of a square has its lines in another order.
std::string WhyNotVaried(const SquareRequest& request) {
  if (request.Top || request.TopRows) return Say("a varied square does not keep its top row");
  return request.Corner ? Say("a varied square does not keep its corner") : "";
}

std::string WhyNoSquare(const SquareRequest& request) {
  if (request.Format == SquareFormat::Svg && request.Count > 1) {
    return Say(kOnePicture);
  }
  const bool variable = request.Sum || request.LimitToNine || request.Corner;
  if (request.Top || request.TopRows) {
    if (request.Size != 0 || variable || request.Kind) {
      return Say("a top row cannot be combined with a size, sum, limit, corner or kind");
    }
  } else if (request.Size == 0) {
    return Say("the size is missing");
  } else if (std::string why = WhyTooLarge(request); !why.empty()) {
    return why;
  }
  if (request.Kind && variable) return Say("a kind cannot be combined with a sum, limit or corner");
  if (request.By && (request.Top || request.TopRows || request.Kind || request.Fresh || variable)) {
    return Say(
        "a construction cannot be combined with a top row, kind, fresh, sum, limit or corner");
  }
  if (request.Fresh) {
    if (std::string why = WhyNoFreshSquare(request); !why.empty()) return why;
  }
  if (request.Corner && request.LimitToNine)
    return Say("the limit cannot be combined with a corner");
  return request.Vary ? WhyNotVaried(request) : "";
}

}  // namespace

std::string WhyNotTogether(const SquareRequest& request, const OptionsGiven& given) {
  switch (request.Command) {
    case SquareCommand::Puzzle:
      return WhyNoPuzzle(request, given);
    case SquareCommand::Build:
      return WhyNoSquare(request);
    default:
      break;
  }
  return WhyNoAnswer(request);
}

}  // namespace numorra
