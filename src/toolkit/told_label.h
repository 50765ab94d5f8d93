#pragma once

#include <QLabel>

namespace numorra {

/// A label below the controls of a dialog, with room for some lines of plain text. It grows with a
/// longer text and never shrinks, so that nothing below it moves back and forth.
class ToldLabel : public QLabel {
 public:
  explicit ToldLabel(int lines);

  void Tell(const QString& text);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Grow();
};

}  // namespace numorra
