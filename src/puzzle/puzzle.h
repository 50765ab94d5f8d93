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

/// A board with gaps to be filled so that every row, column and main diagonal adds up to the
/// target, and every additional line of its kind to its share of it.
struct Puzzle {
  /// The largest target; all sums of a board then fit easily into 64 bits.
  static constexpr std::int64_t kMostTarget = 1'000'000'000'000'000;

  Square<std::int64_t> Cells = {};  ///< 0 is a gap
  std::int64_t Target = 0;
  Rules Asked = Rules::Normal;
  bool LimitToNine = false;  ///< no number above 9; used with the positive rules
  LineKind Kind = LineKind::Magic;

  int Order() const { return Cells.Order(); }

  /// The largest number that a cell can hold.
  std::int64_t Most() const;

  int Gaps() const;
};

/// Why a square breaks its rules, in one sentence, and the cell if there is one.
struct AgainstRules {
  std::string Why;
  std::optional<Place> Where = {};
};

/// The square as a puzzle. Its total is the target; without a total, the normal one is.
std::variant<Puzzle, AgainstRules> PuzzleOf(const StoredSquare& square, bool limitToNine = false);

/// The puzzle as a square to show or store; with `givens`, its numbers are givens.
StoredSquare StoredSquareOf(const Puzzle& puzzle, bool givens);

}  // namespace numorra
