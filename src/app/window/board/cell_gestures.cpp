#include "app/window/board/cell_gestures.h"

#include <utility>

#include <QApplication>
#include <QStyleHints>

namespace numorra {

CellGestures::CellGestures(GridView* view, QObject* parent)
    : QObject(parent), view_(view), carried_(new QLabel(view)) {
  carried_->setFrameShape(QFrame::Box);
  carried_->setAutoFillBackground(true);
  carried_->setAlignment(Qt::AlignCenter);
  carried_->setAttribute(Qt::WA_TransparentForMouseEvents);
  carried_->hide();
  hold_.setSingleShot(true);
  connect(&hold_, &QTimer::timeout, this, [this] {
    const Press press = *std::exchange(press_, std::nullopt);
    Q_EMIT Held(press.Cell, press.Global);
  });
  view->viewport()->installEventFilter(this);
}

bool CellGestures::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    Begin(static_cast<const QMouseEvent&>(*event));
  } else if (event->type() == QEvent::MouseMove) {
    Move(static_cast<const QMouseEvent&>(*event));
  } else if (event->type() == QEvent::MouseButtonRelease) {
    End(static_cast<const QMouseEvent&>(*event));
  }
  return QObject::eventFilter(watched, event);
}

std::optional<Place> CellGestures::PlaceAt(QPoint point) const {
  const auto cell = view_->CellAt(point);
  if (!cell || !view_->viewport()->rect().contains(point)) return std::nullopt;
  return Place{cell->y(), cell->x()};
}

/// A second button ends the gesture of the first.
void CellGestures::Begin(const QMouseEvent& event) {
  Forget();
  const QPoint at = event.position().toPoint();
  const auto cell = PlaceAt(at);
  if (!cell || event.buttons() != Qt::LeftButton) return;
  const bool byFinger = event.source() != Qt::MouseEventNotSynthesized;
  press_ = Press{*cell, at, event.globalPosition().toPoint(), byFinger};
  if (byFinger) hold_.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
}

void CellGestures::Move(const QMouseEvent& event) {
  if (!press_) return;
  if (!event.buttons().testFlag(Qt::LeftButton)) return Forget();  // a menu took the release
  const QPoint at = event.position().toPoint();
  if (!press_->Dragging) {
    if ((at - press_->At).manhattanLength() < QApplication::startDragDistance()) return;
    const Place from = press_->Cell;
    if (!CanDrag(from)) return Forget();
    hold_.stop();
    press_->Dragging = true;
    carried_->setText(QString::fromStdString(view_->Cells().Text(from.Row, from.Column)));
    const QSize cell = view_->CellRect(from.Row, from.Column).size();
    carried_->resize(carried_->sizeHint().expandedTo(cell));
    carried_->show();
  }
  const QPoint above(-carried_->width() / 2, -carried_->height() - carried_->height() / 2);
  carried_->move(view_->viewport()->mapTo(view_, at) + above);
}

void CellGestures::End(const QMouseEvent& event) {
  if (!press_ || event.button() != Qt::LeftButton) return;
  const Press press = *press_;
  Forget();
  const auto to = PlaceAt(event.position().toPoint());
  if (press.Dragging && to && *to != press.Cell) Q_EMIT Dragged(press.Cell, *to);
  if (!press.Dragging && to == press.Cell) Q_EMIT Tapped(press.Cell, press.ByFinger);
}

void CellGestures::Forget() {
  hold_.stop();
  carried_->hide();
  press_.reset();
}

}  // namespace numorra
