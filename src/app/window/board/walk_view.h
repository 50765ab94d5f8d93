#pragma once

#include <QRegion>

#include "app/play/walk.h"
#include "app/window/board/grid_view.h"

namespace numorra {

/// Shows a walk in the board's place, as large as possible, with an arrow that shows where a step
/// came from. A step repaints only what it changes.
class WalkView : public GridView {
  Q_OBJECT

 public:
  /// `grid`: the walk's own grid.
  explicit WalkView(Grid& grid, QWidget* parent = nullptr);

  void Begin(int order, std::vector<WalkStep> steps);
  void GoTo(int step);
  const Walk& TheWalk() const { return walk_; }

  /// Moves the current cell, within the board.
  void MoveTo(int row, int column);
  Place Current() const { return {grid_.CurrentRow(), grid_.CurrentColumn()}; }

 Q_SIGNALS:
  /// Shows another step, or another walk.
  void StepShown();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Grid::Cell> Snapshot() const;
  QRegion Pointed() const;

  Grid& grid_;
  Walk walk_;
};

}  // namespace numorra
