#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace numorra {

/// A line of text with a button, over the board's lower edge, or its upper one where that would
/// cover what it speaks of. It moves nothing when it comes and goes, Esc presses its button, and
/// screen readers read it.
class BoardBar : public QFrame {
  Q_OBJECT

 public:
  /// `over`: what it lies on. `button`: the button's object name and text.
  BoardBar(QWidget* over, const char* name, const char* buttonName, const char* buttonText);

  void ShowText(const QString& text, bool atTop = false);

  QPushButton* const Button;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QLabel* text_;
  bool atTop_ = false;
};

}  // namespace numorra
