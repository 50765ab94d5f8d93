#include "app/window/board/board_place.h"

#include <algorithm>
#include <utility>

#include <QVBoxLayout>

#include "toolkit/tr.h"
#include "toolkit/twips.h"

namespace numorra {
namespace {

constexpr int kMargin = 120;  // twips, around the board

}  // namespace

BoardPlace::BoardPlace(Board& board)
    : QGroupBox(TrIn("frame", "Solution")),
      board_(board),
      View(new GridView(board.grid)),
      Picture(new Drawing(board)),
      Walk(new WalkView(walkGrid_)),
      Gestures(new CellGestures(View, this)),
      Missing(new MissingNumbers),
      SearchBar(new BoardBar("SearchBar", "StopSearchx", Tr("Stop"))),
      RemarkBar(new BoardBar("RemarkBar", "CloseRemarkx", Tr("Close"))),
      BackButton(RemarkBar->AddButton("RemarkBackx", Tr("Back"), "Alt+Left")),
      NextButton(RemarkBar->AddButton("RemarkNextx", Tr("Next"), "Alt+Right")),
      stack_(new QStackedLayout),
      room_(new QWidget) {
  setObjectName("Frame1");
  View->setAccessibleName(Tr("Board"));
  Picture->BlockIn = [this](QSize room) { return View->FittedBlock(room); };
  room_->hide();
  auto* column = new QVBoxLayout(this);
  // The board's margin is measured from the frame's own edge, which the style has moved inwards.
  const int margin = PixelsOf(kMargin);
  const QMargins edge = contentsMargins();
  column->setContentsMargins(margin - edge.left(), margin, margin - edge.right(),
                             margin - edge.bottom());
  column->addLayout(stack_, 1);
  for (QWidget* widget : std::initializer_list<QWidget*>{View, Picture, Walk})
    stack_->addWidget(widget);
  column->addWidget(Missing);
  for (BoardBar* bar : {SearchBar, RemarkBar}) {
    column->addWidget(bar);
    connect(bar, &BoardBar::ShownOrHidden, this, &BoardPlace::FillRoomForBars);
  }
  column->addWidget(room_);
}

void BoardPlace::KeepRoomForBars(int height) {
  for (QWidget* widget : std::initializer_list<QWidget*>{SearchBar, RemarkBar, room_})
    widget->setMinimumHeight(height);
  FillRoomForBars();
}

void BoardPlace::FillRoomForBars() {
  room_->setVisible(room_->minimumHeight() > 0 && SearchBar->isHidden() && RemarkBar->isHidden());
}

void BoardPlace::ShowBoard() {
  if (!board_.OverlayShown) Picture->SetKind(nullptr);
  ShowWidget(board_.OverlayShown ? static_cast<QWidget*>(Picture) : View);
}

void BoardPlace::ShowWalk() {
  Walk->SetFitting(true);
  ShowWidget(Walk);
}

void BoardPlace::ShowWidget(QWidget* widget) {
  if (stack_->currentWidget() == widget) return;
  ForgetRemark();
  stack_->setCurrentWidget(widget);
  Q_EMIT SightChanged();
}

void BoardPlace::ShowRemark(Remark remark) {
  remarkIsNew_ = true;
  remark_ = std::move(remark);
  step_ = 0;
  ShowStep();
}

void BoardPlace::StepRemark(int by) {
  if (remark_.Steps.empty()) return;
  step_ = std::clamp(step_ + by, 0, static_cast<int>(remark_.Steps.size()) - 1);
  ShowStep();
}

void BoardPlace::ShowStep() {
  const auto steps = static_cast<int>(remark_.Steps.size());
  const Remark& shown = steps > 0 ? remark_.Steps[static_cast<std::size_t>(step_)] : remark_;
  board_.grid.SetOutlined(shown.Where);
  QString text = QString::fromStdString(shown.Text);
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  for (QPushButton* button : {BackButton, NextButton})
    button->setVisible(steps > 0);
  BackButton->setEnabled(step_ > 0);
  NextButton->setEnabled(step_ + 1 < steps);
  RemarkBar->ShowText(steps > 0 ? Tr("%1 of %2: %3.", step_ + 1, steps, text) : Tr("%1.", text));
  if (shown.Where.size() != 1) return;
  layout()->activate();  // lay out the bar first
  View->BringIntoView(shown.Where.front().Row, shown.Where.front().Column);
}

void BoardPlace::ForgetRemark() {
  if (RemarkBar->isHidden()) return;
  RemarkBar->hide();
  board_.grid.SetOutlined({});
}

void BoardPlace::PointAt(const std::vector<Place>& cells) {
  if (remarkIsNew_) return;
  ForgetRemark();
  board_.grid.SetOutlined(cells);
  Picture->update();
}

void BoardPlace::PointAtNothing() {
  if (RemarkBar->isHidden()) board_.grid.SetOutlined({});
}

void BoardPlace::ShowSearch(const QString& text) {
  ForgetRemark();
  SearchBar->ShowText(text);
}

void BoardPlace::EndCommand(bool changedTheBoard) {
  if (changedTheBoard && !remarkIsNew_) ForgetRemark();
  remarkIsNew_ = false;
}

bool BoardPlace::DismissBar() {
  const auto bars = {SearchBar, RemarkBar};
  const auto* const shown =
      std::find_if(bars.begin(), bars.end(), [](const BoardBar* bar) { return !bar->isHidden(); });
  if (shown == bars.end()) return false;
  (*shown)->Button->click();
  return true;
}

}  // namespace numorra
