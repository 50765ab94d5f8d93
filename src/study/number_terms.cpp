#include <algorithm>
#include <cmath>

#include "study/primes.h"
#include "study/terms.h"

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

std::string Times(std::ptrdiff_t times) {
  return times == 2 ? "twice" : std::to_string(times) + " times";
}

/// Finds the first number that occurs more than once.
Judgement NothingRepeated(const Facts& facts) {
  Judgement found = Holds("no number occurs twice");
  ForEachNumber(facts, [&](auto begin, auto end) {
    if (end - begin == 1) return false;
    found = Fails(facts.NumberIn(*begin) + " occurs " + Times(end - begin));
    std::for_each(begin, end, [&](int cell) { found.Cells.push_back(facts.Square.PlaceOf(cell)); });
    return true;
  });
  return found;
}

}  // namespace

Judgement JudgeNormal(const Facts& facts) {
  const auto& numbers = facts.Square.Numbers();
  const int count = numbers.Size();
  const std::string range = "1 to " + std::to_string(count);
  std::vector<bool> seen(static_cast<std::size_t>(count));
  for (const int cell : facts.Ascending) {
    const double number = numbers[cell];
    if (number < 1 || number > count || number != std::floor(number)) {
      return Fails(facts.NumberAndPlace(cell) + " is not one of the numbers " + range,
                   {facts.Square.PlaceOf(cell)});
    }
    seen[static_cast<std::size_t>(number) - 1] = true;
  }
  const auto missing = std::find(seen.begin(), seen.end(), false);
  if (missing == seen.end()) return Holds("each of the numbers " + range + " occurs once");
  Judgement repeated = NothingRepeated(facts);
  repeated.Why += ", " + std::to_string(missing - seen.begin() + 1) + " is missing";
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
    return Fails("the next number after " + facts.NumberIn(before) + " is " + facts.NumberIn(cell),
                 {facts.Square.PlaceOf(before), facts.Square.PlaceOf(cell)});
  }
  return Holds("its numbers are those " +
               facts.Run(units[facts.Ascending.front()], units[facts.Ascending.back()]));
}

Judgement JudgeArithmeticProgression(const Facts& facts) {
  if (!facts.Square.HasUnits()) return SumsTooLarge();
  if (Judgement distinct = NothingRepeated(facts); !distinct) return distinct;
  const auto& units = facts.Square.Units();
  const auto& cells = facts.Ascending;
  if (cells.size() == 1) return DoesNotApply("a single number has no step to a next one");
  const std::int64_t step = units[cells[1]] - units[cells[0]];
  for (std::size_t i = 2; i < cells.size(); ++i) {
    const std::int64_t found = units[cells[i]] - units[cells[i - 1]];
    if (found == step) continue;
    return Fails("the step from " + facts.NumberIn(cells[i - 1]) + " to " +
                     facts.NumberIn(cells[i]) + " is " + facts.Shown(found) + ", that from " +
                     facts.NumberIn(cells[0]) + " to " + facts.NumberIn(cells[1]) + " is " +
                     facts.Shown(step),
                 {facts.Square.PlaceOf(cells[i - 1]), facts.Square.PlaceOf(cells[i])});
  }
  return Holds("its numbers are those from " + facts.NumberIn(cells.front()) + " to " +
               facts.NumberIn(cells.back()) + " in steps of " + facts.Shown(step) +
               (step == facts.Square.One() ? ", so they are consecutive" : ""));
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
    return Fails(facts.NumberIn(cell) + " occurs more often than " + facts.Shown(-units[cell]),
                 {facts.Square.PlaceOf(cell)});
  }
  return Holds("its numbers, from " + facts.NumberIn(cells.front()) + " to " +
               facts.NumberIn(cells.back()) + ", are symmetric about 0");
}

Judgement JudgePrime(const Facts& facts) {
  for (const int cell : facts.Ascending) {
    if (IsPrime(facts.Square.Numbers()[cell])) continue;
    return Fails(facts.NumberAndPlace(cell) + " is not a prime", {facts.Square.PlaceOf(cell)});
  }
  return Holds("all its numbers are primes" +
               (JudgeMagic(facts) ? ", with the magic constant " + facts.Shown(facts.Total) : ""));
}

}  // namespace numorra
