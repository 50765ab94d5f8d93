#pragma once

#include <string>
#include <vector>

#include "app/board/random.h"
#include "app/board/square.h"

namespace numorra {

/// Cells of a board, by their indices in reading order, that add up to their share of the total: k
/// cells of a board of order n to k / n of it.
struct CellLine {
  std::string Name;  ///< as sentences have it: "row 2"
  std::vector<int> Cells;
};

/// What a board is to be besides magic.
enum class LineKind { Magic, Associative, Pandiagonal, MostPerfect, Ultramagic };

/// The kind that has the term ("associative"), or null: bordered squares are not told by lines.
const LineKind* FindLineKind(const std::string& term);

/// The terms of all kinds but Magic, separated by commas.
std::string LineKindTerms();

/// Why no normal square of the kind has the order; empty where one has.
std::string WhyNoneOfKind(LineKind kind, int order);

/// A normal square of the kind, for orders that have one, from 5 on for magic ones.
Square<double> BuiltOfKind(LineKind kind, int order, Random& random);

/// The lines that make a board of this order one of the kind: the 2n + 2 magic lines first, then
/// - associative: opposite cells in pairs, and the middle cell of odd orders,
/// - pandiagonal: the broken diagonals,
/// - most-perfect: these, the 2 x 2 blocks (wrapped) and the cells n / 2 apart in a diagonal,
/// - ultramagic: those of associative and pandiagonal boards.
std::vector<CellLine> LinesOf(LineKind kind, int order);

}  // namespace numorra
