#include <algorithm>
#include <numeric>

#include "study/terms.h"
#include "study/wide.h"

namespace numorra {
namespace {

/// Whether the first `count` of the lines add up to the total.
Judgement LinesReachTotal(const Facts& facts, std::size_t count, const std::string& which) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  for (std::size_t line = 0; line < count; ++line) {
    if (facts.Sums[line] == facts.Total) continue;
    return Fails(NameOf(facts.Lines[line], facts.N()) + " adds up to " +
                     facts.Shown(facts.Sums[line]) + ", not " + facts.Shown(facts.Total),
                 PlacesOf(facts.Lines[line], facts.N()));
  }
  return Holds(which + " add up to " + facts.Shown(facts.Total));
}

Judgement DiagonalsReachTotal(const Facts& facts, const std::vector<Line>& diagonals) {
  for (const Line diagonal : diagonals) {
    const std::int64_t sum = SumOf(diagonal, facts.Square);
    if (sum == facts.Total) continue;
    return Fails(NameOf(diagonal, facts.N()) + " adds up to " + facts.Shown(sum) + ", not " +
                     facts.Shown(facts.Total),
                 PlacesOf(diagonal, facts.N()));
  }
  return Holds({});
}

/// The largest number, in units, whose cube may be added 50 times in 128 bits. The squares of all
/// numbers that have units may be.
constexpr std::int64_t kMostCubed = 1'000'000'000'000;

/// Whether the `exponent`-th powers have the same sum in every line.
Judgement PowersAreMagic(const Facts& facts, int exponent) {
  const std::string powers = exponent == 2 ? "squares" : "cubes";
  const auto& units = facts.Square.Units();
  for (const int cell : {facts.Ascending.front(), facts.Ascending.back()}) {
    if (exponent == 2 || std::abs(units[cell]) <= kMostCubed) continue;
    return TooLarge("the " + powers + " of numbers like " + facts.NumberIn(cell) +
                    " are too large to be added exactly");
  }
  const auto sumOf = [&](Line line) {
    return SumOf<Wide>(line, facts.N(), [&](int cell) {
      const Wide number = units[cell];
      return number * number * (exponent == 2 ? 1 : number);
    });
  };
  const auto shown = [&](Wide sum) { return facts.Square.Shown(DecimalOf(sum), exponent); };
  const Wide first = sumOf(facts.Lines.front());
  for (const Line line : facts.Lines) {
    const Wide sum = sumOf(line);
    if (sum == first) continue;
    return Fails("the " + powers + " in " + NameOf(line, facts.N()) + " add up to " + shown(sum) +
                     ", those in row 1 to " + shown(first),
                 PlacesOf(line, facts.N()));
  }
  return Holds("the " + powers + " in every line add up to " + shown(first));
}

/// The lines from the smallest sum to the largest.
std::vector<std::size_t> LinesBySum(const Facts& facts) {
  std::vector<std::size_t> lines(facts.Sums.size());
  std::iota(lines.begin(), lines.end(), std::size_t{0});
  std::stable_sort(lines.begin(), lines.end(),
                   [&](std::size_t a, std::size_t b) { return facts.Sums[a] < facts.Sums[b]; });
  return lines;
}

}  // namespace

Judgement JudgeSemiMagic(const Facts& facts) {
  return LinesReachTotal(facts, facts.Sums.size() - 2, "all rows and columns");
}

Judgement JudgeMagic(const Facts& facts) {
  return LinesReachTotal(facts, facts.Sums.size(), "all rows, columns and both main diagonals");
}

Judgement JudgePandiagonal(const Facts& facts) {
  if (Judgement magic = JudgeMagic(facts); !magic) return magic;
  const std::vector<Line> broken = BrokenDiagonals(facts.N());
  if (broken.empty()) return DoesNotApply("a single cell has no broken diagonals");
  if (Judgement diagonals = DiagonalsReachTotal(facts, broken); !diagonals) return diagonals;
  return Holds("all " + std::to_string(2 * facts.N()) + " wrapped diagonals add up to " +
                   facts.Shown(facts.Total) + ", such as " + NameOf(broken.front(), facts.N()),
               PlacesOf(broken.front(), facts.N()));
}

Judgement JudgeSemiPandiagonal(const Facts& facts) {
  if (facts.N() != 4) return DoesNotApply("the term is defined only for order 4");
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  const Line falling{Line::Falling, 2};
  const Line rising{Line::Rising, 1};
  if (Judgement diagonals = DiagonalsReachTotal(facts, {falling, rising}); !diagonals) {
    return diagonals;
  }
  return Holds(
      NameOf(falling, 4) + " and " + NameOf(rising, 4) + " add up to " + facts.Shown(facts.Total),
      PlacesOf(falling, facts.N()));
}

Judgement JudgeBimagic(const Facts& facts) {
  if (Judgement magic = All(facts, {"magic"}, Holds({})); !magic) return magic;
  return PowersAreMagic(facts, 2);
}

Judgement JudgeTrimagic(const Facts& facts) {
  if (Judgement bimagic = All(facts, {"bimagic"}, Holds({})); !bimagic) return bimagic;
  return PowersAreMagic(facts, 3);
}

Judgement JudgeHeterosquare(const Facts& facts) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  const std::vector<std::size_t> lines = LinesBySum(facts);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const Line a = facts.Lines[lines[i - 1]];
    const Line b = facts.Lines[lines[i]];
    if (facts.Sums[lines[i - 1]] != facts.Sums[lines[i]]) continue;
    std::vector<Place> cells = PlacesOf(a, facts.N());
    const std::vector<Place> others = PlacesOf(b, facts.N());
    cells.insert(cells.end(), others.begin(), others.end());
    return Fails(NameOf(a, facts.N()) + " and " + NameOf(b, facts.N()) + " both add up to " +
                     facts.Shown(facts.Sums[lines[i]]),
                 std::move(cells));
  }
  return Holds("the sums of its lines are all different, from " +
               facts.Shown(facts.Sums[lines.front()]) + " to " +
               facts.Shown(facts.Sums[lines.back()]));
}

Judgement JudgeAntimagic(const Facts& facts) {
  if (Judgement different = JudgeHeterosquare(facts); !different) return different;
  const std::vector<std::size_t> lines = LinesBySum(facts);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::int64_t before = facts.Sums[lines[i - 1]];
    const std::int64_t sum = facts.Sums[lines[i]];
    if (sum - before == facts.Square.One()) continue;
    return Fails("the next sum after " + facts.Shown(before) + " is " + facts.Shown(sum) +
                     ", that of " + NameOf(facts.Lines[lines[i]], facts.N()),
                 PlacesOf(facts.Lines[lines[i]], facts.N()));
  }
  return Holds("the sums of its lines are those " +
               facts.Run(facts.Sums[lines.front()], facts.Sums[lines.back()]));
}

}  // namespace numorra
