#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

#include "app/window/board/walk_view.h"
#include "app/window/panels/lazy_panel.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// The panel (`StepPanel`) below the board that leads through a construction: next, back, play with
/// a speed, a slider over all steps, a sentence for each; or it asks where numbers go.
class StepPanel : public LazyPanel {
  Q_OBJECT

 public:
  StepPanel(WalkView* view, CommandRunner& runner, QWidget* parent);

  /// Offers the square on the board, if its construction is known, and the examples, and starts
  /// with the first of them. `numbers`: those of the board, empty if it is not full.
  void Begin(const Square<double>& square);

 private:
  void Furnish() override;
  void Arrange();
  void Connect();
  void BeginChosen();
  void GoTo(int step);
  void ShowStep();
  void Play(bool on);
  void Answer(Place place);
  bool Asking() const;

  WalkView* view_;
  CommandRunner& runner_;
  QComboBox* choice_ = nullptr;
  QPushButton* back_ = nullptr;
  QPushButton* next_ = nullptr;
  QPushButton* play_ = nullptr;
  QSlider* speed_ = nullptr;
  QSlider* steps_ = nullptr;
  QLabel* where_ = nullptr;
  QCheckBox* ask_ = nullptr;
  QLabel* sentence_ = nullptr;
  QTimer timer_;
  Square<double> square_;
  std::vector<WalkExample> examples_;
  int asked_ = 0;
  int right_ = 0;
};

}  // namespace numorra
