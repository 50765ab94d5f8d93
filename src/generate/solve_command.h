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

/// What the solve commands work on and speak with.
struct SolvePorts : CommandContext {
  BuildOptions& Options;
  BuildStage& Stage;
  ListBoy& List2;  ///< candidate corner values
  ListBoy& List3;  ///< a second work list, emptied with the first
};

/// The commands that build magic squares: "Auto", "Solve Again" and the two corner passes. New
/// boards are shown with their totals uncoloured until a check.
///
/// Builds work on squares of their own. Whatever ends a command early (a refusal, a run-time error,
/// a newer command) leaves the board as it was; a sum box that was corrected stays corrected.
class SolveCommand {
 public:
  explicit SolveCommand(const SolvePorts& ports);

  /// Builds what the mode and the boxes ask for. In the Variable mode up to ten builds are tried,
  /// then the player is asked about ten more.
  void Auto();

  /// One more square after the plan of the last "Auto" in the Variable mode, whatever the boxes say
  /// now; does nothing before there is one.
  void Again();
  bool CanSolveAgain() const { return lastPlan_.has_value(); }

  /// Varies the board on the screen by one of the two corner passes.
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
  std::int32_t passCount_ = 0;  ///< patterns added by the last build, and to its square since
};

}  // namespace numorra
