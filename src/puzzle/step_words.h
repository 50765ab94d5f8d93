#pragma once

#include <string>
#include <vector>

#include "app/board/place.h"
#include "puzzle/line_map.h"
#include "puzzle/step.h"

namespace numorra {

/// What a step says: one sentence, without a capital or a full stop.
std::string SentenceOf(const Step& step, const LineMap& map);

/// The cells that a step is about: those of its line, or its gap.
std::vector<Place> PlacesOf(const Step& step, const LineMap& map);

/// Where a deduction has its number, without giving it away: the line if it is the last gap of one,
/// or else the cell.
std::string WhereToLook(const Deduction& deduction, const LineMap& map);
std::vector<Place> PlacesToLook(const Deduction& deduction, const LineMap& map);

}  // namespace numorra
