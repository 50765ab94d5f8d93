#pragma once

#include <string>
#include <utility>
#include <vector>

#include "study/dudeney.h"
#include "study/terms.h"

namespace numorra {

/// A term and its judgement of a square.
struct Property {
  const Term* What;
  Judgement Found;
};

/// A plain fact: "smallest", "1". The name is a phrase, to be said where it is shown; the fact is
/// said.
using Detail = std::pair<std::string, std::string>;

/// All that is known about a square.
struct Report {
  Square<double> Numbers;
  std::string Total;                 ///< shared by most lines; empty if too large to say
  std::vector<Detail> Details;       ///< sum, numbers, standard form, census number, type, fame
  std::vector<Property> Properties;  ///< one for each of Terms()
  Square<double> StandardForm;
  int Census = 0;               ///< its census number of order 4; 0 for all others
  ComplementPairs Complements;  ///< of a square with a census number
};

/// Studies the square: one pass over all terms.
Report Study(NumberSquare square);

/// "holds", "fails", "does not apply", "too large to say", to be said where it is shown.
const char* WordFor(Answer answer);

/// The report as lines of text in the reader's language, and as one JSON object on one line:
/// {"order": 4, "total": 34, "properties": {"magic": true, "compact": null, ...},
///  "evidence": {"magic": "...", ...}, "rows": [[16, ...], ...],
///  "standard-form": [[1, ...], ...], "census": 175, "dudeney-type": "III",
///  "complements": "ABCD / EFGH / HGFE / DCBA"}
/// A property is null if it does not apply or is too large to say.
std::string TextOf(const Report& report);
std::string JsonOf(const Report& report);

}  // namespace numorra
