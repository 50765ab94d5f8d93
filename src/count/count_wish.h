#pragma once

#include <string>
#include <vector>

#include "app/board/square.h"
#include "puzzle/kind_lines.h"
#include "study/terms.h"

namespace numorra {

/// Which normal squares to list or count.
struct CountWish {
  /// The order, and the numbers of the given cells; 0 is a gap.
  Square<int> Givens = {};

  LineKind Kind = LineKind::Magic;
  bool SemiMagic = false;               ///< the diagonals are free; not with another kind
  std::vector<const Term*> Terms = {};  ///< that hold, too
  bool AllImages = false;               ///< each image by itself, not one of each eight

  int Order() const { return Givens.Order(); }

  /// Whether these are all magic squares of the order.
  bool IsPlain() const { return Kind == LineKind::Magic && !SemiMagic && Terms.empty(); }
  bool HasGivens() const { return Givens != Square<int>(Order()); }

  /// Whether all the terms hold for a square.
  bool Meets(const Square<int>& square) const;
};

}  // namespace numorra
