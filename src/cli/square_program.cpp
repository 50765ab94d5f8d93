#include "cli/square_program.h"

#include <ostream>

#include "app/board/numbers.h"
#include "app/board/random.h"
#include "app/board/runtime_error.h"
#include "cli/arguments.h"
#include "cli/square_format.h"
#include "generate/corner_choice.h"
#include "generate/normal_square.h"
#include "generate/proposal.h"
#include "generate/top_row_square.h"
#include "generate/variable_square.h"

namespace numorra {
namespace {

/// A square and what is to be said about it.
struct Result {
  CellTable Square;
  int Order = 0;
  double Total = 0;
  std::string Remark;
  Rules Asked = Rules::Positive;
};

/// A request that no square can meet.
struct Unsolvable {
  std::string Why;
};

Result BuildTopRow(const TopRow& top, Random& random) {
  const auto found = FindTopRowSquare(top, random, [] {});
  if (!found) throw Unsolvable{"no 4x4 square has this top row"};
  return {found->Square, 4, found->Total, RemarkOn(found->Quality)};
}

Result BuildNormal(int order, Random& random) {
  SilentStage stage;
  return {NormalSquare(random, stage).Build(order), order, MagicConstant(order), "", Rules::Normal};
}

Result BuildVariable(const SquareRequest& request, Random& random) {
  SilentStage stage;
  VariableSquare generator(random, stage);
  const double sum = request.Sum.value_or(static_cast<int>(MagicConstant(request.Size)));
  const VariablePlan plan =
      PlanVariableSquare(request.Size, sum, request.LimitToNine, request.Corner.has_value());
  for (int tries = 1; tries <= kTries; ++tries) {
    const VariableBuild build = generator.Build(plan, request.Corner, tries);
    if (build.Status == SolveStatus::TryAgain) continue;
    if (build.Status == SolveStatus::CellValueTooSmall) throw Unsolvable{"Cell value too small"};
    std::string remark;
    if (request.Corner && build.Square(1, 1) != *request.Corner) {
      remark = CornerOutOfReach(*request.Corner);
    }
    if (request.Sum && build.Total != sum) {
      if (!remark.empty()) remark += "; ";
      remark += "the total is " + Decimal(build.Total);
    }
    return {build.Square, request.Size, build.Total, remark};
  }
  throw Unsolvable{"Could not solve in " + std::to_string(kTries) + " tries"};
}

Result BuildSquare(const SquareRequest& request) {
  SystemClock timeOfDay;
  TickingClock seeded(request.Seed.value_or(0));
  Clock& clock = request.Seed ? static_cast<Clock&>(seeded) : timeOfDay;
  ClockSeededRandom random(clock);
  if (request.Top) return BuildTopRow(*request.Top, random);
  const bool normal = !request.Sum && !request.LimitToNine && !request.Corner;
  return normal ? BuildNormal(request.Size, random) : BuildVariable(request, random);
}

}  // namespace

int RunSquareProgram(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments = ParseArguments(words);
  if (const auto* bad = std::get_if<BadArguments>(&arguments)) {
    err << "numorra-square: " << bad->Message << "\n";
    return 2;
  }
  try {
    if (std::holds_alternative<HelpRequest>(arguments)) {
      out << kUsage;
    } else if (std::holds_alternative<VersionRequest>(arguments)) {
      out << "numorra-square " NUMORRA_VERSION "\n";
    } else {
      const auto& request = std::get<SquareRequest>(arguments);
      const Result result = BuildSquare(request);
      if (!result.Remark.empty()) err << "numorra-square: " << result.Remark << "\n";
      WriteSquare(out, result.Square, result.Order, result.Total, result.Asked, request.Format);
    }
  } catch (const Unsolvable& unsolvable) {
    err << "numorra-square: " << unsolvable.Why << "\n";
    return 1;
  } catch (const RuntimeError& error) {
    err << "numorra-square: " << error.what() << "\n";
    return 1;
  }
  if (!out.flush()) {
    err << "numorra-square: the output cannot be written\n";
    return 1;
  }
  return 0;
}

}  // namespace numorra
