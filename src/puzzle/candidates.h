#pragma once

#include <cstdint>
#include <vector>

#include "puzzle/grade.h"
#include "puzzle/line_map.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// The candidates of each gap of a puzzle, narrowed down by the rules of a grade.
///
/// Under the normal rules a gap has a set of the missing numbers; under the positive rules it has a
/// range. A line whose k gaps must add up to s narrows them as follows:
/// - k = 1: the gap is s.
/// - k = 2: a number a stays only if s - a is a candidate of the other gap and, under the normal
///   rules, differs from a.
/// - any k: a is at least s minus the largest sum of the others, and at most s minus their smallest
///   sum; under the normal rules these are sums of different numbers.
///
/// All changes can be undone: Mark returns a position in the trail of changes, and UndoTo goes back
/// to it.
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

  /// The smallest candidate, the largest, and their count.
  std::int64_t Low(int cell) const { return low_[At(cell)]; }
  std::int64_t High(int cell) const { return high_[At(cell)]; }
  std::int64_t Count(int cell) const { return count_[At(cell)]; }
  bool Allows(int cell, std::int64_t number) const;

  /// The sum that a line still needs in its gaps, and these gaps.
  std::int64_t Rest(int line) const { return rest_[At(line)]; }
  std::vector<int> GapsOf(int line) const;

  /// Each returns false if a gap has no candidates left; its changes remain until they are undone.
  bool Put(int cell, std::int64_t number);
  bool Remove(int cell, std::int64_t number);
  bool Restrict(int cell, std::int64_t low, std::int64_t high);

  /// Applies the rules of the grade until they change nothing more. False if the numbers contradict
  /// each other; FailedLine is then the line that showed it, or -1.
  bool Propagate(Grade grade);
  int FailedLine() const { return failedLine_; }

  /// Applies one rule of a grade, medium or hard, where it changes something: a line with two gaps,
  /// a gap or a number with one possibility left; or the bounds of a line. False if there is none,
  /// or if it shows that the numbers contradict each other.
  bool ApplyOnce(Grade grade);

  /// The same as Propagate, but narrows the candidates only and fills no gap.
  bool Narrow(Grade grade);

  /// Under the normal rules, finds a number that only one gap can hold; Cell is -1 if there is
  /// none. False if a missing number fits no gap.
  struct Single {
    int Cell = -1;
    std::int64_t Number = 0;
  };
  bool FindSinglePlace(Single& found) const;

  std::size_t Mark() const { return trail_.size(); }
  void UndoTo(std::size_t mark);

 private:
  /// The previous state of a cell: one word of its set, and whether the change filled it.
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
  std::size_t words_ = 0;  ///< 64-bit words per set; 0 under the positive rules
  int gaps_;
  std::vector<std::int64_t> values_, low_, high_, count_;  ///< by cell
  std::vector<std::uint64_t> bits_;                        ///< by cell: number v is bit v
  std::vector<std::int64_t> rest_;                         ///< by line
  std::vector<int> open_;                                  ///< by line: number of gaps
  std::vector<char> touched_;                              ///< by line
  std::vector<int> waiting_;                               ///< the queue of touched lines
  std::vector<Change> trail_;
  bool impossible_ = false;  ///< the puzzle as given contradicts itself
  int failedLine_ = -1;

  // Buffers of the rules, kept to avoid allocations.
  std::vector<std::pair<std::int64_t, int>> ordered_;
  std::vector<std::int64_t> bounds_;
  mutable std::vector<std::uint64_t> once_, twice_;
};

/// The smallest sum of numbers of which the i-th is at least low[i]; with `different`, all of them
/// differ. The largest sums follow from the negatives.
std::int64_t LeastSum(std::vector<std::int64_t> low, bool different);

}  // namespace numorra
