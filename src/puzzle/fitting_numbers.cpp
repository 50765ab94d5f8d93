#include "puzzle/fitting_numbers.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "puzzle/line_map.h"

namespace numorra {
namespace {

/// The missing numbers of a normal puzzle, ascending.
std::vector<std::int64_t> MissingNumbersOf(const Puzzle& puzzle) {
  std::vector<char> placed(static_cast<std::size_t>(puzzle.Most() + 1));
  for (const std::int64_t number : puzzle.Cells)
    placed[static_cast<std::size_t>(number)] = 1;
  std::vector<std::int64_t> missing;
  for (std::int64_t number = 1; number <= puzzle.Most(); ++number) {
    if (placed[static_cast<std::size_t>(number)] == 0) missing.push_back(number);
  }
  return missing;
}

/// The sums of the first numbers of a list: of none, of one, of two ...
template <class Iterator>
std::vector<std::int64_t> SumsOf(Iterator begin, Iterator end) {
  std::vector<std::int64_t> sums = {0};
  std::partial_sum(begin, end, std::back_inserter(sums));
  return sums;
}

/// The sum of the first `count` numbers of a list, leaving `number` out; `isEarly`: it is one of
/// them.
std::int64_t SumWithout(const std::vector<std::int64_t>& sums, std::size_t count,
                        std::int64_t number, bool isEarly) {
  return isEarly ? sums[count + 1] - number : sums[count];
}

}  // namespace

std::vector<std::int64_t> FittingNumbers(const Puzzle& puzzle, int gap, std::int64_t most) {
  const bool normal = puzzle.Asked == Rules::Normal;
  const std::int64_t highest = puzzle.Most();
  std::vector<std::int64_t> fitting;
  if (normal) {
    fitting = MissingNumbersOf(puzzle);
  } else {
    fitting.resize(static_cast<std::size_t>(std::min(highest, most)));
    std::iota(fitting.begin(), fitting.end(), 1);
  }
  const std::vector<std::int64_t> missing = normal ? fitting : std::vector<std::int64_t>();
  const auto least = SumsOf(missing.begin(), missing.end());
  const auto largest = SumsOf(missing.rbegin(), missing.rend());
  const LineMap& map = LineMap::Of(puzzle.Order(), puzzle.Kind);
  for (const int line : map.LinesOf(gap)) {
    std::int64_t rest = map.SumOf(line, puzzle.Target);
    std::int64_t others = -1;
    for (const int cell : map.CellsOf(line)) {
      rest -= puzzle.Cells[cell];
      others += puzzle.Cells[cell] == 0 ? 1 : 0;
    }
    std::erase_if(fitting, [&](std::int64_t number) {
      const std::int64_t left = rest - number;
      if (!normal) return left < others || left > others * highest;
      if (others == 1) {
        return left == number || !std::binary_search(missing.begin(), missing.end(), left);
      }
      const auto count = static_cast<std::size_t>(others);
      return left < SumWithout(least, count, number, count > 0 && number <= missing[count - 1]) ||
             left > SumWithout(largest, count, number,
                               count > 0 && number >= missing[missing.size() - count]);
    });
  }
  return fitting;
}

}  // namespace numorra
