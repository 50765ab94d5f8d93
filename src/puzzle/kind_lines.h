#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/board/line.h"
#include "app/board/random.h"
#include "app/board/square.h"

namespace numorra {

/// Cells of a board, by their indices in reading order, that must add up to their share of the
/// total: k cells of a board of order n to k / n of it.
struct CellLine {
  std::vector<int> Cells;
  std::optional<Line> Straight = {};  ///< nothing for a single cell, a pair or a block of four
};

/// The name of a line in sentences.
std::string NameOf(const CellLine& line, int order);

/// What a board must be in addition to magic.
enum class LineKind { Magic, Associative, Pandiagonal, MostPerfect, Ultramagic };

/// The kind of a term ("associative"); null for others, such as bordered, which lines cannot
/// define.
const LineKind* FindLineKind(const std::string& term);

/// The terms of all kinds but Magic.
std::vector<std::string> LineKindTerms();

/// Why no normal square of the kind has this order; empty if one has.
std::string WhyNoneOfKind(LineKind kind, int order);

/// A normal square of the kind, for orders that have one; for Magic, orders from 5 on.
Square<double> BuiltOfKind(LineKind kind, int order, Random& random);

/// The lines that define the kind on a board of this order: the 2n + 2 magic lines first, then
/// - associative: pairs of opposite cells, and the middle cell of odd orders,
/// - pandiagonal: the broken diagonals,
/// - most-perfect: the broken diagonals, the 2 x 2 blocks (wrapped) and the pairs of cells n / 2
///   apart on a diagonal,
/// - ultramagic: those of associative and of pandiagonal boards.
std::vector<CellLine> LinesOf(LineKind kind, int order);

}  // namespace numorra
