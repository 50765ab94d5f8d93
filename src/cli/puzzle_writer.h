#pragma once

#include "app/ports/build_stage.h"
#include "cli/arguments.h"
#include "cli/streams.h"
#include "puzzle/making.h"

namespace numorra {

/// Writes the puzzles of a run in the format asked for, each as soon as it is there.
class PuzzleWriter {
 public:
  PuzzleWriter(const SquareRequest& request, const Streams& streams)
      : request_(request), streams_(streams) {}

  /// `solved`: null if its solution is not known.
  void Write(const Puzzle& clues, const MadePuzzle* solved);

  bool WroteAny() const { return any_; }

 private:
  const SquareRequest& request_;
  const Streams& streams_;
  SilentStage stage_;
  bool any_ = false;
};

}  // namespace numorra
