#include "cli/list_squares.h"

#include <ostream>

#include "app/board/orders.h"
#include "app/ports/yielding.h"
#include "cli/count_conditions.h"
#include "count/all_squares.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Shows what has been found so far, and stops the search if it cannot be written.
class FlushingYield : public Yielding {
 public:
  explicit FlushingYield(std::ostream& out) : out_(out) {}

  void Yield() override {
    if (!out_.flush()) throw Superseded();
  }

 private:
  std::ostream& out_;
};

}  // namespace

void ListSquares(const CountRequest& request, const Streams& streams) {
  const CountWish wish = CountWishOf(request, streams);
  FlushingYield yielding(streams.Out);
  std::int64_t listed = 0;
  const auto write = [&](const Square<int>& square) {
    if (listed > 0 && request.Format != SquareFormat::Json) streams.Out << "\n";
    streams.Out << Of(request.Format)
                       .Write({.Cells = StoredCells(square),
                               .Total = NormalTotal(static_cast<double>(square.Order())),
                               .Asked = Rules::Normal},
                              {});
    return ++listed != request.Most && streams.Out.good();
  };
  try {
    ForEachSquare(wish, yielding, write);
  } catch (const Superseded&) {
    return;  // the caller sees that the output has failed
  }
  if (listed == 0) throw Impossible{Say("there is no such square")};
}

}  // namespace numorra
