#pragma once

#include <QRegion>

#include "app/play/walk.h"
#include "app/window/board/grid_view.h"

namespace numorra {

/// Shows a walk in the board's place, as large as it can be, with an arrow from where a step came.
/// A step repaints what it changes.
class WalkView : public GridView {
  Q_OBJECT

 public:
  /// `grid`: the walk's own.
  explicit WalkView(Grid& grid, QWidget* parent = nullptr);

  void Begin(int order, std::vector<WalkStep> steps);
  void GoTo(int step);
  const Walk& TheWalk() const { return walk_; }

  /// Makes another cell current, within the board.
  void MoveTo(int row, int column);
  Place Current() const { return {grid_.CurrentRow(), grid_.CurrentColumn()}; }

 Q_SIGNALS:
  /// Another step, or another walk, is shown.
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
