#pragma once

#include <limits>
#include <optional>
#include <string>
#include <variant>

#include "app/board/random.h"
#include "app/ports/yielding.h"
#include "puzzle/puzzle.h"
#include "puzzle/rating.h"

namespace numorra {

/// The requirements for a puzzle.
struct PuzzleWish {
  Grade Wanted = Grade::Easy;
  std::optional<int> ClueCount = {};  ///< number of clues; as few as possible if not set
  bool Symmetric = false;             ///< a cell is a gap if and only if its opposite is
};

/// A puzzle with exactly one solution, and the hardest rules that it needs.
struct MadePuzzle {
  Puzzle Clues;
  Puzzle Solution;
  Grade Needed = Grade::Easy;
};

/// A full square to make puzzles from; if there is none, the reason.
struct PuzzleSource {
  std::optional<Puzzle> Square = {};
  std::string WhyNot = {};
};

/// Why a puzzle cannot be made as requested, in one sentence.
struct CannotMake {
  std::string Why;
};

/// Nodes searched for each clue that might be removed from an extreme puzzle.
inline constexpr std::int64_t kExtremeNodes = 200;

/// Makes puzzles from full squares until one meets a wish.
///
/// Numbers are removed in random order as long as the rules of the grade alone still solve the
/// board, which proves that it has one solution. For expert puzzles, the hard rules come first;
/// then further numbers are removed if trials of the new gaps, together with the hard rules, find
/// them again. For extreme puzzles, a search limited in nodes proves further removals. After that
/// no clue can be spared in the same way. If more clues are wanted, numbers are returned, first
/// those that do not change the grade.
///
/// The grade of a puzzle is the hardest rule that it needs. Where the wanted grade is reached, a
/// few more orders of removing are tried if that rule is needed unusually seldom or often
/// (StepsOff).
class PuzzleMaker {
 public:
  PuzzleMaker(const PuzzleWish& wish, Random& random, Yielding& yielding)
      : wish_(wish), random_(random), yielding_(yielding) {}

  /// Tries up to `orders` orders of removing numbers. True if a puzzle meets the wish, now or
  /// before, or if none of the square's size can.
  bool Try(const Puzzle& square, int orders);

  /// The best puzzle so far: the one that meets the wish, or else the hardest; or why there is
  /// none, with what was tried.
  std::variant<MadePuzzle, CannotMake> Result() const;

 private:
  bool IsDone() const;
  void Consider(MadePuzzle made);

  PuzzleWish wish_;
  Random& random_;
  Yielding& yielding_;
  std::optional<MadePuzzle> best_;
  Rating rating_;        ///< of the best
  int moreChances_ = 5;  ///< to find one that needs its rules more usually often
  int tries_ = 0;
  int squares_ = 0;
  int fewest_ = std::numeric_limits<int>::max();  ///< clues of any puzzle of the grade
  bool passedBy_ = false;                         ///< symmetry skipped the number of clues
  std::string whyNever_;
};

/// Makes a puzzle from a given square, in up to 20 tries.
std::variant<MadePuzzle, CannotMake> MakePuzzle(const Puzzle& square, const PuzzleWish& wish,
                                                Random& random, Yielding& yielding);

}  // namespace numorra
