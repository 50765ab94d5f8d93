#include "toolkit/told_label.h"

#include <algorithm>

namespace numorra {

ToldLabel::ToldLabel(int lines) {
  setWordWrap(true);
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignTop);
  setMinimumHeight(lines * fontMetrics().lineSpacing());
}

void ToldLabel::Tell(const QString& text) {
  setText(text);
  if (isVisible()) Grow();
}

void ToldLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Grow();
}

void ToldLabel::Grow() {
  setMinimumHeight(std::max(minimumHeight(), heightForWidth(width())));
}

}  // namespace numorra
