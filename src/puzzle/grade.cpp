#include "puzzle/grade.h"

#include <algorithm>

#include "words/say.h"

namespace numorra {

const char* NameOf(Grade grade) {
  constexpr std::array kNames = {Mark("easy"), Mark("medium"), Mark("hard"), Mark("expert"),
                                 Mark("extreme")};
  return kNames[static_cast<std::size_t>(grade)];
}

std::optional<Grade> GradeNamed(const std::string& name) {
  const auto* const found = std::find_if(kGrades.begin(), kGrades.end(),
                                         [&](Grade grade) { return NameOf(grade) == name; });
  return found == kGrades.end() ? std::nullopt : std::optional(*found);
}

const char* RulesOf(Grade grade) {
  constexpr std::array kRules = {Mark("lines with a single gap"),
                                 Mark("lines with two gaps, numbers with one place left"),
                                 Mark("the smallest and largest sums of a line's gaps"),
                                 Mark("trying numbers"), Mark("a longer search")};
  return kRules[static_cast<std::size_t>(grade)];
}

}  // namespace numorra
