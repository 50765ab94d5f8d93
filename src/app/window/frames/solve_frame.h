#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>

namespace numorra {

/// The "Solve" frame: which squares are wanted, and the commands that make a board. While a build
/// counts, the count label takes the place of the "Auto" button and nothing else moves.
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
