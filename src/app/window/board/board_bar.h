#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace numorra {

/// A line of text with a button, below the board. Esc presses the button, and screen readers read
/// the text.
class BoardBar : public QFrame {
  Q_OBJECT

 public:
  /// `button`: the button's object name and text.
  BoardBar(const char* name, const char* buttonName, const char* buttonText);

  void ShowText(const QString& text);

  QPushButton* const Button;

 private:
  QLabel* text_;
};

}  // namespace numorra
