#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "app/board/random.h"
#include "app/ports/yielding.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// What a search has found out about the solutions of a puzzle, each with its gaps filled. That
/// nothing was found in time is a type of its own, and is no "no".
struct OneSolution {
  Puzzle Solved;
};
struct SeveralSolutions {
  Puzzle First;
  Puzzle Second;  ///< another one
};
struct NoSolution {
  std::string Why = {};  ///< where the order alone rules it out
};
struct NotSettled {
  std::optional<Puzzle> Found = {};  ///< a solution, of which it is open whether it is the only one
};
using SearchResult = std::variant<OneSolution, SeveralSolutions, NoSolution, NotSettled>;

/// What is open after a search of so many seconds, and why: a sentence without its stop.
std::string WhyOpen(const NotSettled& open, double seconds);

/// When a search gives up. Its seconds are those in which it worked, without the yields. Counted in
/// nodes, it does the same again from the same random numbers; with g gaps left by the rules,
/// g * g / 10 + 1 steps of the local search count as a node.
struct SearchLimit {
  std::optional<double> Seconds = {};
  std::optional<std::int64_t> Nodes = {};
};

/// Fills the gaps of a puzzle in all ways, up to two.
///
/// The rules come first (Candidates). Then a complete search, for a fifth of the limit in one
/// piece, then in restarts after numbers of nodes that follow Luby's sequence (Luby, Sinclair and
/// Zuckerman 1993). Where it comes to its end by itself, it has seen all solutions. By the normal
/// rules a local search takes turns with it: after a head start of the complete one, which settles
/// most small boards, the same number of nodes is due to both. Two different solutions prove that
/// there are several, whichever search has found them.
///
/// It yields at every node, and as often during the local search; what a yield throws ends the
/// search.
SearchResult Solve(const Puzzle& puzzle, const SearchLimit& limit, Random& random,
                   Yielding& yielding);

/// How many solutions a puzzle has, counted up to `most` by the complete search alone; nothing when
/// the limit came first.
std::optional<std::int64_t> CountSolutions(const Puzzle& puzzle, std::int64_t most,
                                           const SearchLimit& limit, Yielding& yielding);

}  // namespace numorra
