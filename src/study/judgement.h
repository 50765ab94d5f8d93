#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/board/place.h"

namespace numorra {

enum class Answer : std::uint8_t { Holds, Fails, DoesNotApply, TooLarge };

/// Whether a term holds for a square, and what shows it: one sentence in the reader's language,
/// without a capital or a full stop, and the cells that it is about.
struct Judgement {
  Answer Says = Answer::Holds;
  std::string Why = {};
  std::vector<Place> Cells = {};

  explicit operator bool() const { return Says == Answer::Holds; }
};

inline Judgement Holds(std::string why, std::vector<Place> cells = {}) {
  return {Answer::Holds, std::move(why), std::move(cells)};
}
inline Judgement Fails(std::string why, std::vector<Place> cells = {}) {
  return {Answer::Fails, std::move(why), std::move(cells)};
}
inline Judgement DoesNotApply(std::string why) {
  return {Answer::DoesNotApply, std::move(why)};
}
inline Judgement TooLarge(std::string why) {
  return {Answer::TooLarge, std::move(why)};
}

}  // namespace numorra
