#include "app/board/base_digits.h"
#include "study/latin.h"
#include "study/terms.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The ranks of the numbers among the different ones, from 0; `ranks` of them.
Square<int> RanksOf(const Facts& facts, int& ranks) {
  const auto& numbers = facts.Square.Numbers();
  Square<int> rank(facts.N());
  ranks = 0;
  const int* before = nullptr;
  for (const int& cell : facts.Ascending) {
    if (!before || numbers[cell] != numbers[*before]) ++ranks;
    rank[cell] = ranks - 1;
    before = &cell;
  }
  return rank;
}

std::vector<Place> PlacesIn(const Repetition& repeated, const Facts& facts) {
  return {facts.Square.PlaceOf(repeated.First), facts.Square.PlaceOf(repeated.Second)};
}

}  // namespace

std::optional<Repetition> FirstRepetition(const Square<int>& symbols) {
  const int n = symbols.Order();
  for (const Line::Direction way : {Line::Row, Line::Column}) {
    for (int k = 0; k < n; ++k) {
      const Line line{way, k};
      std::vector<int> seenAt(static_cast<std::size_t>(n), -1);
      for (int i = 0; i < n; ++i) {
        const int cell = line.Cell(i, n);
        int& seen = seenAt[static_cast<std::size_t>(symbols[cell])];
        if (seen >= 0) return Repetition{line, seen, cell};
        seen = cell;
      }
    }
  }
  return std::nullopt;
}

Judgement JudgeLatin(const Facts& facts) {
  const int n = facts.N();
  int count = 0;
  const Square<int> ranks = RanksOf(facts, count);
  if (count != n) {
    return Fails(SayCounted("it holds %1 different numbers, not %2",
                            "it holds %1 different numbers, not %2", count, n));
  }
  if (const auto repeated = FirstRepetition(ranks)) {
    return Fails(
        Say("%1 occurs twice in %2", facts.NumberIn(repeated->First), NameOf(repeated->In, n)),
        PlacesIn(*repeated, facts));
  }
  return Holds(SayCounted("each of its %1 numbers occurs once in every row and column",
                          "each of its %1 numbers occurs once in every row and column", n));
}

Judgement JudgeRegular(const Facts& facts) {
  if (Judgement normal = All(facts, {"normal"}, Holds({})); !normal) return normal;
  const auto digits = BaseDigitsOf(facts.Square.Numbers()).value();
  constexpr const char* kSameFirst = Mark("in %1, %2 and %3 have the same first digit, %4");
  constexpr const char* kSameSecond = Mark("in %1, %2 and %3 have the same second digit, %4");
  for (const auto& [same, square] :
       {std::pair(kSameFirst, &digits.High), {kSameSecond, &digits.Low}}) {
    const auto repeated = FirstRepetition(*square);
    if (!repeated) continue;
    return Fails(Say(same, NameOf(repeated->In, facts.N()), facts.NumberIn(repeated->First),
                     facts.NumberIn(repeated->Second), (*square)[repeated->First]),
                 PlacesIn(*repeated, facts));
  }
  return Holds(Say("each first and each second digit occurs once in every row and column"));
}

}  // namespace numorra
