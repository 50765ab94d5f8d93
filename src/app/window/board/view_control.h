#pragma once

#include <optional>
#include <vector>

#include <QAction>
#include <QMainWindow>

#include "app/window/board/board_place.h"

namespace numorra {

/// How large the board is shown: zoom, fitting, full screen. It keeps the check marks of the menu.
class ViewControl : public QObject {
  Q_OBJECT

 public:
  /// `beside`: what full screen takes away. `fit` and `full`: the menu's items.
  ViewControl(QMainWindow* window, BoardPlace* place, std::vector<QWidget*> beside, QAction* fit,
              QAction* full);

  /// A step larger (1) or smaller (-1), or back to 100 % (0), for the board or the walk that is in
  /// sight; what is drawn at `fixed` stays there, or else the current cell where it is in sight.
  void Zoom(int direction, std::optional<QPoint> fixed = {});

  /// Draws the board, or the walk, as large as its place, or as it is.
  void ToggleFitting();

  /// The board and the menu bar alone, fitted; leaving brings back what there was.
  void ToggleFullScreen();
  bool FullScreen() const { return before_.has_value(); }

  /// Follows the window's state, whoever changes it: the desktop may begin or end the full screen
  /// too, and may still be at it when the player wants another state.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeAway();
  void GiveBack();
  void ShowMarks();

  /// When the window has its size again.
  Q_SLOT void ScrollBack();

  /// What full screen took away.
  struct Before {
    double Zoom;
    bool Fitting;
    QPoint Scrolled;
    std::vector<QWidget*> Hidden;  ///< of what stands beside the board
  };

  QMainWindow* window_;
  BoardPlace* place_;
  std::vector<QWidget*> beside_;
  QAction* fit_;
  QAction* full_;
  std::optional<Before> before_;
  QPoint scrolled_;  ///< where the view is to be again
};

}  // namespace numorra
