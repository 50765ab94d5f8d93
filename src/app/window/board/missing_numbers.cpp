#include "app/window/board/missing_numbers.h"

#include <algorithm>

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include "app/window/board/range_words.h"
#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

constexpr int kMostLines = 4;     // without scrolling
constexpr int kBetweenCells = 8;  // pixels
constexpr int kPadding = 6;       // pixels, inside the panel

/// What the panel says above the numbers.
QString Heading(const NumbersToPlace& numbers, bool noting) {
  const int missing = numbers.Missing();
  const QString text = missing == 0
                           ? Tr("No number is missing")
                           : Tr("Missing: %1 of %2 numbers", missing, numbers.Numbers.size());
  return noting ? Tr("%1. Digits write notes (Ctrl+N ends this)", text) : text;
}

/// The missing numbers in words: "1 to 3, 7".
QString MissingInWords(const NumbersToPlace& numbers) {
  NoteSet missing;
  for (const int number : numbers.Numbers)
    missing.set(static_cast<std::size_t>(number));
  return RangesInWords(missing & ~numbers.Placed);
}

}  // namespace

NumberStrip::NumberStrip(QWidget* parent) : QAbstractScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setAutoFillBackground(false);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void NumberStrip::Show(const NumbersToPlace& numbers) {
  if (numbers == numbers_) return;
  const bool another = numbers.Numbers != numbers_.Numbers;
  numbers_ = numbers;
  if (another) {
    verticalScrollBar()->setValue(0);
    updateGeometry();
    UpdateScrollBar();
  }
  viewport()->update();
}

int NumberStrip::CellWidth() const {
  const int largest = numbers_.Numbers.empty() ? 0 : numbers_.Numbers.back();
  const auto digits = static_cast<int>(std::to_string(largest).size());
  return digits * fontMetrics().horizontalAdvance('0') + kBetweenCells;
}

int NumberStrip::LineHeight() const {
  return fontMetrics().height() + 2;
}

int NumberStrip::LinesAt(int width) const {
  const auto count = static_cast<int>(numbers_.Numbers.size());
  const int columns = std::max(1, width / CellWidth());
  return std::max(1, (count + columns - 1) / columns);
}

int NumberStrip::heightForWidth(int width) const {
  return std::min(kMostLines, LinesAt(width)) * LineHeight();
}

QSize NumberStrip::sizeHint() const {
  return {width(), heightForWidth(width())};
}

void NumberStrip::UpdateScrollBar() {
  const int whole = LinesAt(viewport()->width()) * LineHeight();
  const int seen = viewport()->height();
  verticalScrollBar()->setRange(0, std::max(0, whole - seen));
  verticalScrollBar()->setPageStep(seen);
  verticalScrollBar()->setSingleStep(LineHeight());
  setFocusPolicy(whole > seen ? Qt::TabFocus : Qt::NoFocus);
}

void NumberStrip::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  UpdateScrollBar();
}

void NumberStrip::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  updateGeometry();
  UpdateScrollBar();
}

void NumberStrip::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const int columns = std::max(1, viewport()->width() / CellWidth());
  QFont struckOut = font();
  struckOut.setStrikeOut(true);
  int place = 0;
  for (const int number : numbers_.Numbers) {
    const QRect cell(place % columns * CellWidth(),
                     place / columns * LineHeight() - verticalScrollBar()->value(), CellWidth(),
                     LineHeight());
    ++place;
    if (!cell.intersects(viewport()->rect())) continue;
    const bool placed = numbers_.Placed[static_cast<std::size_t>(number)];
    painter.setFont(placed ? struckOut : font());
    painter.setPen(
        palette().color(placed ? QPalette::Disabled : QPalette::Active, QPalette::WindowText));
    painter.drawText(cell.adjusted(0, 0, -kBetweenCells, 0), Qt::AlignRight | Qt::AlignVCenter,
                     QString::number(number));
  }
}

MissingNumbers::MissingNumbers(QWidget* parent)
    : QFrame(parent), told_(new QLabel), strip_(Named("NumberStrip", new NumberStrip)) {
  setObjectName("MissingNumbers");
  setFrameShape(QFrame::StyledPanel);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  strip_->setLayoutDirection(Qt::LeftToRight);
  told_->setTextFormat(Qt::PlainText);
  told_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
  column->setSpacing(2);
  column->addWidget(told_);
  column->addWidget(strip_);
  hide();
}

void MissingNumbers::Show(const NumbersToPlace& numbers, bool noting) {
  if (numbers.Numbers.empty()) return hide();
  strip_->Show(numbers);
  told_->setText(Heading(numbers, noting));
  setAccessibleName(told_->text());
  strip_->setAccessibleName(Tr("Missing numbers"));
  strip_->setAccessibleDescription(MissingInWords(numbers));
  show();
}

}  // namespace numorra
