#include "cli/build_squares.h"

#include <istream>
#include <ostream>
#include <utility>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "app/board/random.h"
#include "cli/input_file.h"
#include "cli/streams.h"
#include "cli/top_row_list.h"
#include "generate/corner_choice.h"
#include "generate/normal_square.h"
#include "generate/proposal.h"
#include "generate/top_row_square.h"
#include "generate/variable_square.h"
#include "puzzle/fresh_square.h"
#include "study/kept_relatives.h"
#include "study/relatives.h"
#include "words/say.h"

namespace numorra {
namespace {

/// A square with a remark about it.
struct Result {
  Square<double> Numbers;
  double Total = 0;
  std::string Remark;
  Rules Asked = Rules::Positive;
};

/// Builds one square after the other; each generator continues from its last square.
class SquareBuilder {
 public:
  SquareBuilder(const SquareRequest& request, Random& random)
      : request_(request), random_(random) {}

  Result Next() {
    if (request_.Top) return WithTopRow(*request_.Top);
    if (request_.Kind) return Special(*request_.Kind);
    if (request_.By) return By(*request_.By);
    if (request_.Fresh) return Fresh();
    const bool normal = !request_.Sum && !request_.LimitToNine && !request_.Corner;
    return normal ? Normal() : Variable();
  }

  Result WithTopRow(const TopRow& top) {
    const auto found = FindTopRowSquare(top, random_, stage_);
    if (!found) throw Impossible{Say("no 4x4 square has this top row")};
    return {SquareOf(found->Square, 4), found->Total, Say(RemarkOn(found->Quality))};
  }

 private:
  Result Special(const SpecialKind& kind) {
    const int order = request_.Size;
    const std::string none = kind.WhyNone(order);
    if (!none.empty()) throw Impossible{none};
    return OfNormalNumbers(kind.Build(order, random_));
  }

  Result By(const Construction& construction) {
    const std::string none = construction.WhyNone(request_.Size);
    if (!none.empty()) throw Impossible{none};
    return OfNormalNumbers(SquareBy(construction, request_.Size, random_));
  }

  Result Fresh() {
    SquareWish wish{request_.Size, {}, request_.LimitToNine};
    if (request_.Sum) wish.Total = static_cast<std::int64_t>(*request_.Sum);
    const auto square = FreshSquare(wish, random_, stage_);
    if (!square) throw Impossible{Say("no square with this total was found")};
    const auto total = static_cast<double>(square->Target);
    return {Square<double>(square->Cells), total, RemarkOnTotal(total), square->Asked};
  }

  Result Normal() {
    normal_.ForgetCount();
    return OfNormalNumbers(SquareOf(normal_.Build(request_.Size), request_.Size));
  }

  static Result OfNormalNumbers(const Square<double>& square) {
    return {square, static_cast<double>(NormalTotal(square.Order())), "", Rules::Normal};
  }

  Result Variable() {
    const int order = request_.Size;
    const double sum = request_.Sum.value_or(static_cast<double>(NormalTotal(order)));
    const VariablePlan plan =
        PlanVariableSquare(order, sum, request_.LimitToNine, request_.Corner.has_value());
    const VariableBuild build = variable_.BuildInTries(plan, request_.Corner);
    switch (build.Status) {
      case SolveStatus::Built:
        break;
      case SolveStatus::CellValueTooSmall:
        throw Impossible{Say("Cell value too small")};
      case SolveStatus::TryAgain:
        throw Impossible{
            SayCounted("Could not solve in %1 try", "Could not solve in %1 tries", kTries)};
    }
    return {SquareOf(build.Square, order), build.Total, RemarkOnDifference(plan, build)};
  }

  /// How the square differs from the request.
  std::string RemarkOnDifference(const VariablePlan& plan, const VariableBuild& build) const {
    std::string remark;
    if (request_.Corner && build.Square(1, 1) != *request_.Corner) {
      remark = WhyNotTheCorner(*request_.Corner, plan);
    }
    const std::string onTotal = RemarkOnTotal(build.Total);
    if (remark.empty() || onTotal.empty()) return remark + onTotal;
    return Say("%1; %2", remark, onTotal);
  }

  /// That the total is another than was asked for.
  std::string RemarkOnTotal(double total) const {
    return request_.Sum && total != *request_.Sum ? Say("the total is %1", Written(total)) : "";
  }

  const SquareRequest& request_;
  Random& random_;
  SilentStage stage_;
  NormalSquare normal_{random_, stage_};
  VariableSquare variable_{random_, stage_};
};

/// Writes squares as they come.
class SquareWriter {
 public:
  SquareWriter(const SquareRequest& request, const Streams& streams)
      : request_(request), streams_(streams) {}

  void Write(const Result& result, const std::string& name) {
    if (!result.Remark.empty()) {
      streams_.Err << streams_.Program
                   << (name.empty() ? result.Remark : Say("%1: %2", name, result.Remark)) << "\n";
    }
    const StoredSquare square{
        .Cells = StoredCells(result.Numbers), .Total = result.Total, .Asked = result.Asked};
    if (request_.Format == SquareFormat::Json) {
      JsonLine line = JsonLineOf(square);
      if (!name.empty()) line.Add("name", JsonString(name));
      streams_.Out << line.Text() << "\n";
    } else {
      streams_.Out << std::exchange(between_, "\n") << Of(request_.Format).Write(square, name);
    }
  }

 private:
  const SquareRequest& request_;
  const Streams& streams_;
  const char* between_ = "";
};

Result Varied(Result result, const SquareRequest& request, Random& random) {
  const auto varied =
      request.Kind ? VariedWithinKind(result.Numbers, random) : Varied(result.Numbers, random);
  if (!varied) throw Impossible{Say("all squares of this family look like this one")};
  result.Numbers = *varied;
  return result;
}

/// Builds a square for each line of the list. False if a line has no top row, or none that a square
/// has.
bool BuildFromList(const SquareRequest& request, const Streams& streams, SquareBuilder& builder) {
  InputFile file(*request.TopRows, streams.In);
  SquareWriter writer(request, streams);
  bool allBuilt = true;
  std::string line;
  for (int number = 1; streams.Out && std::getline(file.In(), line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (Trim(line.substr(0, line.find('#'))).empty()) continue;
    const auto tell = [&](const std::string& why) {
      streams.Err << streams.Program << Say("line %1: %2", number, why) << "\n";
      allBuilt = false;
    };
    const auto named = NamedTopRowIn(line);
    if (!named) {
      tell(Say("there is no date or top row at its end"));
      continue;
    }
    try {
      writer.Write(builder.WithTopRow(named->Row), named->Name);
    } catch (const Impossible& impossible) {
      tell(impossible.Why);
    }
  }
  if (streams.Out) file.CheckReadToEnd();
  return allBuilt;
}

}  // namespace

bool BuildSquares(const SquareRequest& request, const Streams& streams) {
  const auto clock = ClockFrom(request.Seed);
  ClockSeededRandom random(*clock);
  SquareBuilder builder(request, random);
  if (request.TopRows) return BuildFromList(request, streams, builder);
  SquareWriter writer(request, streams);
  for (int count = 0; count < request.Count && streams.Out; ++count) {
    Result result = builder.Next();
    writer.Write(request.Vary ? Varied(std::move(result), request, random) : result, {});
  }
  return true;
}

}  // namespace numorra
