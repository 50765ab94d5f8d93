#pragma once

#include <QGroupBox>
#include <QStackedLayout>

#include "app/board/board.h"
#include "app/play/hints.h"
#include "app/window/board/board_bar.h"
#include "app/window/board/grid_view.h"
#include "app/window/board/walk_view.h"
#include "visual/drawing.h"

namespace numorra {

/// The frame "Solution" (`Frame1`): the board, or what stands in its place, a drawing of it or a
/// walk through a construction; below it what is said of the board.
class BoardPlace : public QGroupBox {
  Q_OBJECT

  Board& board_;
  Grid walkGrid_;

 public:
  explicit BoardPlace(Board& board);

  GridView* const View;
  Drawing* const Picture;
  WalkView* const Walk;
  BoardBar* const SearchBar;
  BoardBar* const RemarkBar;

  /// Puts the board in sight, or the drawing that covers it.
  void ShowBoard();

  /// Puts a walk in sight; the board behind it stays.
  void ShowWalk();
  bool Walking() const { return stack_->currentWidget() == Walk; }
  void EndWalk() {
    if (Walking()) ShowBoard();
  }

  /// The cells that can be zoomed: those of the walk, or of the board.
  GridView& Cells() const { return Walking() ? *Walk : *View; }

  /// What is said of the board stays until the board changes; its cells are pointed at.
  void ShowRemark(const Remark& remark);
  void ForgetRemark();

  /// Points at cells of the board that nothing is said of; a remark that the running command has
  /// made goes first.
  void PointAt(const std::vector<Place>& cells);

  /// Points at nothing any more that nothing is said of.
  void PointAtNothing();

  /// Shows how far a search is, in the place of an older remark.
  void ShowSearch(const QString& text);

  /// After a command: a remark that is older goes where the board has changed.
  void EndCommand(bool changedTheBoard);

  /// Takes away the bar in sight, as Esc does; false where there is none.
  bool DismissBar();

 Q_SIGNALS:
  /// Something else is in sight.
  void SightChanged();

 private:
  void ShowWidget(QWidget* widget);

  QStackedLayout* stack_;
  bool remarkIsNew_ = false;  ///< the running command has made it
};

}  // namespace numorra
