#include "puzzle/only_solution.h"

#include "puzzle/rating.h"
#include "words/say.h"

namespace numorra {

std::variant<MadePuzzle, CannotMake> WithOnlySolution(const Puzzle& clues, const SearchLimit& limit,
                                                      Random& random, Yielding& yielding) {
  const SearchResult result = Solve(clues, limit, random, yielding);
  if (const auto* one = std::get_if<OneSolution>(&result)) {
    return MadePuzzle{clues, one->Solved, GradeOf(clues, yielding)};
  }
  if (const auto* open = std::get_if<NotSettled>(&result)) {
    return CannotMake{WhyOpen(*open, limit.Seconds.value_or(0))};
  }
  const bool none = std::holds_alternative<NoSolution>(result);
  return CannotMake{none ? Say("this puzzle has no solution")
                         : Say("this puzzle has several solutions")};
}

}  // namespace numorra
