#include <algorithm>
#include <cmath>

#include "study/primes.h"
#include "study/terms.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Calls visit(begin, end) for each run of equal numbers, in ascending order, until it returns
/// true.
template <class Visit>
void ForEachNumber(const Facts& facts, Visit visit) {
  const auto& numbers = facts.Square.Numbers();
  for (auto cell = facts.Ascending.begin(); cell != facts.Ascending.end();) {
    const auto next = std::find_if(cell, facts.Ascending.end(),
                                   [&](int other) { return numbers[other] != numbers[*cell]; });
    if (visit(cell, next)) return;
    cell = next;
  }
}

/// Finds the first number that occurs more than once.
Judgement NothingRepeated(const Facts& facts) {
  Judgement found = Holds(Say("no number occurs twice"));
  ForEachNumber(facts, [&](auto begin, auto end) {
    if (end - begin == 1) return false;
    const std::string number = facts.NumberIn(*begin);
    found = Fails(end - begin == 2
                      ? Say("%1 occurs twice", number)
                      : SayCounted("%2 occurs %1 time", "%2 occurs %1 times", end - begin, number));
    std::for_each(begin, end, [&](int cell) { found.Cells.push_back(facts.Square.PlaceOf(cell)); });
    return true;
  });
  return found;
}

}  // namespace

Judgement JudgeNormal(const Facts& facts) {
  const auto& numbers = facts.Square.Numbers();
  const int count = numbers.Size();
  std::vector<bool> seen(static_cast<std::size_t>(count));
  for (const int cell : facts.Ascending) {
    const double number = numbers[cell];
    if (number < 1 || number > count || number != std::floor(number)) {
      return Fails(Say("%1 is not one of the numbers 1 to %2", facts.NumberAndPlace(cell), count),
                   {facts.Square.PlaceOf(cell)});
    }
    seen[static_cast<std::size_t>(number) - 1] = true;
  }
  const auto missing = std::find(seen.begin(), seen.end(), false);
  if (missing == seen.end()) {
    return Holds(Say("each of the numbers 1 to %1 occurs once", count));
  }
  Judgement repeated = NothingRepeated(facts);
  // Translators: %1 says that a number is repeated: "5 occurs twice, 6 is missing"
  repeated.Why = Say("%1, %2 is missing", repeated.Why, missing - seen.begin() + 1);
  return repeated;
}

Judgement JudgeDistinct(const Facts& facts) {
  return NothingRepeated(facts);
}

Judgement JudgeConsecutive(const Facts& facts) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  if (Judgement distinct = NothingRepeated(facts); !distinct) return distinct;
  const auto& units = facts.Square.Units();
  for (std::size_t i = 1; i < facts.Ascending.size(); ++i) {
    const int before = facts.Ascending[i - 1];
    const int cell = facts.Ascending[i];
    if (units[cell] - units[before] == facts.Square.One()) continue;
    return Fails(
        Say("the next number after %1 is %2", facts.NumberIn(before), facts.NumberIn(cell)),
        {facts.Square.PlaceOf(before), facts.Square.PlaceOf(cell)});
  }
  const std::int64_t least = units[facts.Ascending.front()];
  const bool whole = least % facts.Square.One() == 0;
  return Holds(Say(whole ? Mark("its numbers are those from %1 to %2")
                         : Mark("its numbers are those from %1 to %2 in steps of 1"),
                   facts.Shown(least), facts.Shown(units[facts.Ascending.back()])));
}

Judgement JudgeArithmeticProgression(const Facts& facts) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  if (Judgement distinct = NothingRepeated(facts); !distinct) return distinct;
  const auto& units = facts.Square.Units();
  const auto& cells = facts.Ascending;
  if (cells.size() == 1) return DoesNotApply(Say("a single number has no step to a next one"));
  const std::int64_t step = units[cells[1]] - units[cells[0]];
  for (std::size_t i = 2; i < cells.size(); ++i) {
    const std::int64_t found = units[cells[i]] - units[cells[i - 1]];
    if (found == step) continue;
    return Fails(Say("the step from %1 to %2 is %3, that from %4 to %5 is %6",
                     facts.NumberIn(cells[i - 1]), facts.NumberIn(cells[i]), facts.Shown(found),
                     facts.NumberIn(cells[0]), facts.NumberIn(cells[1]), facts.Shown(step)),
                 {facts.Square.PlaceOf(cells[i - 1]), facts.Square.PlaceOf(cells[i])});
  }
  return Holds(
      Say(step == facts.Square.One()
              ? Mark("its numbers are those from %1 to %2 in steps of %3, so they are consecutive")
              : Mark("its numbers are those from %1 to %2 in steps of %3"),
          facts.NumberIn(cells.front()), facts.NumberIn(cells.back()), facts.Shown(step)));
}

/// Compares the smallest with the largest, and so on inwards. At the first two that do not add up
/// to 0, all numbers left are too close to 0 for the negative of the one that is farther from it.
Judgement JudgeZeroCentred(const Facts& facts) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  const auto& units = facts.Square.Units();
  const auto& cells = facts.Ascending;
  for (std::size_t rank = 0; rank < cells.size(); ++rank) {
    const int low = cells[rank];
    const int high = cells[cells.size() - 1 - rank];
    if (units[low] + units[high] == 0) continue;
    const int cell = units[low] + units[high] > 0 ? high : low;
    return Fails(
        Say("%1 occurs more often than %2", facts.NumberIn(cell), facts.Shown(-units[cell])),
        {facts.Square.PlaceOf(cell)});
  }
  return Holds(Say("its numbers, from %1 to %2, are symmetric about 0",
                   facts.NumberIn(cells.front()), facts.NumberIn(cells.back())));
}

Judgement JudgePrime(const Facts& facts) {
  for (const int cell : facts.Ascending) {
    if (IsPrime(facts.Square.Numbers()[cell])) continue;
    return Fails(Say("%1 is not a prime", facts.NumberAndPlace(cell)),
                 {facts.Square.PlaceOf(cell)});
  }
  if (!JudgeMagic(facts)) return Holds(Say("all its numbers are primes"));
  return Holds(
      Say("all its numbers are primes, with the magic constant %1", facts.Shown(facts.Total)));
}

}  // namespace numorra
