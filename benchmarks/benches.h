#pragma once

#include <string>
#include <vector>

#include "puzzle/puzzle.h"
#include "results.h"

namespace numorra::bench {

inline constexpr const char* kRepaint = "full repaint of the window";
inline constexpr const char* kBoardRepaint = "repaint of the board";
inline constexpr const char* kTableRepaint = "the same cells in QTableWidget";
inline constexpr const char* kAllNormal = "normal squares 3 to 50";
inline constexpr const char* kVariable = "variable generator";
inline constexpr const char* kArithmetic = "the patterns' own arithmetic";

/// Registers, at every order, the time from the click on each command to the painted board, and the
/// repaints used as a yardstick. Returns the commands' names.
std::vector<std::string> RegisterWindowBenches();

/// Work without a window, and how many repaints of a window with a board of order 50 it may take.
struct Road {
  const char* Name;
  double Goal;
};
std::vector<Road> RegisterRoadBenches();

/// Registers work on sets of puzzles, for each of kSetSizes. Returns the names.
std::vector<std::string> RegisterSetBenches();

/// Registers the generators.
void RegisterGeneratorBenches();

/// Prints how varied the squares of the variable generator are, by order and base.
void PrintVariety();

/// Prints how many different squares are among fresh ones and those of a kind, and how long one
/// takes.
void PrintFreshVariety();

/// Prints the share of boards with gaps that are settled in time, by order and share of clues.
void PrintFilling();

/// Prints how long the magic squares of order 5 take to count, and how evenly slices share this.
void PrintCounting();

/// A normal board with 70 % of its numbers and one solution.
Puzzle UniqueBoardOfOrder8();

/// Figures of whole processes, each measured by the child process itself.
struct Probe {
  Figure Seconds;    ///< from its start to its first paint
  Figure Kilobytes;  ///< the most memory it had resident
};

/// Our window, a bare window of the toolkit, and one with a word in it: the first text of a process
/// loads the fonts.
inline constexpr const char* kProbeKinds[] = {"ours", "bare", "word", "german"};

/// Runs `program --probe KIND` repeatedly for each kind in turn.
std::map<std::string, Probe> RunProbes(const char* program, int runs);

/// The child process: opens the window and reports when it is painted.
int RunProbeChild(const std::string& kind);

/// The seconds that Octave takes for magic(3) to magic(50), medians of several runs in one process;
/// 0 if it is not installed.
Figure OctaveSeconds();

}  // namespace numorra::bench
