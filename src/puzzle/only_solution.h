#pragma once

#include <variant>

#include "puzzle/making.h"
#include "puzzle/search.h"

namespace numorra {

/// The puzzle with its solution and grade, if a search finds exactly one solution. Otherwise what
/// it found, as a sentence without its stop.
std::variant<MadePuzzle, CannotMake> WithOnlySolution(const Puzzle& clues, const SearchLimit& limit,
                                                      Random& random, Yielding& yielding);

}  // namespace numorra
