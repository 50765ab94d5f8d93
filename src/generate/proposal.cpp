#include "generate/proposal.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/runtime_error.h"

namespace numorra {
namespace {

constexpr int kMaxProposals = 1000;  // more than any working random source needs

/// A whole number in low..high - 1, drawn after reseeding; `high` itself is never drawn.
double Draw(Random& random, double low, double high) {
  random.Reseed();
  return std::clamp(Int(low + (high - low) * random.Next()), low, high);
}

}  // namespace

std::string NormalTotalText(const std::string& size) {
  try {
    return Decimal(NormalTotal(Val(size)));
  } catch (const RuntimeError&) {
    return {};
  }
}

void ProposeSquare(SquareBoxes& boxes, Mode mode, Random& random) {
  const double shownSize = Val(boxes.Size());
  const double shownTotal = Val(boxes.Sum());
  double size = 0;
  double total = 0;
  for (int draw = 0; draw < kMaxProposals; ++draw) {
    size = Draw(random, 3, 15);
    total = Draw(random, size * size + 1, 2 * size * size + 1);
    if (size != shownSize || total != shownTotal) break;
  }
  boxes.SetSize(Decimal(size));
  boxes.SetSum(Decimal(mode == ModeNormal ? NormalTotal(size) : total));
}

}  // namespace numorra
