#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace numorra {

/// The rules that solving needs: each grade includes those of the grades before it.
enum class Grade : std::uint8_t {
  Easy,    ///< a line with a single gap
  Medium,  ///< a line with two gaps; a cell or a number with one possibility left
  Hard,    ///< the bounds of each line
  Expert,  ///< trials: numbers that the hard rules alone refute
  Extreme  ///< one solution, but these rules do not reach it
};

inline constexpr std::array kGrades = {Grade::Easy, Grade::Medium, Grade::Hard, Grade::Expert,
                                       Grade::Extreme};

/// The name of a grade, such as "easy", to be said where a person reads it; and back, nothing for
/// other words.
const char* NameOf(Grade grade);
std::optional<Grade> GradeNamed(const std::string& name);

/// The rules that a grade adds to the ones before it, in words to be said.
const char* RulesOf(Grade grade);

}  // namespace numorra
