#include "app/window/frames/column_scroller.h"

#include <QEvent>
#include <QScrollBar>

namespace numorra {

ColumnScroller::ColumnScroller(QWidget* column) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  setWidget(column);
  column->installEventFilter(this);
  FitWidth();
}

QSize ColumnScroller::sizeHint() const {
  return widget()->sizeHint();
}

QSize ColumnScroller::minimumSizeHint() const {
  return {0, 0};
}

bool ColumnScroller::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) FitWidth();
  return QScrollArea::eventFilter(watched, event);
}

void ColumnScroller::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  FitWidth();
}

void ColumnScroller::FitWidth() {
  const QSize needed = widget()->minimumSizeHint().expandedTo({0, 0});
  const bool scrolls = needed.height() > height();
  setFixedWidth(needed.width() + (scrolls ? verticalScrollBar()->sizeHint().width() : 0));
}

}  // namespace numorra
