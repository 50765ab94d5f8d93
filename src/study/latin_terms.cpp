#include "app/board/base_digits.h"
#include "study/latin.h"
#include "study/terms.h"

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
    return Fails("it holds " + std::to_string(count) + " different numbers, not " +
                 std::to_string(n));
  }
  if (const auto repeated = FirstRepetition(ranks)) {
    return Fails(facts.NumberIn(repeated->First) + " occurs twice in " + NameOf(repeated->In, n),
                 PlacesIn(*repeated, facts));
  }
  return Holds("each of its " + std::to_string(n) + " numbers occurs once in every row and column");
}

Judgement JudgeRegular(const Facts& facts) {
  if (Judgement normal = All(facts, {"normal"}, Holds({})); !normal) return normal;
  const auto digits = BaseDigitsOf(facts.Square.Numbers()).value();
  for (const auto& [name, square] : {std::pair("first", &digits.High), {"second", &digits.Low}}) {
    const auto repeated = FirstRepetition(*square);
    if (!repeated) continue;
    return Fails("in " + NameOf(repeated->In, facts.N()) + ", " + facts.NumberIn(repeated->First) +
                     " and " + facts.NumberIn(repeated->Second) + " have the same " + name +
                     " digit, " + std::to_string((*square)[repeated->First]),
                 PlacesIn(*repeated, facts));
  }
  return Holds("each first and each second digit occurs once in every row and column");
}

}  // namespace numorra
