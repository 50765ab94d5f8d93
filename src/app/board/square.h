#pragma once

#include <compare>
#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

#include "app/board/place.h"

namespace numorra {

/// A square of order x order values, in reading order. A cell is named by its index, from 0, or by
/// its place.
template <class T>
class Square {
 public:
  Square() = default;
  explicit Square(int order, const T& value = T())
      : order_(order), cells_(static_cast<std::size_t>(order * order), value) {}

  /// `cells` has order x order values.
  Square(int order, std::vector<T> cells) : order_(order), cells_(std::move(cells)) {}

  /// The same square with another type of values.
  template <class U>
  explicit Square(const Square<U>& other)
      : order_(other.Order()), cells_(other.begin(), other.end()) {}

  int Order() const { return order_; }
  int Size() const { return static_cast<int>(cells_.size()); }
  bool IsEmpty() const { return cells_.empty(); }

  decltype(auto) operator[](int cell) { return cells_[static_cast<std::size_t>(cell)]; }
  decltype(auto) operator[](int cell) const { return cells_[static_cast<std::size_t>(cell)]; }
  decltype(auto) operator[](Place place) { return cells_[IndexOf(place, order_)]; }
  decltype(auto) operator[](Place place) const { return cells_[IndexOf(place, order_)]; }

  Place PlaceOf(int cell) const { return PlaceAt(cell, order_); }

  auto begin() { return cells_.begin(); }
  auto end() { return cells_.end(); }
  auto begin() const { return cells_.begin(); }
  auto end() const { return cells_.end(); }

  // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm about a defaulted comparison
  auto operator<=>(const Square&) const = default;

 private:
  int order_ = 0;
  std::vector<T> cells_;
};

/// The square whose cells are valueOf(index).
template <class ValueOf>
auto SquareOf(int order, ValueOf valueOf) {
  Square<std::decay_t<decltype(valueOf(0))>> square(order);
  for (int cell = 0; cell < square.Size(); ++cell)
    square[cell] = valueOf(cell);
  return square;
}

}  // namespace numorra
