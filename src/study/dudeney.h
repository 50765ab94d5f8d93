#pragma once

#include <string>

#include "app/board/square.h"

namespace numorra {

/// Where the pairs of a normal magic square of order 4 stand whose numbers add up to 17.
struct ComplementPairs {
  /// Its type among Dudeney's twelve, such as "VI"; "IV or V" if only this is sure. A phrase, to be
  /// said where it is shown.
  std::string Type;
  std::string Pairs;  ///< row by row, a letter for each pair: "ABBA / CDDC / EFFE / GHHG"
};

/// The pairs of one of the 880 squares or of an image of it.
///
/// Dudeney (1910) found twelve patterns, images counted once. Type I is the pandiagonal one, III
/// the associative one, and VI the one of 304 squares. Patterns of equally many squares share an
/// entry if nothing else tells their numerals apart; their letters do.
ComplementPairs ComplementPairsOf(const Square<double>& square);

}  // namespace numorra
