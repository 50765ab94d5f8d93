#include "app/window/board_bar.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>

#include "toolkit/named.h"

namespace numorra {

BoardBar::BoardBar(QWidget* over, const char* name, const char* buttonName, const char* buttonText)
    : QFrame(over), Button(Named(buttonName, new QPushButton(buttonText))), text_(new QLabel) {
  setObjectName(name);
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  Button->setToolTip("Esc");
  text_->setWordWrap(true);
  text_->setTextFormat(Qt::PlainText);
  auto* row = new QHBoxLayout(this);
  row->addWidget(text_, 1);
  row->addWidget(Button);
  hide();
  over->installEventFilter(this);
}

void BoardBar::ShowText(const QString& text, bool atTop) {
  const bool news = isHidden() || text != text_->text();
  atTop_ = atTop;
  text_->setText(text);
  setAccessibleName(text);
  Place();
  show();
  raise();
  if (!news || !QAccessible::isActive()) return;
  QAccessibleEvent event(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

bool BoardBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Place();
  return QFrame::eventFilter(watched, event);
}

void BoardBar::Place() {
  const QRect over = parentWidget()->contentsRect();
  const int height = layout()->heightForWidth(over.width());
  setGeometry(over.left(), atTop_ ? over.top() : over.bottom() + 1 - height, over.width(), height);
}

}  // namespace numorra
