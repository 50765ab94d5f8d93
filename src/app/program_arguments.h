#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace numorra {

/// What the command line of the window's program asks for.
struct ProgramRequest {
  enum class Kind : std::uint8_t {
    Window,
    Open,       ///< a window with the file or puzzle code `What`
    NewBoard,   ///< a window with a new board
    NewPuzzle,  ///< a window that asks which numbers of a new board to hide
    Help,
    Version,
    Wrong  ///< `What` says why, in one sentence
  };
  Kind Wanted = Kind::Window;
  std::string What = {};
};

/// Reads the words after the program's name, without those that the toolkit has taken.
ProgramRequest ParseProgramArguments(const std::vector<std::string>& words);

/// The text that --help prints.
std::string ProgramUsage();

}  // namespace numorra
