#include "cli/build_squares.h"

#include <ostream>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "app/board/random.h"
#include "cli/streams.h"
#include "generate/corner_choice.h"
#include "generate/normal_square.h"
#include "generate/proposal.h"
#include "generate/top_row_square.h"
#include "generate/variable_square.h"
#include "puzzle/fresh_square.h"
#include "study/kept_relatives.h"
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

/// The other way round than NumbersOf.
CellTable TableOf(int order, const std::vector<double>& numbers) {
  CellTable table;
  auto number = numbers.begin();
  ForEachCell(order, [&](int r, int c) { table(r, c) = *number++; });
  return table;
}

/// Builds one square after the other; each generator goes on from what it built last.
class SquareBuilder {
 public:
  SquareBuilder(const SquareRequest& request, Random& random)
      : request_(request), random_(random) {}

  Result Next() {
    if (request_.Top) return WithTopRow(*request_.Top);
    if (request_.Kind) return Special(*request_.Kind);
    if (request_.Fresh) return Fresh();
    const bool normal = !request_.Sum && !request_.LimitToNine && !request_.Corner;
    return normal ? Normal() : Variable();
  }

 private:
  Result WithTopRow(const TopRow& top) {
    const auto found = FindTopRowSquare(top, random_, [] {});
    if (!found) throw Impossible{"no 4x4 square has this top row"};
    return {found->Square, 4, found->Total, RemarkOn(found->Quality)};
  }

  Result Special(const SpecialKind& kind) {
    const int order = request_.Size;
    const std::string none = kind.WhyNone(order);
    if (!none.empty()) throw Impossible{none};
    return {TableOf(order, kind.Build(order, random_)), order, MagicConstant(order), "",
            Rules::Normal};
  }

  Result Fresh() {
    SquareWish wish{request_.Size, {}, request_.LimitToNine};
    if (request_.Sum) wish.Total = static_cast<std::int64_t>(*request_.Sum);
    const auto square = FreshSquare(wish, random_, stage_);
    if (!square) throw Impossible{"no square with this total was found"};
    const auto total = static_cast<double>(square->Target);
    const std::vector<double> numbers(square->Cells.begin(), square->Cells.end());
    return {TableOf(square->Order, numbers), square->Order, total, RemarkOnTotal(total),
            square->Asked};
  }

  Result Normal() {
    const int order = request_.Size;
    normal_.ForgetCount();
    return {normal_.Build(order), order, MagicConstant(order), "", Rules::Normal};
  }

  Result Variable() {
    const double sum = request_.Sum.value_or(MagicConstant(request_.Size));
    const VariablePlan plan =
        PlanVariableSquare(request_.Size, sum, request_.LimitToNine, request_.Corner.has_value());
    for (int tries = 1; tries <= kTries; ++tries) {
      const VariableBuild build = variable_.Build(plan, request_.Corner, tries);
      if (build.Status == SolveStatus::TryAgain) continue;
      if (build.Status == SolveStatus::CellValueTooSmall) throw Impossible{"Cell value too small"};
      return {build.Square, request_.Size, build.Total, RemarkOnDifference(plan, build)};
    }
    throw Impossible{"Could not solve in " + std::to_string(kTries) + " tries"};
  }

  /// What the square has another than was asked for.
  std::string RemarkOnDifference(const VariablePlan& plan, const VariableBuild& build) const {
    std::string remark;
    if (request_.Corner && build.Square(1, 1) != *request_.Corner) {
      remark = WhyNotTheCorner(*request_.Corner, plan);
    }
    const std::string onTotal = RemarkOnTotal(build.Total);
    return remark + (remark.empty() || onTotal.empty() ? "" : "; ") + onTotal;
  }

  /// That the total is another than was asked for.
  std::string RemarkOnTotal(double total) const {
    return request_.Sum && total != *request_.Sum ? "the total is " + Decimal(total) : "";
  }

  const SquareRequest& request_;
  Random& random_;
  SilentStage stage_;
  NormalSquare normal_{random_, stage_};
  VariableSquare variable_{random_, stage_};
};

}  // namespace

void BuildSquares(const SquareRequest& request, const Streams& streams) {
  const auto clock = ClockFrom(request.Seed);
  ClockSeededRandom random(*clock);
  SquareBuilder builder(request, random);
  for (int count = 0; count < request.Count && streams.Out; ++count) {
    Result result = builder.Next();
    if (request.Vary) {
      const std::vector<double> numbers = NumbersOf(result.Square, result.Order);
      const auto varied = request.Kind ? VariedWithinKind(result.Order, numbers, random)
                                       : Varied(result.Order, numbers, random);
      if (!varied) throw Impossible{"all relatives of this square look like it"};
      result.Square = TableOf(result.Order, *varied);
    }
    if (!result.Remark.empty()) streams.Err << kProgramName << result.Remark << "\n";
    if (count > 0 && request.Format != SquareFormat::Json) streams.Out << "\n";
    StoredSquare square{.Order = result.Order, .Total = result.Total, .Asked = result.Asked};
    for (const double number : NumbersOf(result.Square, result.Order))
      square.Cells.emplace_back(number);
    streams.Out << Of(request.Format).Write(square);
  }
}

}  // namespace numorra
