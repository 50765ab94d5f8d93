#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace numorra {

/// A line of text with a button, below the board. Esc presses the button, and screen readers read
/// the text.
class BoardBar : public QFrame {
  Q_OBJECT

 public:
  /// `button`: the button's object name and text.
  BoardBar(const char* name, const char* buttonName, const QString& buttonText);

  void ShowText(const QString& text);

  /// Adds a hidden button, left of the last one. A key presses it while it is shown.
  QPushButton* AddButton(const char* name, const QString& text, const char* key);

  QPushButton* const Button;

 Q_SIGNALS:
  void ShownOrHidden();

 protected:
  void showEvent(QShowEvent*) override { Q_EMIT ShownOrHidden(); }
  void hideEvent(QHideEvent*) override { Q_EMIT ShownOrHidden(); }

 private:
  QHBoxLayout* row_;
  QLabel* text_;
};

}  // namespace numorra
