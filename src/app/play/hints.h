#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/board/board.h"
#include "app/board/position.h"
#include "app/board/random.h"
#include "app/ports/work_stage.h"
#include "puzzle/deduction.h"

namespace numorra {

/// A sentence about a puzzle and the cells that it is about. A remark that takes several sentences
/// has them as steps, in order; it is the first of them itself.
struct Remark {
  std::string Text;
  std::vector<Place> Where = {};
  std::vector<Remark> Steps = {};
};

/// Gives hints for the board, each in three presses: where to look, why a number follows there,
/// step by step, then the number itself, as a move. Starts over when the board changes. First
/// points at entries that prevent any solution; if there are several solutions, or none, says so.
class Hints {
 public:
  Hints(Board& board, Random& random, WorkStage& stage)
      : board_(board), random_(random), stage_(stage) {}

  Remark Next();

 private:
  Remark Begin();

  Board& board_;
  Random& random_;
  WorkStage& stage_;
  Position position_;  ///< of the board that the hint is for
  std::optional<Deduction> next_;
  int presses_ = 0;
};

/// Which entries cannot stay, without revealing the solution: those that differ from the only
/// solution of the givens; without givens, those that alone leave no solution.
Remark CheckEntries(const Board& board, Random& random, WorkStage& stage);

}  // namespace numorra
