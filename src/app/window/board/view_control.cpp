#include "app/window/board/view_control.h"

#include <algorithm>
#include <utility>

#include <QDockWidget>
#include <QEvent>
#include <QScreen>

#include "app/window/board/zoom.h"

namespace numorra {

ViewControl::ViewControl(QMainWindow* window, BoardPlace* place, std::vector<QWidget*> beside,
                         QWidget* state, QAction* fit, QAction* full)
    : QObject(window),
      window_(window),
      place_(place),
      beside_(std::move(beside)),
      state_(state),
      fit_(fit),
      full_(full) {
  window_->installEventFilter(this);
  connect(place_, &BoardPlace::SightChanged, this, &ViewControl::ShowMarks);
}

void ViewControl::Zoom(int direction, std::optional<QPoint> fixed) {
  GridView& cells = place_->Cells();
  const double zoom = direction == 0 ? 1 : NextZoom(cells.Zoom(), direction);
  if (fixed) {
    cells.SetZoom(zoom, *fixed);
  } else {
    cells.SetZoom(zoom);
  }
  ShowMarks();
}

ViewControl::BoardSize ViewControl::OwnSize() const {
  if (before_) return {before_->Zoom, before_->Fitting};
  return {place_->View->Zoom(), place_->View->Fitting()};
}

void ViewControl::SetOwnSize(const BoardSize& size) {
  place_->View->SetZoom(size.Zoom);
  place_->View->SetFitting(size.Fitting);
  ShowMarks();
}

bool ViewControl::OwnShown(QWidget* widget) const {
  const auto isIt = [widget](const QWidget* hidden) { return hidden == widget; };
  return !widget->isHidden() ||
         (before_ && std::any_of(before_->Hidden.begin(), before_->Hidden.end(), isIt));
}

void ViewControl::ToggleFitting() {
  GridView& cells = place_->Cells();
  cells.SetFitting(!cells.Fitting());
  ShowMarks();
}

/// Changes no other state, so that the desktop remembers the window's previous one.
void ViewControl::ToggleFullScreen() {
  window_->setWindowState(window_->windowState() ^ Qt::WindowFullScreen);
}

bool ViewControl::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && !window_->isMinimized() &&
      window_->isFullScreen() != FullScreen()) {
    FullScreen() ? GiveBack() : TakeAway();
  }
  return QObject::eventFilter(watched, event);
}

void ViewControl::TakeAway() {
  GridView& board = *place_->View;
  before_ = Before{board.Zoom(), board.Fitting(), board.Scrolled(), {}};
  for (QWidget* widget : beside_) {
    if (widget->isHidden()) continue;
    before_->Hidden.push_back(widget);
    widget->hide();
  }
  board.SetFitting(true);
  constexpr int kLinesOfScreen = 1080;
  constexpr int kTextLines = 28;
  SetTextHeight((window_->screen()->size().height() * kTextLines + kLinesOfScreen - 1) /
                kLinesOfScreen);
  ShowMarks();
}

void ViewControl::GiveBack() {
  const Before before = *std::exchange(before_, std::nullopt);
  SetTextHeight({});
  for (QWidget* widget : before.Hidden)
    widget->show();
  place_->View->SetZoom(before.Zoom, {});
  place_->View->SetFitting(before.Fitting);
  ShowMarks();
  scrolled_ = before.Scrolled;
  QMetaObject::invokeMethod(this, "ScrollBack", Qt::QueuedConnection);
}

/// Without a height, the texts are as large as elsewhere, and the bars keep no room.
void ViewControl::SetTextHeight(std::optional<int> pixels) {
  constexpr double kBarLines = 3.5;  // two lines of text, with its frame
  QFont font;
  if (pixels) font.setPixelSize(*pixels);
  for (QWidget* widget : std::initializer_list<QWidget*>{place_->SearchBar, place_->RemarkBar,
                                                         place_->Missing, state_})
    widget->setFont(font);
  for (QDockWidget* panel : window_->findChildren<QDockWidget*>())
    panel->setFont(font);
  place_->KeepRoomForBars(pixels ? static_cast<int>(kBarLines * *pixels) : 0);
}

void ViewControl::ScrollBack() {
  place_->View->ScrollTo(scrolled_);
}

void ViewControl::ShowMarks() {
  fit_->setChecked(place_->Cells().Fitting());
  full_->setChecked(FullScreen());
}

}  // namespace numorra
