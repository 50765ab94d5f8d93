#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "app/board/random.h"
#include "app/ports/yielding.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// The result of a search for the solutions of a puzzle; each solution is the puzzle with its gaps
/// filled. Not finding any in time is a type of its own, not a "no".
struct OneSolution {
  Puzzle Solved;
};
struct SeveralSolutions {
  Puzzle First;
  Puzzle Second;  ///< another one
};
struct NoSolution {
  std::string Why = {};  ///< set if the order alone rules it out
};
struct NotSettled {
  std::optional<Puzzle> Found = {};  ///< a solution; whether it is the only one is open
};
using SearchResult = std::variant<OneSolution, SeveralSolutions, NoSolution, NotSettled>;

/// What is still open after a search of `seconds` seconds: a sentence without its full stop.
std::string WhyOpen(const NotSettled& open, double seconds);

/// When a search gives up. `Seconds` counts the time worked, without yields. A search limited in
/// `Nodes` is repeatable with the same random numbers; with g gaps left by the rules,
/// 1 + g * g * g / 5000 steps of the local search count as a node.
struct SearchLimit {
  std::optional<double> Seconds = {};
  std::optional<std::int64_t> Nodes = {};
};

/// Finds up to two solutions of a puzzle.
///
/// The rules come first (Candidates). Then a complete search works in restarts, whose lengths in
/// nodes follow Luby's sequence (Luby, Sinclair and Zuckerman 1993). If a run finishes, it has
/// found all solutions. After fifteen short runs, which settle most boards with few clues, one
/// undivided run takes a tenth of the limit: it proves what the short ones could not finish. A
/// search limited in nodes starts with the undivided run. Under the normal rules the complete
/// search takes turns with a local search: after a head start of the complete search, which settles
/// most small boards, both get the same number of nodes. Two different solutions from either search
/// prove that there are several.
///
/// Yields at every node, and as often during the local search; an exception thrown by a yield ends
/// the search.
SearchResult Solve(const Puzzle& puzzle, const SearchLimit& limit, Random& random,
                   Yielding& yielding);

/// The number of solutions of a puzzle, counted up to `most` by the complete search alone; nothing
/// if it reached the limit first.
std::optional<std::int64_t> CountSolutions(const Puzzle& puzzle, std::int64_t most,
                                           const SearchLimit& limit, Yielding& yielding);

}  // namespace numorra
