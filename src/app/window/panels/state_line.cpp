#include "app/window/panels/state_line.h"

#include <algorithm>

#include <QAccessible>
#include <QMenuBar>

#include "app/play/board_state.h"
#include "toolkit/tr.h"
#include "toolkit/twips.h"

namespace numorra {
namespace {

// Twips.
constexpr int kAroundMenu = 330;   // a menu's own edges
constexpr int kAroundMenus = 240;  // those of all menus

constexpr int kWidth = 27;  // in heights of a line: free beside six menus at the opening size

}  // namespace

StateLine::StateLine(QWidget* parent) : QLabel(parent) {
  setObjectName("BoardState");
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setContentsMargins(0, 0, PixelsOf(kAroundMenus) / 2, 0);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  constexpr int kMoment = 3000;  // milliseconds
  brief_.setInterval(kMoment);
  connect(&brief_, &QTimer::timeout, this, &StateLine::Cut);
}

void StateLine::Show(const Board& board) {
  QString cell;
  if (board.Shown()) {
    const Grid& grid = board.grid;
    const Place place{grid.CurrentRow(), grid.CurrentColumn()};
    cell = "\n" + Tr("%1: %2", NameOf(place), grid.Text(place.Row, place.Column));
  }
  ShowText(StateOf(board), cell);
}

void StateLine::Show(const Walk& walk) {
  ShowText(StateOf(walk), {});
}

/// Sets the text of the line, and a longer one for its tool-tip.
void StateLine::ShowText(const std::string& told, const QString& more) {
  const QString state = QString::fromStdString(told);
  setToolTip(state + more);
  if (state == state_) return;
  state_ = state;
  Cut();
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

QSize StateLine::sizeHint() const {
  int free = kWidth * fontMetrics().height();
  if (const auto* bar = qobject_cast<const QMenuBar*>(parentWidget())) {
    QString titles;
    for (const QAction* menu : bar->actions())
      titles += menu->text().remove('&');
    const auto menus = static_cast<int>(bar->actions().size()) * PixelsOf(kAroundMenu);
    const int taken = PixelsOf(kAroundMenus) + menus + bar->fontMetrics().horizontalAdvance(titles);
    free = std::clamp(bar->width() - taken, 0, free);
  }
  return {free, fontMetrics().height() + PixelsOf(kAroundMenus) / 2};
}

void StateLine::ShowBriefly(const std::string& text) {
  const QString brief = QString::fromStdString(text);
  setText(fontMetrics().elidedText(brief, Qt::ElideRight, contentsRect().width()));
  brief_.start();
  if (!QAccessible::isActive()) return;
  setAccessibleName(brief);
  QAccessibleEvent event(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void StateLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Cut();
}

/// Shows the state, as much as there is room for.
void StateLine::Cut() {
  brief_.stop();
  setAccessibleName(state_);
  setText(fontMetrics().elidedText(state_, Qt::ElideRight, contentsRect().width()));
}

}  // namespace numorra
