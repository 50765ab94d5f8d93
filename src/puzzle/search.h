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
struct NoSolution {};
struct NotSettled {
  std::optional<Puzzle> Found = {};  ///< a solution, of which it is open whether it is the only one
  bool Searched = true;              ///< false where there were too many gaps for it
};
using SearchResult = std::variant<OneSolution, SeveralSolutions, NoSolution, NotSettled>;

/// What is open after a search of so many seconds, and why: a sentence without its stop.
std::string WhyOpen(const NotSettled& open, double seconds);

/// When a search gives up. Its seconds are those in which it worked, without the yields. Counted in
/// nodes, it does the same again from the same random numbers.
struct SearchLimit {
  std::optional<double> Seconds = {};
  std::optional<std::int64_t> Nodes = {};
};

/// Puzzles of which more gaps are open when the rules have had their say are not searched.
inline constexpr int kMostSearchedGaps = 1000;

/// Fills the gaps of a puzzle in all ways, up to two.
///
/// The rules come first (Candidates). Then a complete depth-first search, smallest choice first,
/// the rules at every node, for a tenth of the limit. Then restarts with random values, after
/// numbers of nodes that follow Luby's sequence (Luby, Sinclair and Zuckerman 1993), which first
/// try the gaps in lines that were found impossible most often (weighted degrees: Boussemart,
/// Hemery, Lecoutre and Sais 2004). A search that comes to its end by itself has seen all
/// solutions.
///
/// The yielding is yielded to at every node; what it throws ends the search.
SearchResult Solve(const Puzzle& puzzle, const SearchLimit& limit, Random& random,
                   Yielding& yielding);

/// How many solutions a puzzle has, counted up to `most` by the complete search alone; nothing when
/// the limit came first.
std::optional<std::int64_t> CountSolutions(const Puzzle& puzzle, std::int64_t most,
                                           const SearchLimit& limit, Yielding& yielding);

}  // namespace numorra
