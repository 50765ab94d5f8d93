#pragma once

#include <optional>

#include "app/board/command_context.h"
#include "app/ports/build_options.h"
#include "app/ports/build_stage.h"
#include "generate/normal_square.h"
#include "generate/patterned_square.h"
#include "generate/variable_square.h"
#include "listbox/list_boy.h"

namespace numorra {

/// What the solve commands need.
struct SolvePorts : CommandContext {
  BuildOptions& Options;
  BuildStage& Stage;
  ListBoy& List2;  ///< candidate corner values
  ListBoy& List3;  ///< a second work list, emptied with the first
};

/// The commands that build magic squares: "Auto", "Solve Again" and the two corner passes. The
/// totals of new boards are uncoloured until a check.
///
/// Builds work on squares of their own. If a refusal, a run-time error or a newer command ends a
/// command early, the board stays as it was; a corrected sum box stays corrected.
class SolveCommand {
 public:
  explicit SolveCommand(const SolvePorts& ports);

  /// Builds the square that the mode and the boxes describe. In the Variable mode, makes up to ten
  /// tries, then asks the player about ten more.
  void Auto();

  /// Builds one more square by the plan of the last "Auto" in the Variable mode, whatever the boxes
  /// contain now; does nothing if there is none.
  void Again();
  bool CanSolveAgain() const { return lastPlan_.has_value(); }

  /// Varies the shown board by one of the two corner passes.
  void VaryCornerDiagonals();
  void VaryCornerEdges();

 private:
  void BuildNormalSquare();
  bool TenTries();
  bool ReadPlan();
  SolveStatus BuildVariableSquare(int tries, bool showFailed);
  void Show(const VariableBuild& build);
  void Spread(void (*pass)(PatternedSquare&));

  SolvePorts ports_;
  NormalSquare normal_;
  VariableSquare variable_;
  std::optional<VariablePlan> lastPlan_;
  std::int32_t passCount_ = 0;  ///< patterns added by the last build and to its square since
};

}  // namespace numorra
