#pragma once

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "puzzle/fresh_puzzle.h"

namespace numorra {

/// How many puzzles of a grade a set is to hold.
struct GradeShare {
  Grade Wanted = Grade::Easy;
  int Count = 1;
};

/// What a set of puzzles is to hold.
struct PuzzleSetWish {
  SquareWish Square;
  std::vector<GradeShare> Grades;
  std::optional<int> ClueCount = {};  ///< of each puzzle; as few as possible if not set
  bool Symmetric = false;             ///< a cell is a gap if and only if its opposite is
};

/// A set of puzzles from fresh squares, made one by one, from the easiest grade to the hardest. No
/// puzzle is an image of an earlier one, turned or mirrored, unless 50 tries find no other. After
/// five puzzles in a row that cannot be made, the rest of their grade is left out.
class PuzzleSet {
 public:
  PuzzleSet(PuzzleSetWish wish, Random& random, Yielding& yielding);

  /// The number of puzzles wished for.
  int Size() const { return size_; }

  /// The next puzzle; nothing at the end of the set.
  std::optional<MadePuzzle> Next();

  /// What was wished for and not reached so far, in one sentence without its stop; empty if all
  /// was.
  std::string Shortfall() const;

 private:
  std::optional<MadePuzzle> Make(Grade wanted);
  void Note(const MadePuzzle& made, Grade wanted);

  PuzzleSetWish wish_;
  Random& random_;
  Yielding& yielding_;
  int size_ = 0;
  std::size_t share_ = 0;  ///< the grade being made
  int ofShare_ = 0;        ///< how many of it were made or left out

  /// The hashes of the puzzles so far, in standard form. Two puzzles with the same hash count as
  /// the same, which costs no more than another try.
  std::unordered_set<std::size_t> known_;
  int otherGrade_ = 0;
  int repeated_ = 0;
  int leftOut_ = 0;
  std::string whyLeftOut_;  ///< the last reason
  std::optional<std::int64_t> otherTotal_;
};

}  // namespace numorra
