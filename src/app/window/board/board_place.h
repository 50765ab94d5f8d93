#pragma once

#include <QGroupBox>
#include <QStackedLayout>

#include "app/board/board.h"
#include "app/play/hints.h"
#include "app/window/board/board_bar.h"
#include "app/window/board/cell_gestures.h"
#include "app/window/board/grid_view.h"
#include "app/window/board/missing_numbers.h"
#include "app/window/board/walk_view.h"
#include "visual/drawing.h"

namespace numorra {

/// The frame "Solution" (`Frame1`): the board, or in its place a drawing of it or a walk through a
/// construction; below it the missing numbers of a puzzle and remarks about the
/// board.
class BoardPlace : public QGroupBox {
  Q_OBJECT

  Board& board_;
  Grid walkGrid_;

 public:
  explicit BoardPlace(Board& board);

  GridView* const View;
  Drawing* const Picture;
  WalkView* const Walk;
  CellGestures* const Gestures;  ///< on the board
  MissingNumbers* const Missing;
  BoardBar* const SearchBar;
  BoardBar* const RemarkBar;
  QPushButton* const BackButton;  ///< in the remark's bar, for a remark of several steps
  QPushButton* const NextButton;

  /// Shows the board, or the drawing that covers it.
  void ShowBoard();

  /// Shows a walk; the board behind it stays.
  void ShowWalk();
  bool Walking() const { return stack_->currentWidget() == Walk; }
  void EndWalk() {
    if (Walking()) ShowBoard();
  }

  /// The cells that zoom applies to: those of the walk, or of the board.
  GridView& Cells() const { return Walking() ? *Walk : *View; }

  /// Shows a remark until the board changes, and outlines its cells; of several steps, the first.
  void ShowRemark(Remark remark);
  void ForgetRemark();

  /// Goes through the steps of the remark: 1 for the next one, -1 for the one before.
  void StepRemark(int by);

  /// Outlines cells without a remark and removes an older remark; a remark of the running command
  /// takes precedence.
  void PointAt(const std::vector<Place>& cells);

  /// Removes outlines that belong to no remark.
  void PointAtNothing();

  /// Shows the progress of a search, replacing an older remark.
  void ShowSearch(const QString& text);

  /// After a command: removes an older remark if the board has changed.
  void EndCommand(bool changedTheBoard);

  /// Keeps `height` pixels for the bars, visible or not, so that the board keeps its place; 0 for
  /// none.
  void KeepRoomForBars(int height);

  /// Removes the visible bar, as Esc does; false if there is none.
  bool DismissBar();

 Q_SIGNALS:
  /// Emitted when the place shows something else.
  void SightChanged();

 private:
  void FillRoomForBars();
  void ShowWidget(QWidget* widget);
  void ShowStep();

  QStackedLayout* stack_;
  QWidget* room_;  ///< takes the place of the bars while none is visible
  Remark remark_;
  int step_ = 0;              ///< of the remark's steps, from 0
  bool remarkIsNew_ = false;  ///< the running command made it
};

}  // namespace numorra
