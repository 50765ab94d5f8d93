#pragma once

#include <string>
#include <vector>

#include "app/ports/build_stage.h"
#include "cli/arguments.h"
#include "cli/streams.h"
#include "puzzle/making.h"

namespace numorra {

/// Writes the puzzles of a run in the format asked for: each as soon as it is there, or all on one
/// page.
class PuzzleWriter {
 public:
  PuzzleWriter(const SquareRequest& request, const Streams& streams)
      : request_(request), streams_(streams) {}

  /// `solved`: null if its solution is not known.
  void Write(const Puzzle& clues, const MadePuzzle* solved);

  /// Writes what could not be written before all puzzles were there.
  void Finish();

 private:
  const SquareRequest& request_;
  const Streams& streams_;
  SilentStage stage_;
  bool any_ = false;
  std::vector<std::string> page_;  ///< the puzzles of a page
};

}  // namespace numorra
