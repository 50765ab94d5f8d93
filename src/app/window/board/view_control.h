#pragma once

#include <optional>
#include <vector>

#include <QAction>
#include <QMainWindow>

#include "app/window/board/board_place.h"

namespace numorra {

/// Controls how the board is shown: zoom, fitting, full screen. Updates the check marks of the
/// menu.
class ViewControl : public QObject {
  Q_OBJECT

 public:
  /// `beside`: the widgets that full screen hides. `state`: the line in the menu bar. `fit` and
  /// `full`: the menu's items.
  ViewControl(QMainWindow* window, BoardPlace* place, std::vector<QWidget*> beside, QWidget* state,
              QAction* fit, QAction* full);

  /// Zooms in (1), out (-1) or back to 100 % (0), on the visible board or walk; the point `fixed`,
  /// or else a visible current cell, keeps its place.
  void Zoom(int direction, std::optional<QPoint> fixed = {});

  /// How large the board is outside full screen.
  struct BoardSize {
    double Zoom;
    bool Fitting;
  };
  BoardSize OwnSize() const;
  void SetOwnSize(const BoardSize& size);

  /// Whether a widget beside the board is shown outside full screen.
  bool OwnShown(QWidget* widget) const;

  /// Switches between fitting the board, or the walk, and a fixed zoom.
  void ToggleFitting();

  /// Shows only the fitted board and the menu bar, or restores everything. What is told in full
  /// screen can be read from the back of a room: its letters grow with the screen, and bars have
  /// room of their own below the board.
  void ToggleFullScreen();
  bool FullScreen() const { return before_.has_value(); }

  /// Follows the window's state, whoever changes it: the desktop may start or end full screen too,
  /// and may still be doing so when the player asks for another state.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeAway();
  void GiveBack();
  void ShowMarks();
  void SetTextHeight(std::optional<int> pixels);

  /// Called when the window has its size again.
  Q_SLOT void ScrollBack();

  /// What full screen hid or changed.
  struct Before {
    double Zoom;
    bool Fitting;
    QPoint Scrolled;
    std::vector<QWidget*> Hidden;  ///< of the widgets beside the board
  };

  QMainWindow* window_;
  BoardPlace* place_;
  std::vector<QWidget*> beside_;
  QWidget* state_;
  QAction* fit_;
  QAction* full_;
  std::optional<Before> before_;
  QPoint scrolled_;  ///< the scroll position to restore
};

}  // namespace numorra
