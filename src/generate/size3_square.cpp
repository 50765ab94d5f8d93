#include "generate/size3_square.h"

#include <algorithm>
#include <utility>

#include "app/board/numbers.h"

namespace numorra {

std::optional<Size3Offsets> PickSize3Offsets(int base, Random& random) {
  constexpr int kMaxDraws = 100;
  const int limit = base - 1;
  const auto draw = [&] {
    random.Reseed();
    const int number = static_cast<int>(Int(limit * random.Next()));
    return std::max(1, std::min(number, limit));
  };
  for (int count = 0; count < kMaxDraws; ++count) {
    int p = draw();
    int r = draw();
    if (p + r >= base) continue;
    random.Reseed();
    if (Int(random.Next() * 10) + 1 < 5) std::swap(p, r);
    return Size3Offsets{p, -(p + r), r};
  }
  return std::nullopt;
}

bool BuildSize3Square(TurningSquare& square, int base, Random& random) {
  const auto offsets = PickSize3Offsets(base, random);
  if (!offsets) return false;
  const auto [p, q, r] = *offsets;
  const int pattern[3][3] = {{p, q, r}, {r - p, 0, p - r}, {-r, -q, -p}};
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j)
      square(i + 1, j + 1) += pattern[i][j];
  }
  return true;
}

}  // namespace numorra
