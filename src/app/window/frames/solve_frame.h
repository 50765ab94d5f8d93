#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>

namespace numorra {

/// The "Solve" frame: the kind of squares, and the commands that make a board. During a build the
/// count label replaces the "Auto" button, and nothing else moves.
class SolveFrame : public QGroupBox {
  Q_OBJECT

 public:
  explicit SolveFrame(QWidget* parent = nullptr);

  void ShowCounter(bool counting);

  QRadioButton* const Option3;  ///< "Normal"
  QRadioButton* const Option4;  ///< "Variable"
  QPushButton* const SolveAuto;
  QPushButton* const SolveAgain;
  QPushButton* const SolveManual;
  QLabel* const IterationCount;

 private:
  QStackedLayout* const autoPlace_;
};

}  // namespace numorra
