#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "app/ports/yielding.h"

namespace numorra {

/// The order whose magic squares are cut into slices.
inline constexpr int kSlicedOrder = 5;

/// A numbered part of the squares of order 5: slice I of M, with I from 1 to M. Its diagonal sets
/// are every M-th one, from the I-th on, so that slices take about the same time.
struct Slice {
  static constexpr int kMost = 1'000'000;

  int Number = 1;
  int Of = 1;

  bool operator==(const Slice&) const = default;
};

/// "17/512"
std::string NameOf(const Slice& slice);

/// The slice of this name; nothing if there is none.
std::optional<Slice> SliceNamed(const std::string& name);

/// What a slice was counted to. The checksum is that of every diagonal set with its count (64-bit
/// FNV-1a over centre, set and count, each as eight bytes, lowest first). So a slice counted twice
/// gives the same line, and a machine that miscounts is found out.
struct SliceCount {
  Slice Part;
  std::int64_t Count = 0;
  std::uint64_t Checksum = 0;

  bool operator==(const SliceCount&) const = default;
};

/// Counts a slice. Yields after every diagonal set.
SliceCount CountSlice(const Slice& slice, Yielding& yielding);

/// "order 5 magic slice 17/512 count 537713 checksum 00c5a0dd1e4ffe01", and the same as an object:
/// {"order": 5, "kind": "magic", "slice": "17/512", "count": 537713, "checksum":
/// "00c5a0dd1e4ffe01"}
std::string TextOf(const SliceCount& slice);
std::string JsonOf(const SliceCount& slice);

/// A line as TextOf or JsonOf writes it, or why it is not, in a sentence.
std::variant<SliceCount, std::string> ReadSliceLine(const std::string& line);

/// Adds up slices to the whole, or says why this is not possible: if one is missing, if they are
/// parts of different cuts, or if two counts of a slice differ. Equal counts of one are no fault.
std::variant<std::int64_t, std::string> Merge(std::vector<SliceCount> slices);

}  // namespace numorra
