#pragma once

#include <bitset>
#include <memory>

#include "app/board/orders.h"
#include "app/board/square.h"

namespace numorra {

/// The largest number that can be noted.
inline constexpr int kMostNoted = kMaxOrder * kMaxOrder;

/// A set of numbers from 1 to kMostNoted, such as those noted in a gap.
using NoteSet = std::bitset<kMostNoted + 1>;

/// The numbers that the player has noted in the gaps of a board, by cell. A board without notes
/// stores nothing, and copies share their sets, so that a long history of undo stays small.
class Notes {
 public:
  bool IsEmpty() const { return sets_.IsEmpty(); }

  /// The notes of a cell, by its index.
  const NoteSet& operator[](int cell) const;

  /// Replaces the notes of a cell on a board of this order.
  void Set(int order, int cell, const NoteSet& numbers);

  /// Exchanges the notes of two cells.
  void Swap(int a, int b);

  bool operator==(const Notes& other) const;

 private:
  Square<std::shared_ptr<const NoteSet>> sets_;  ///< null for none; empty if no cell has any
};

/// The notes of a board of this order whose cells have numbersOf(index).
template <class NumbersOf>
Notes NotesOf(int order, NumbersOf numbersOf) {
  Notes notes;
  for (int cell = 0; cell < order * order; ++cell)
    notes.Set(order, cell, numbersOf(cell));
  return notes;
}

}  // namespace numorra
