#include "app/window/panels/panel_room.h"

#include <algorithm>

#include <QEvent>
#include <QScreen>

namespace numorra {
namespace {

constexpr int kSettledAfter = 100;  // milliseconds without a new state or size

}  // namespace

PanelRoom::PanelRoom(QMainWindow* window) : QObject(window), window_(window) {
  settling_.setSingleShot(true);
  settling_.setInterval(kSettledAfter);
  connect(&settling_, &QTimer::timeout, this, &PanelRoom::Pay);
  window_->installEventFilter(this);
}

void PanelRoom::Follow(const QDockWidget* panel) {
  const bool shown = !panel->isHidden();
  if (given_.contains(panel) == shown) return;
  if (shown) {
    owed_ += given_[panel] = RoomFor(panel);
  } else {
    owed_ -= given_.take(panel);
  }
  if (!settling_.isActive()) Pay();
}

/// The room that the panel needs, as far as the screen has it beside the window's own size.
QSize PanelRoom::RoomFor(const QDockWidget* panel) const {
  const QSize hint = panel->sizeHint();
  const bool below =
      window_->dockWidgetArea(const_cast<QDockWidget*>(panel)) == Qt::BottomDockWidgetArea;
  const QSize wanted = below ? QSize(0, hint.height()) : QSize(hint.width(), 0);
  const QSize frame = window_->frameGeometry().size() - window_->size();
  const QSize own = HasOwnSize() ? window_->size() : window_->normalGeometry().size();
  const QSize free = window_->screen()->availableSize() - frame - own - owed_;
  return wanted.boundedTo(free.expandedTo({0, 0}));
}

bool PanelRoom::HasOwnSize() const {
  return !(window_->windowState() &
           (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen));
}

void PanelRoom::Pay() {
  if (!HasOwnSize()) return;
  if (!owed_.isNull()) window_->resize(window_->size() + std::exchange(owed_, QSize(0, 0)));
  if (!given_.isEmpty()) MoveOntoScreen();
}

void PanelRoom::MoveOntoScreen() {
  const QRect screen = window_->screen()->availableGeometry();
  const QRect frame = window_->frameGeometry();
  const QPoint over(std::max(0, frame.right() - screen.right()),
                    std::max(0, frame.bottom() - screen.bottom()));
  const QPoint to(std::max(screen.left(), frame.left() - over.x()),
                  std::max(screen.top(), frame.top() - over.y()));
  if (!over.isNull()) window_->move(to);
}

bool PanelRoom::eventFilter(QObject* watched, QEvent* event) {
  const bool changed = event->type() == QEvent::WindowStateChange;
  const bool goesOn = event->type() == QEvent::Resize && settling_.isActive();
  if (changed || goesOn) settling_.start();
  return QObject::eventFilter(watched, event);
}

}  // namespace numorra
