#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "app/board/orders.h"
#include "app/board/place.h"
#include "files/stored_square.h"
#include "puzzle/kind_lines.h"

namespace numorra {

/// A board with gaps that are to be filled so that every row, column and main diagonal adds up to
/// the target, and every further line of its kind to its share of it.
struct Puzzle {
  /// The largest target: all sums of a board then fit into 64 bits with room to spare.
  static constexpr std::int64_t kMostTarget = 1'000'000'000'000'000;

  Square<std::int64_t> Cells = {};  ///< 0 is a gap
  std::int64_t Target = 0;
  Rules Asked = Rules::Normal;
  bool LimitToNine = false;  ///< no number above 9; for the positive rules
  LineKind Kind = LineKind::Magic;

  int Order() const { return Cells.Order(); }

  /// The largest number that may stand in it.
  std::int64_t Most() const;

  int Gaps() const;
};

/// A square that breaks its rules as it stands: one sentence, and the cell where there is one.
struct AgainstRules {
  std::string Why;
  std::optional<Place> Where = {};
};

/// The square as a puzzle. Its total is the target, the normal one where it has none.
std::variant<Puzzle, AgainstRules> PuzzleOf(const StoredSquare& square, bool limitToNine = false);

/// The puzzle with its gaps as a square to be shown or stored. `givens`: its numbers are givens.
StoredSquare StoredSquareOf(const Puzzle& puzzle, bool givens);

}  // namespace numorra
