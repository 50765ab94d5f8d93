#pragma once

#include <cstdint>
#include <vector>

#include "puzzle/line_map.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// What solving takes: each grade has the rules of those before it, too.
enum class Grade : std::uint8_t {
  Easy,    ///< a line with a single gap
  Medium,  ///< a line with two gaps; a cell or a number with one possibility left
  Hard,    ///< the bounds of each line
  Expert   ///< trying: no rule more than hard
};

/// What may still stand in each gap of a puzzle, narrowed down by the rules of a grade.
///
/// By the normal rules a gap has a set of numbers, of those still missing; by the positive ones a
/// range. A line with the rest s for its k gaps narrows them so:
/// - k = 1: the gap is s.
/// - k = 2: a number a stays only where s - a may stand in the other gap, and is another number by
///   the normal rules.
/// - any k: a is at least s less the most that the others can be, and at most s less their least;
///   by the normal rules most and least are those of different numbers.
///
/// Everything can be taken back: Mark says where one is, UndoTo goes back there.
class Candidates {
 public:
  explicit Candidates(const Puzzle& puzzle);

  int Order() const { return order_; }
  bool IsNormal() const { return words_ > 0; }
  int Cells() const { return static_cast<int>(values_.size()); }
  const LineMap& Map() const { return map_; }

  /// The number in a cell; 0 for a gap.
  std::int64_t Value(int cell) const { return values_[At(cell)]; }
  int Gaps() const { return gaps_; }
  bool Solved() const { return gaps_ == 0; }

  /// The smallest and the largest number that may stand there, and how many may.
  std::int64_t Low(int cell) const { return low_[At(cell)]; }
  std::int64_t High(int cell) const { return high_[At(cell)]; }
  std::int64_t Count(int cell) const { return count_[At(cell)]; }
  bool Allows(int cell, std::int64_t number) const;

  /// What a line still needs for its gaps, and these.
  std::int64_t Rest(int line) const { return rest_[At(line)]; }
  std::vector<int> GapsOf(int line) const;

  /// Each returns false when nothing is left for a gap; what was concluded before stays until it is
  /// undone.
  bool Put(int cell, std::int64_t number);
  bool Remove(int cell, std::int64_t number);
  bool Restrict(int cell, std::int64_t low, std::int64_t high);

  /// Applies the grade's rules until none has anything to say. False when the numbers contradict
  /// each other; FailedLine is then the line that showed it, or -1.
  bool Propagate(Grade grade);
  int FailedLine() const { return failedLine_; }

  /// The same, but stops before a number is put: the gaps are narrowed down only.
  bool Narrow(Grade grade);

  /// By the normal rules a number that only one gap may hold; Where is -1 without one. False when a
  /// missing number has no place.
  struct Single {
    int Cell = -1;
    std::int64_t Number = 0;
  };
  bool FindSinglePlace(Single& found) const;

  std::size_t Mark() const { return trail_.size(); }
  void UndoTo(std::size_t mark);

 private:
  /// A cell as it was: one word of its set, and whether it was a gap that was filled then.
  struct Change {
    int Cell;
    bool Placed;
    std::uint32_t Word;
    std::uint64_t Bits;
    std::int64_t Low, High, Count;
  };

  static std::size_t At(int index) { return static_cast<std::size_t>(index); }
  std::uint64_t* Bits(int cell) { return &bits_[At(cell) * words_]; }
  const std::uint64_t* Bits(int cell) const { return &bits_[At(cell) * words_]; }

  void Take(int cell, std::int64_t number);
  void StartSets();
  void Save(int cell, bool placed, std::size_t word = 0);
  void KeepBits(int cell, std::int64_t low, std::int64_t high);
  bool Narrowed(int cell);
  void Touch(int line);
  bool ApplyWaiting(Grade grade, bool put);
  bool Apply(int line, Grade grade, bool put);
  bool ApplyPair(int line, int a, int b);
  bool ApplyBounds(int line);
  bool PutSingles(bool& changed);

  int order_;
  std::int64_t most_;
  const LineMap& map_;
  std::size_t words_ = 0;  ///< of 64 bits a set; none by the positive rules
  int gaps_;
  std::vector<std::int64_t> values_, low_, high_, count_;  ///< by cell
  std::vector<std::uint64_t> bits_;                        ///< by cell: number v is bit v
  std::vector<std::int64_t> rest_;                         ///< by line
  std::vector<int> open_;                                  ///< by line: how many gaps
  std::vector<char> touched_;                              ///< by line
  std::vector<int> waiting_;                               ///< lines that were touched
  std::vector<Change> trail_;
  bool impossible_ = false;  ///< the puzzle contradicts itself as it stands
  int failedLine_ = -1;

  // Room for what the rules work with, kept from one to the next.
  std::vector<std::pair<std::int64_t, int>> ordered_;
  std::vector<std::int64_t> bounds_;
  mutable std::vector<std::uint64_t> once_, twice_;
};

/// The least that numbers add up to, of which the i-th is at least low[i]; with `different`, no two
/// of them equal. The most that such sums can be are those of the negatives.
std::int64_t LeastSum(std::vector<std::int64_t> low, bool different);

}  // namespace numorra
