#include "app/window/view_control.h"

#include <utility>

#include <QEvent>

#include "app/window/zoom.h"

namespace numorra {

ViewControl::ViewControl(QMainWindow* window, GridView* view, std::vector<QWidget*> beside,
                         QAction* fit, QAction* full)
    : QObject(window),
      window_(window),
      view_(view),
      beside_(std::move(beside)),
      fit_(fit),
      full_(full) {
  window_->installEventFilter(this);
}

void ViewControl::Zoom(int direction, QPoint fixed) {
  view_->SetZoom(direction == 0 ? 1 : NextZoom(view_->Zoom(), direction), fixed);
  ShowMarks();
}

void ViewControl::ToggleFitting() {
  view_->SetFitting(!view_->Fitting());
  ShowMarks();
}

void ViewControl::ToggleFullScreen() {
  if (before_) {
    const Qt::WindowStates state = before_->State;
    GiveBack();
    window_->setWindowState(state);
    return;
  }
  Before before{view_->Zoom(), view_->Fitting(), view_->Scrolled(), window_->windowState(), {}};
  for (QWidget* widget : beside_) {
    if (widget->isHidden()) continue;
    before.Hidden.push_back(widget);
    widget->hide();
  }
  window_->showFullScreen();
  view_->SetFitting(true);
  before_ = std::move(before);
  ShowMarks();
}

bool ViewControl::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && before_ && !window_->isFullScreen()) GiveBack();
  return QObject::eventFilter(watched, event);
}

/// All that was there before but the window's own state.
void ViewControl::GiveBack() {
  const Before before = *std::exchange(before_, std::nullopt);
  for (QWidget* widget : before.Hidden)
    widget->show();
  view_->SetZoom(before.Zoom, {});
  view_->SetFitting(before.Fitting);
  ShowMarks();
  scrolled_ = before.Scrolled;
  QMetaObject::invokeMethod(this, "ScrollBack", Qt::QueuedConnection);
}

void ViewControl::ScrollBack() {
  view_->ScrollTo(scrolled_);
}

void ViewControl::ShowMarks() {
  fit_->setChecked(view_->Fitting());
  full_->setChecked(FullScreen());
}

}  // namespace numorra
