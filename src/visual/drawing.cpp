#include "visual/drawing.h"

#include <algorithm>

#include <QFontMetricsF>

#include "toolkit/painted_text.h"
#include "toolkit/tr.h"
#include "visual/outline.h"

namespace numorra {
namespace {

constexpr double kMargin = 8;         // pixels around the drawing
constexpr int kSmallestReadable = 6;  // pixels: smaller numbers are unreadable
constexpr double kHalo = 0.07;        // its width, as a share of a number's height
constexpr double kGap = 0.06;         // between boards, as a share of the drawing's width

/// The place of one of several boards beside each other in the middle of `block`.
QRectF BlockOf(int which, int boards, const QRectF& block) {
  const double gap = block.width() * kGap;
  const double side = (block.width() - gap * (boards - 1)) / boards;
  return {block.left() + which * (side + gap), block.center().y() - side / 2, side, side};
}

}  // namespace

void DrawingArea::PaintCells(QPainter& painter, const QColor& ground, const QColor& rules) const {
  painter.fillRect(Block, ground);
  painter.setPen(QPen(rules, 1));
  for (int line = 0; line <= TheBoard.GridSize; ++line) {
    const QPointF down(0, line * Side);
    const QPointF across(line * Side, 0);
    painter.drawLine(Block.topLeft() + down, Block.topRight() + down);
    painter.drawLine(Block.topLeft() + across, Block.bottomLeft() + across);
  }
}

void DrawingArea::PaintNumber(QPainter& painter, const std::string& number, const QRectF& place,
                              const QColor& ink, const QColor& halo) {
  const QString text = QString::fromStdString(number);
  QFont font = painter.font();
  font.setPixelSize(std::max(1, static_cast<int>(place.height())));
  const double width = QFontMetricsF(font).horizontalAdvance(text);
  if (width > place.width()) {
    font.setPixelSize(std::max(1, static_cast<int>(place.height() * place.width() / width)));
  }
  painter.setFont(font);
  if (font.pixelSize() < kSmallestReadable) return;
  painter.setPen(halo);
  // The halo is the number painted four times around itself; outlining letters costs far more.
  const double around = std::max(1.0, font.pixelSize() * kHalo);
  for (const QPointF side : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
    DrawCentred(painter, place.translated(side * around), text);
  painter.setPen(ink);
  DrawCentred(painter, place, text);
}

Drawing::Drawing(const Board& board, QWidget* parent) : QWidget(parent), board_(board) {
  setObjectName("Picture1");
  setProperty("tag", "");
  setAttribute(Qt::WA_OpaquePaintEvent);  // otherwise the frames behind are painted first
  setAccessibleName(Tr("Drawing of the board"));
}

void Drawing::SetKind(const DrawingKind* kind) {
  kind_ = kind;
  setProperty("tag", kind ? kind->Tag : "");
  update();
}

void Drawing::SetColour(Colour picked) {
  picked_ = picked;
  update();
}

void Drawing::SetNumbers(bool shown) {
  numbers_ = shown;
  update();
}

void Drawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  Paint(painter, palette(), Block());
}

/// The square of all cells in the widget.
QRectF Drawing::Block() const {
  if (const std::optional<QRect> given = BlockIn(size())) {
    QRectF block(0, 0, given->width(), given->width());
    block.moveCenter(QRectF(*given).center());
    return block;
  }
  const double side = std::max<double>(board_.GridSize, std::min(width(), height()) - 2 * kMargin);
  QRectF block(0, 0, side, side);
  block.moveCenter(QRectF(rect()).center());
  return block;
}

void Drawing::Paint(QPainter& painter, const QPalette& palette, const QRectF& block) const {
  if (!kind_ || !board_.Shown()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  if (const std::string why = kind_->WhyNone(board_); !why.empty()) {
    constexpr double kSentence = 24;  // pixels, at most
    QRectF line(0, 0, block.width(), kSentence);
    line.moveCenter(block.center());
    return DrawingArea::PaintNumber(painter, why, line, palette.color(QPalette::WindowText),
                                    palette.color(QPalette::Window));
  }
  for (int which = 0; which < kind_->Boards; ++which) {
    const QRectF own = BlockOf(which, kind_->Boards, block);
    const double side = own.width() / board_.GridSize;
    kind_->Paint(painter, {board_, picked_, palette, numbers_, own, side, which});
    PaintOutline(painter, board_.grid.Outlined(), [&](Place place) {
      const QPointF corner = own.topLeft() + QPointF(place.Column - 1, place.Row - 1) * side;
      return QRectF(corner, QSizeF(side, side));
    });
  }
}

}  // namespace numorra
