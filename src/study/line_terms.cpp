#include <algorithm>
#include <numeric>

#include "study/terms.h"
#include "study/wide.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Whether the line, whose sum is known, adds up to the total.
Judgement ReachesTotal(const Facts& facts, Line line, std::int64_t sum) {
  if (sum == facts.Total) return Holds({});
  return Fails(Say("%1 adds up to %2, not %3", NameOf(line, facts.N()), facts.Shown(sum),
                   facts.Shown(facts.Total)),
               PlacesOf(line, facts.N()));
}

/// Whether the first `count` of the lines add up to the total, as `holds` then says of it.
Judgement LinesReachTotal(const Facts& facts, std::size_t count, const char* holds) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  for (std::size_t line = 0; line < count; ++line) {
    Judgement reached = ReachesTotal(facts, facts.Lines[line], facts.Sums[line]);
    if (!reached) return reached;
  }
  return Holds(Say(holds, facts.Shown(facts.Total)));
}

Judgement DiagonalsReachTotal(const Facts& facts, const std::vector<Line>& diagonals) {
  for (const Line diagonal : diagonals) {
    Judgement reached = ReachesTotal(facts, diagonal, SumOf(diagonal, facts.Square));
    if (!reached) return reached;
  }
  return Holds({});
}

/// The largest number, in units, whose cube may be added 50 times in 128 bits. The squares of all
/// numbers that have units may be.
constexpr std::int64_t kMostCubed = 1'000'000'000'000;

/// Whether the `exponent`-th powers have the same sum in every line.
Judgement PowersAreMagic(const Facts& facts, int exponent) {
  const bool squares = exponent == 2;
  const auto& units = facts.Square.Units();
  for (const int cell : {facts.Ascending.front(), facts.Ascending.back()}) {
    if (squares || std::abs(units[cell]) <= kMostCubed) continue;
    return TooLarge(Say("the cubes of numbers like %1 are too large to be added exactly",
                        facts.NumberIn(cell)));
  }
  const auto sumOf = [&](Line line) {
    return SumOf<Wide>(line, facts.N(), [&](int cell) {
      const Wide number = units[cell];
      return number * number * (squares ? 1 : number);
    });
  };
  const auto shown = [&](Wide sum) {
    return Written(facts.Square.Shown(DecimalOf(sum), exponent));
  };
  const Wide first = sumOf(facts.Lines.front());
  for (const Line line : facts.Lines) {
    const Wide sum = sumOf(line);
    if (sum == first) continue;
    return Fails(Say(squares ? Mark("the squares in %1 add up to %2, those in row 1 to %3")
                             : Mark("the cubes in %1 add up to %2, those in row 1 to %3"),
                     NameOf(line, facts.N()), shown(sum), shown(first)),
                 PlacesOf(line, facts.N()));
  }
  return Holds(Say(squares ? Mark("the squares in every line add up to %1")
                           : Mark("the cubes in every line add up to %1"),
                   shown(first)));
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
  return LinesReachTotal(facts, facts.Sums.size() - 2, Mark("all rows and columns add up to %1"));
}

Judgement JudgeMagic(const Facts& facts) {
  return LinesReachTotal(facts, facts.Sums.size(),
                         Mark("all rows, columns and both main diagonals add up to %1"));
}

Judgement JudgePandiagonal(const Facts& facts) {
  if (Judgement magic = JudgeMagic(facts); !magic) return magic;
  const std::vector<Line> broken = BrokenDiagonals(facts.N());
  if (broken.empty()) return DoesNotApply(Say("a single cell has no broken diagonals"));
  if (Judgement diagonals = DiagonalsReachTotal(facts, broken); !diagonals) return diagonals;
  return Holds(SayCounted("%1 wrapped diagonal adds up to %2, such as %3",
                          "all %1 wrapped diagonals add up to %2, such as %3", 2 * facts.N(),
                          facts.Shown(facts.Total), NameOf(broken.front(), facts.N())),
               PlacesOf(broken.front(), facts.N()));
}

Judgement JudgeSemiPandiagonal(const Facts& facts) {
  if (facts.N() != 4) return DoesNotApply(Say("the term is defined only for order 4"));
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  const Line falling{Line::Falling, 2};
  const Line rising{Line::Rising, 1};
  if (Judgement diagonals = DiagonalsReachTotal(facts, {falling, rising}); !diagonals) {
    return diagonals;
  }
  // Translators: %1 and %2 are lines
  return Holds(Say("%1 and %2 add up to %3", NameOf(falling, 4), NameOf(rising, 4),
                   facts.Shown(facts.Total)),
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
    return Fails(Say("%1 and %2 both add up to %3", NameOf(a, facts.N()), NameOf(b, facts.N()),
                     facts.Shown(facts.Sums[lines[i]])),
                 std::move(cells));
  }
  return Holds(Say("the sums of its lines are all different, from %1 to %2",
                   facts.Shown(facts.Sums[lines.front()]), facts.Shown(facts.Sums[lines.back()])));
}

Judgement JudgeAntimagic(const Facts& facts) {
  if (Judgement different = JudgeHeterosquare(facts); !different) return different;
  const std::vector<std::size_t> lines = LinesBySum(facts);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::int64_t before = facts.Sums[lines[i - 1]];
    const std::int64_t sum = facts.Sums[lines[i]];
    if (sum - before == facts.Square.One()) continue;
    return Fails(Say("the next sum after %1 is %2, that of %3", facts.Shown(before),
                     facts.Shown(sum), NameOf(facts.Lines[lines[i]], facts.N())),
                 PlacesOf(facts.Lines[lines[i]], facts.N()));
  }
  const std::int64_t least = facts.Sums[lines.front()];
  const bool whole = least % facts.Square.One() == 0;
  return Holds(Say(whole ? Mark("the sums of its lines are those from %1 to %2")
                         : Mark("the sums of its lines are those from %1 to %2 in steps of 1"),
                   facts.Shown(least), facts.Shown(facts.Sums[lines.back()])));
}

}  // namespace numorra
