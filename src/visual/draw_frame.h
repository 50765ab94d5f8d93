#pragma once

#include <QGroupBox>
#include <QPushButton>

namespace numorra {

/// The "Draw" frame: two drawings of the board, and the command that takes them away.
class DrawFrame : public QGroupBox {
  Q_OBJECT

 public:
  explicit DrawFrame(QWidget* parent = nullptr);

  QPushButton* const Command1;  ///< "Cricles"
  QPushButton* const Command2;  ///< "Vectors"
  QPushButton* const Command4;  ///< "Clear"
};

}  // namespace numorra
