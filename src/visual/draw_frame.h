#pragma once

#include <QGroupBox>
#include <QPushButton>

#include "visual/drawing_kind.h"

namespace numorra {

/// The "Draw" frame: a button for every drawing of the board, and one that removes them.
class DrawFrame : public QGroupBox {
  Q_OBJECT

 public:
  explicit DrawFrame(QWidget* parent = nullptr);

  std::array<QPushButton*, kDrawingKinds.size()> Buttons;  ///< in the order of the drawings
  QPushButton* const Command4;                             ///< "Clear"

 Q_SIGNALS:
  void Chosen(const DrawingKind* kind);
};

}  // namespace numorra
