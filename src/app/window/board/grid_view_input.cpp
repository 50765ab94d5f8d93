#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include "app/window/board/grid_view.h"

namespace numorra {
namespace {

MarkedLine LineMarkedWith(Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::ShiftModifier)) return MarkedLine::Row;
  return modifiers.testFlag(Qt::ControlModifier) ? MarkedLine::Column : MarkedLine::Cell;
}

}  // namespace

bool GridView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto cell = CellAt(help->pos());
    const QString tip = cell ? Tip(cell->y(), cell->x()) : QString();
    tip.isEmpty() ? QToolTip::hideText() : QToolTip::showText(help->globalPos(), tip, viewport());
    return true;
  }
  return QAbstractScrollArea::viewportEvent(event);
}

void GridView::mousePressEvent(QMouseEvent* event) {
  if (const auto cell = CellAt(event->position().toPoint())) {
    Q_EMIT CellPressed(cell->y(), cell->x(), event->button(), event->globalPosition().toPoint());
  }
}

void GridView::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers();
  const bool command =
      modifiers.testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  // Alt steps on keyboards without a keypad; Shift+F10 serves those without a menu key.
  const bool steps = modifiers.testFlag(Qt::KeypadModifier);
  const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  const bool menu = event->key() == Qt::Key_F10 && modifiers.testFlag(Qt::ShiftModifier);
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const QString text = enter ? QString('\r') : event->text();
  const bool typed = !command && !text.isEmpty() && event->key() != Qt::Key_Escape &&
                     event->key() != Qt::Key_Delete;
  const bool board = grid_.Visible() && grid_.Rows() >= 3;
  event->accept();
  if (board && arrow && modifiers.testFlag(Qt::AltModifier)) {
    Q_EMIT KeypadPressed(event->key() == Qt::Key_Up ? 1 : -1);
    return;
  }
  const auto wanted = Destination(event->key(), modifiers.testFlag(Qt::ControlModifier));
  if (board && wanted) {
    Q_EMIT CellWanted(wanted->Row, wanted->Column);
  } else if (board && event->key() == Qt::Key_Space) {
    Q_EMIT MarkWanted(LineMarkedWith(modifiers));
  } else if (board && menu) {
    Q_EMIT MenuWanted();
  } else if (board && steps && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus)) {
    Q_EMIT KeypadPressed(event->key() == Qt::Key_Plus ? 1 : -1);
  } else if (board && typed) {
    Q_EMIT CharacterTyped(text.front().unicode());
  } else {
    event->ignore();
  }
}

/// The cell that the key makes the current one, if it is one of those that do.
std::optional<Place> GridView::Destination(int key, bool toTheVeryEnd) const {
  const auto [row, column] = Place{grid_.CurrentRow(), grid_.CurrentColumn()};
  const int lastRow = grid_.Rows() - 2;
  const int page = std::max(1, viewport()->height() / painter_.Edge(1) - Grid::kFixedLines - 1);
  switch (key) {
    case Qt::Key_Up:
      return Place{row - 1, column};
    case Qt::Key_Down:
      return Place{row + 1, column};
    case Qt::Key_Left:
      return Place{row, column - 1};
    case Qt::Key_Right:
      return Place{row, column + 1};
    case Qt::Key_Home:
      return Place{toTheVeryEnd ? 1 : row, 1};
    case Qt::Key_End:
      return Place{toTheVeryEnd ? lastRow : row, grid_.Columns() - 2};
    case Qt::Key_PageUp:
      return Place{std::max(1, row - page), column};
    case Qt::Key_PageDown:
      return Place{std::min(lastRow, row + page), column};
    default:
      return std::nullopt;
  }
}

void GridView::wheelEvent(QWheelEvent* event) {
  const int turned = event->angleDelta().y();
  if (!event->modifiers().testFlag(Qt::ControlModifier) || turned == 0) {
    return QAbstractScrollArea::wheelEvent(event);
  }
  event->accept();
  turned_ += turned;
  for (constexpr int kNotch = 120; std::abs(turned_) >= kNotch;) {
    const int direction = turned_ > 0 ? 1 : -1;
    turned_ -= direction * kNotch;
    Q_EMIT ZoomWanted(direction, event->position().toPoint());
  }
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() != QContextMenuEvent::Keyboard || !grid_.Visible()) return;
  Q_EMIT MenuWanted();
}

void GridView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  told_.reset();
  viewport()->update();
}

}  // namespace numorra
