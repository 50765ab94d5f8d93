#include "app/window/board/board_place.h"

#include <algorithm>

#include <QVBoxLayout>

#include "toolkit/twips.h"

namespace numorra {
namespace {

constexpr int kMargin = 120;  // twips, around the board

}  // namespace

BoardPlace::BoardPlace(Board& board)
    : QGroupBox("Solution"),
      board_(board),
      View(new GridView(board.grid)),
      Picture(new Drawing(board)),
      Walk(new WalkView(walkGrid_)),
      Missing(new MissingNumbers),
      SearchBar(new BoardBar("SearchBar", "StopSearchx", "Stop")),
      RemarkBar(new BoardBar("RemarkBar", "CloseRemarkx", "Close")),
      stack_(new QStackedLayout),
      bars_(new QWidget) {
  setObjectName("Frame1");
  View->setAccessibleName("Board");
  Picture->BlockIn = [this](QSize room) { return View->FittedBlock(room); };
  bars_->setFixedWidth(0);
  bars_->hide();
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
  auto* bars = new QHBoxLayout;
  bars->setSpacing(0);
  for (QWidget* widget : std::initializer_list<QWidget*>{SearchBar, RemarkBar, bars_})
    bars->addWidget(widget);
  column->addLayout(bars);
}

void BoardPlace::KeepRoomForBars(int height) {
  bars_->setFixedHeight(height);
  bars_->setVisible(height > 0);
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

void BoardPlace::ShowRemark(const Remark& remark) {
  remarkIsNew_ = true;
  board_.grid.SetOutlined(remark.Where);
  QString text = QString::fromStdString(remark.Text);
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  RemarkBar->ShowText(text + ".");
  if (remark.Where.size() != 1) return;
  layout()->activate();  // lay out the bar first
  View->BringIntoView(remark.Where.front().Row, remark.Where.front().Column);
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
