#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "count/slice.h"
#include "files/formats.h"
#include "puzzle/kind_lines.h"
#include "study/terms.h"

namespace numorra {

/// A command line that lists or counts all squares of an order.
struct CountRequest {
  bool Lists = false;
  SquareFormat Format = SquareFormat::Text;

  /// Which squares. The order is 0 if it is that of the given cells.
  int Size = 0;
  LineKind Kind = LineKind::Magic;
  std::vector<const Term*> Terms = {};
  bool SemiMagic = false;
  bool AllImages = false;
  std::optional<std::string> Given = {};  ///< a file with given cells; "-" is the standard input

  std::optional<std::int64_t> Most = {};  ///< how many are listed

  /// How they are counted: a slice of the magic squares of order 5 alone; an estimate from so many
  /// seconds; or the slices in these files, added up.
  std::optional<Slice> Part = {};
  bool Estimates = false;
  std::optional<double> Seconds = {};
  bool Merges = false;
  std::vector<std::string> Files = {};

  /// The kind and the terms, separated by commas: "magic", "pandiagonal,compact".
  std::string KindNames = "magic";
};

}  // namespace numorra
