#pragma once

#include <QFrame>

namespace numorra {

/// Keys for a finger (`NumberPad`), beside a cell: the digits, Backspace and Done. Each is at least
/// 9 mm wide and high. The keyboard stays where it is.
class NumberPad : public QFrame {
  Q_OBJECT

 public:
  /// Hidden at first.
  explicit NumberPad(QWidget* window);

  /// Shows the pad beside a cell, a rectangle of the window, inside the window.
  void ShowBeside(const QRect& cell);

 Q_SIGNALS:
  /// A digit, or Backspace (8).
  void Typed(char32_t character);
  void Done();
};

}  // namespace numorra
