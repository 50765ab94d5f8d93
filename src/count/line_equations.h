#pragma once

#include <cstdint>
#include <vector>

namespace numorra {

/// The sum of Factors[cell] x number in the cell, over all cells, is Sum.
struct LineEquation {
  std::vector<std::int64_t> Factors;  ///< by cell; 0 for cells that do not matter
  std::int64_t Sum = 0;
};

/// Linear equations in the cells of a square, of which some are known, others unknown. They are
/// kept reduced (Gauss and Jordan's elimination, in whole numbers): each equation has an unknown of
/// its own, which no other equation has. So a cell follows from the known ones if and only if it is
/// the only unknown of an equation.
class LineEquations {
 public:
  /// All cells are unknown at first.
  LineEquations(int cells, std::vector<LineEquation> equations);

  bool IsKnown(int cell) const { return known_[At(cell)] != 0; }

  /// Makes a cell known, and reduces the equations.
  void Know(int cell);

  /// An equation with one unknown, and this unknown; null if there is none.
  struct Next {
    const LineEquation* By = nullptr;
    int Cell = -1;
  };
  Next NextToFollow() const;

  /// The number of cells that would follow at once if `cell` was known, too.
  int FollowersOf(int cell) const;

  /// False if the equations contradict each other, whatever is in the cells.
  bool AreConsistent() const { return consistent_; }

 private:
  static std::size_t At(int index) { return static_cast<std::size_t>(index); }
  int UnknownsOf(const LineEquation& equation, int& one) const;
  void Reduce();

  std::vector<LineEquation> equations_;
  std::vector<char> known_;  ///< by cell
  bool consistent_ = true;
};

}  // namespace numorra
