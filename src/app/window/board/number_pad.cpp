#include "app/window/board/number_pad.h"

#include <algorithm>
#include <cmath>

#include <QGridLayout>
#include <QScreen>
#include <QToolButton>

#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

/// 9 mm in pixels. A screen that reports an absurd size counts as an ordinary or a very fine one.
int KeySideOn(const QScreen& screen) {
  constexpr double kMillimetres = 9;
  constexpr double kMillimetresPerInch = 25.4;
  constexpr double kFinest = 3;
  const double ordinary = screen.logicalDotsPerInch();
  const double dpi = std::clamp(screen.physicalDotsPerInch(), ordinary, kFinest * ordinary);
  return static_cast<int>(std::ceil(kMillimetres / kMillimetresPerInch * dpi));
}

}  // namespace

NumberPad::NumberPad(QWidget* window) : QFrame(window) {
  constexpr double kTextHeight = 0.4;  // of a key
  constexpr char32_t kBackspace = 8;
  setObjectName("NumberPad");
  setLayoutDirection(Qt::LeftToRight);
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  const int side = KeySideOn(*window->screen());
  QFont letters = font();
  letters.setPixelSize(static_cast<int>(kTextHeight * side));
  setFont(letters);
  auto* keys = new QGridLayout(this);
  keys->setContentsMargins(2, 2, 2, 2);
  keys->setSpacing(2);
  const auto add = [&](const QString& name, const QString& text, int row, int column) {
    auto* key = Named(("Pad" + name).toUtf8(), new QToolButton);
    key->setText(text);
    key->setFocusPolicy(Qt::NoFocus);
    key->setMinimumSize(side, side);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    keys->addWidget(key, row, column);
    return key;
  };
  for (int digit = 0; digit <= 9; ++digit) {
    const int place = digit == 0 ? 10 : digit - 1;
    const QString text = QString::number(digit);
    connect(add(text, text, place / 3, place % 3), &QToolButton::clicked, this,
            [this, digit] { Q_EMIT Typed(U'0' + static_cast<char32_t>(digit)); });
  }
  auto* back = add("Backspace", QString(QChar(0x2190)), 3, 0);
  back->setAccessibleName(Tr("Backspace"));
  connect(back, &QToolButton::clicked, this, [this] { Q_EMIT Typed(kBackspace); });
  const auto* done = add("Done", Tr("Done"), 3, 2);
  connect(done, &QToolButton::clicked, this, &NumberPad::Done);
  for (int column = 0; column < keys->columnCount(); ++column)
    keys->setColumnMinimumWidth(column, done->sizeHint().width());
  hide();
}

/// On its right if there is room, otherwise on its left.
void NumberPad::ShowBeside(const QRect& cell) {
  const QSize size = sizeHint();
  const QRect room = parentWidget()->rect();
  const bool right = cell.right() + size.width() < room.width();
  const int x = right ? cell.right() + 1 : std::max(0, cell.left() - size.width());
  const int y = std::clamp(cell.top(), 0, std::max(0, room.height() - size.height()));
  setGeometry({{x, y}, size});
  show();
  raise();
}

}  // namespace numorra
