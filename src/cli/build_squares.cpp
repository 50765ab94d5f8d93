#include "cli/build_squares.h"

#include <ostream>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "app/board/random.h"
#include "cli/square_format.h"
#include "cli/streams.h"
#include "generate/corner_choice.h"
#include "generate/normal_square.h"
#include "generate/proposal.h"
#include "generate/top_row_square.h"
#include "generate/variable_square.h"
#include "study/relatives.h"

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

Result BuildTopRow(const TopRow& top, Random& random) {
  const auto found = FindTopRowSquare(top, random, [] {});
  if (!found) throw Impossible{"no 4x4 square has this top row"};
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
    if (build.Status == SolveStatus::CellValueTooSmall) throw Impossible{"Cell value too small"};
    std::string remark;
    if (request.Corner && build.Square(1, 1) != *request.Corner) {
      remark = WhyNotTheCorner(*request.Corner, plan);
    }
    if (request.Sum && build.Total != sum) {
      if (!remark.empty()) remark += "; ";
      remark += "the total is " + Decimal(build.Total);
    }
    return {build.Square, request.Size, build.Total, remark};
  }
  throw Impossible{"Could not solve in " + std::to_string(kTries) + " tries"};
}

/// The other way round than NumbersOf.
CellTable TableOf(int order, const std::vector<double>& numbers) {
  CellTable table;
  auto number = numbers.begin();
  ForEachCell(order, [&](int r, int c) { table(r, c) = *number++; });
  return table;
}

Result BuildSpecial(const SpecialKind& kind, int order, Random& random) {
  const std::string none = kind.WhyNone(order);
  if (!none.empty()) throw Impossible{none};
  return {TableOf(order, kind.Build(order, random)), order, MagicConstant(order), "",
          Rules::Normal};
}

Result BuildSquare(const SquareRequest& request, Random& random) {
  if (request.Top) return BuildTopRow(*request.Top, random);
  if (request.Kind) return BuildSpecial(*request.Kind, request.Size, random);
  const bool normal = !request.Sum && !request.LimitToNine && !request.Corner;
  return normal ? BuildNormal(request.Size, random) : BuildVariable(request, random);
}

}  // namespace

void BuildSquares(const SquareRequest& request, const Streams& streams) {
  const auto clock = ClockFrom(request.Seed);
  ClockSeededRandom random(*clock);
  for (int count = 0; count < request.Count && streams.Out; ++count) {
    Result result = BuildSquare(request, random);
    if (request.Vary) {
      const auto varied = Varied(result.Order, NumbersOf(result.Square, result.Order), random);
      if (!varied) throw Impossible{"all relatives of this square look like it"};
      result.Square = TableOf(result.Order, *varied);
    }
    if (!result.Remark.empty()) streams.Err << kProgramName << result.Remark << "\n";
    if (count > 0 && request.Format != SquareFormat::Json) streams.Out << "\n";
    StoredSquare square{.Order = result.Order, .Total = result.Total, .Asked = result.Asked};
    for (const double number : NumbersOf(result.Square, result.Order))
      square.Cells.emplace_back(number);
    WriteSquare(streams.Out, square, request.Format);
  }
}

}  // namespace numorra
