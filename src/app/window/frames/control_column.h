#pragma once

#include "app/ports/build_options.h"
#include "app/window/frames/column_scroller.h"
#include "app/window/frames/corners_frame.h"
#include "app/window/frames/limit_frame.h"
#include "app/window/frames/solve_frame.h"
#include "app/window/frames/square_frame.h"
#include "visual/colour_picker.h"
#include "visual/draw_frame.h"

namespace numorra {

/// The column of controls on the left: they choose squares, make them, shade them and draw them.
class ControlColumn : public ColumnScroller, public BuildOptions {
  Q_OBJECT

 public:
  /// `gap`, `inside`: pixels between frames, and around and between a frame's controls.
  ControlColumn(int gap, int inside);

  LimitFrame* const Limit;
  SolveFrame* const Solve;
  SquareFrame* const Square;
  CornersFrame* const Corners;
  ColourPicker* const Colours;
  DrawFrame* const Draw;

  /// Enables or disables the controls for squares of any numbers.
  void ShowMode(bool variable);

  bool LimitToNine() const override;
  void UncheckLimit() override;
  std::optional<double> Corner() const override;
};

}  // namespace numorra
