#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

#include "app/window/board/walk_view.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// The panel (`StepPanel`) below the board that leads through a construction: next, back, play with
/// a speed, a slider over all steps, a sentence for each; or it asks where numbers go.
class StepPanel : public QDockWidget {
  Q_OBJECT

 public:
  StepPanel(WalkView* view, CommandRunner& runner, QWidget* parent);

  /// Offers the square on the board, if its construction is known, and the examples, and starts
  /// with the first of them. `numbers`: those of the board, empty if it is not full.
  void Begin(const Square<double>& square);

 private:
  void BeginChosen();
  void GoTo(int step);
  void ShowStep();
  void Play(bool on);
  void Answer(Place place);
  bool Asking() const;

  WalkView* view_;
  QComboBox* choice_;
  QPushButton* back_;
  QPushButton* next_;
  QPushButton* play_;
  QSlider* speed_;
  QSlider* steps_;
  QLabel* where_;
  QCheckBox* ask_;
  QLabel* sentence_;
  QTimer timer_;
  Square<double> square_;
  int asked_ = 0;
  int right_ = 0;
};

}  // namespace numorra
