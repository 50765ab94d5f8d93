#pragma once

#include <string>
#include <vector>

#include "generate/construction_steps.h"
#include "words/say.h"

namespace numorra {

/// The steps of a smaller square as part of a larger one: the phrase `within` has a place for each
/// sentence, and cellsOf(place) names the cells that stand for a place, one or more.
template <class CellsOf>
std::vector<WalkStep> MovedSteps(const std::vector<WalkStep>& steps, const char* within,
                                 CellsOf cellsOf) {
  std::vector<WalkStep> moved;
  for (const WalkStep& step : steps) {
    WalkStep& to =
        moved.emplace_back(WalkStep{{}, {}, {}, Say(within, step.Sentence), step.Number});
    for (const auto& [place, text] : step.Written) {
      for (const Place cell : cellsOf(place))
        to.Written.emplace_back(cell, text);
    }
    for (const Place place : step.Marked) {
      for (const Place cell : cellsOf(place))
        to.Marked.push_back(cell);
    }
    if (step.Arrow) {
      to.Arrow = {cellsOf(step.Arrow->first).front(), cellsOf(step.Arrow->second).front()};
    }
  }
  return moved;
}

}  // namespace numorra
