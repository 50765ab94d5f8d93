#include "app/window/board/board_bar.h"

#include <QAccessible>
#include <QHBoxLayout>

#include "toolkit/named.h"

namespace numorra {

BoardBar::BoardBar(const char* name, const char* buttonName, const char* buttonText)
    : Button(Named(buttonName, new QPushButton(buttonText))), text_(new QLabel) {
  setObjectName(name);
  setFrameShape(QFrame::StyledPanel);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  Button->setToolTip("Esc");
  text_->setWordWrap(true);
  text_->setTextFormat(Qt::PlainText);
  auto* row = new QHBoxLayout(this);
  row->addWidget(text_, 1);
  row->addWidget(Button);
  hide();
}

void BoardBar::ShowText(const QString& text) {
  const bool news = isHidden() || text != text_->text();
  text_->setText(text);
  setAccessibleName(text);
  show();
  if (!news || !QAccessible::isActive()) return;
  QAccessibleEvent event(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

}  // namespace numorra
