#include "count/line_equations.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace numorra {
namespace {

/// Divides the equation by the greatest factor that all its numbers share.
void Shorten(LineEquation& equation) {
  std::int64_t shared = equation.Sum;
  for (const std::int64_t factor : equation.Factors)
    shared = std::gcd(shared, factor);
  if (shared <= 1) return;
  equation.Sum /= shared;
  for (std::int64_t& factor : equation.Factors)
    factor /= shared;
}

/// Takes `pivot`'s unknown at `cell` out of the equation.
void Eliminate(LineEquation& equation, const LineEquation& pivot, std::size_t cell) {
  const std::int64_t shared = std::gcd(pivot.Factors[cell], equation.Factors[cell]);
  const std::int64_t times = pivot.Factors[cell] / shared;
  const std::int64_t less = equation.Factors[cell] / shared;
  for (std::size_t i = 0; i < equation.Factors.size(); ++i)
    equation.Factors[i] = times * equation.Factors[i] - less * pivot.Factors[i];
  equation.Sum = times * equation.Sum - less * pivot.Sum;
  Shorten(equation);
}

}  // namespace

LineEquations::LineEquations(int cells, std::vector<LineEquation> equations)
    : equations_(std::move(equations)), known_(At(cells)) {
  Reduce();
}

void LineEquations::Know(int cell) {
  known_[At(cell)] = 1;
  Reduce();
}

LineEquations::Next LineEquations::NextToFollow() const {
  for (const LineEquation& equation : equations_) {
    int one = -1;
    if (UnknownsOf(equation, one) == 1) return {&equation, one};
  }
  return {};
}

int LineEquations::FollowersOf(int cell) const {
  LineEquations then = *this;
  then.Know(cell);
  return static_cast<int>(std::count_if(then.equations_.begin(), then.equations_.end(),
                                        [&](const LineEquation& equation) {
                                          int one = -1;
                                          return then.UnknownsOf(equation, one) == 1;
                                        }));
}

int LineEquations::UnknownsOf(const LineEquation& equation, int& one) const {
  int unknowns = 0;
  for (std::size_t cell = 0; cell < known_.size(); ++cell) {
    if (known_[cell] != 0 || equation.Factors[cell] == 0) continue;
    ++unknowns;
    one = static_cast<int>(cell);
  }
  return unknowns;
}

void LineEquations::Reduce() {
  std::vector<LineEquation> reduced;
  while (!equations_.empty()) {
    const LineEquation pivot = std::move(equations_.back());
    equations_.pop_back();
    int own = -1;
    if (UnknownsOf(pivot, own) == 0) {
      const bool isEmpty = std::all_of(pivot.Factors.begin(), pivot.Factors.end(),
                                       [](std::int64_t factor) { return factor == 0; });
      if (isEmpty && pivot.Sum != 0) consistent_ = false;
      continue;
    }
    for (auto* const others : {&equations_, &reduced}) {
      for (LineEquation& other : *others) {
        if (other.Factors[At(own)] != 0) Eliminate(other, pivot, At(own));
      }
    }
    reduced.push_back(pivot);
  }
  equations_ = std::move(reduced);
}

}  // namespace numorra
