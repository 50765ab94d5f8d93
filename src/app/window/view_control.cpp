#include "app/window/view_control.h"

#include <utility>

#include "app/window/zoom.h"

namespace numorra {

ViewControl::ViewControl(QMainWindow* window, GridView* view, QWidget* beside, QAction* fit,
                         QAction* full)
    : QObject(window),
      window_(window),
      view_(view),
      beside_(beside),
      fit_(fit),
      full_(full),
      leave_(new QShortcut(Qt::Key_Escape, window)) {
  leave_->setEnabled(false);
  connect(leave_, &QShortcut::activated, this, &ViewControl::ToggleFullScreen);
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
  const bool entering = !before_;
  beside_->setVisible(!entering);
  if (entering) {
    before_ = {view_->Zoom(), view_->Fitting(), window_->windowState()};
    window_->showFullScreen();
    view_->SetFitting(true);
  } else {
    const Before before = *std::exchange(before_, std::nullopt);
    window_->setWindowState(before.State);
    view_->SetZoom(before.Zoom, {});
    view_->SetFitting(before.Fitting);
  }
  ShowMarks();
}

void ViewControl::ShowMarks() {
  fit_->setChecked(view_->Fitting());
  full_->setChecked(before_.has_value());
  leave_->setEnabled(before_.has_value());
}

}  // namespace numorra
