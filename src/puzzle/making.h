#pragma once

#include <optional>
#include <string>
#include <variant>

#include "app/board/random.h"
#include "app/ports/yielding.h"
#include "puzzle/candidates.h"

namespace numorra {

/// What a puzzle is to be like.
struct PuzzleWish {
  Grade Wanted = Grade::Easy;
  std::optional<int> ClueCount = {};  ///< how many numbers are given; as few as can be without
  bool Symmetric = false;             ///< gaps in opposite cells, or in none of them
};

/// A puzzle with one solution, and the hardest rules that it needs.
struct MadePuzzle {
  Puzzle Clues;
  Puzzle Solution;
  Grade Needed = Grade::Easy;
};

/// A full square that puzzles can be made from; without one, why there is none.
struct PuzzleSource {
  std::optional<Puzzle> Square = {};
  std::string WhyNot = {};
};

/// Why a puzzle cannot be as it is wished for, in one sentence.
struct CannotMake {
  std::string Why;
};

/// Nodes that are searched for each clue of an expert puzzle that might be spared.
inline constexpr std::int64_t kExpertNodes = 200;

/// Makes a puzzle from a full square. Numbers are taken away, in an order by lot, as long as the
/// rules of the grade alone still solve the board, which proves that it has one solution; for
/// expert puzzles a search bounded in nodes takes over where the rules end. Then no clue can be
/// spared. Where more clues are wanted, numbers come back, such first as leave the grade as it is.
///
/// The grade of what was made is the hardest rule that it needs: several orders are tried for one
/// of the grade that is wanted, and the hardest found is taken where the square gives none.
std::variant<MadePuzzle, CannotMake> MakePuzzle(const Puzzle& square, const PuzzleWish& wish,
                                                Random& random, Yielding& yielding);

/// The easiest grade whose rules solve the puzzle; expert where none does.
Grade GradeOf(const Puzzle& puzzle);

}  // namespace numorra
