#pragma once

#include <vector>

#include <QString>

#include "puzzle/making.h"

namespace numorra {

/// "Missing: 1  2  5" by the normal rules; empty by others.
QString Missing(const Puzzle& puzzle);

/// "each missing number once" or "whole numbers of 1 or more".
QString Numbers(const MadePuzzle& made);

/// Whether the puzzles have different rules; then each names its own.
bool AreMixed(const std::vector<MadePuzzle>& puzzles);

/// The sentence at the top of a page.
QString RulesText(const std::vector<MadePuzzle>& puzzles);

}  // namespace numorra
