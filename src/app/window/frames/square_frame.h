#pragma once

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include "app/ports/square_boxes.h"

namespace numorra {

/// The "Square" frame: the size and the sum of the square to build.
class SquareFrame : public QGroupBox, public SquareBoxes {
  Q_OBJECT

 public:
  explicit SquareFrame(QWidget* parent = nullptr);

  std::string Size() const override;
  std::string Sum() const override;
  void SetSize(const std::string& text) override;
  void SetSum(const std::string& text) override;

  /// Passes the undo and redo keys to the board, even if this frame has the keyboard.
  bool eventFilter(QObject* watched, QEvent* event) override;

  QLineEdit* const Text1;  ///< size
  QLineEdit* const Text4;  ///< sum
  QPushButton* const Set4x4;
  QPushButton* const SolveRandum;
};

}  // namespace numorra
