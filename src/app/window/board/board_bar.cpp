#include "app/window/board/board_bar.h"

#include <QAccessible>
#include <QKeySequence>

#include "toolkit/named.h"

namespace numorra {

BoardBar::BoardBar(const char* name, const char* buttonName, const QString& buttonText)
    : Button(Named(buttonName, new QPushButton(buttonText))),
      row_(new QHBoxLayout(this)),
      text_(new QLabel) {
  setObjectName(name);
  setFrameShape(QFrame::StyledPanel);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  Button->setToolTip(QKeySequence(Qt::Key_Escape).toString(QKeySequence::NativeText));
  text_->setWordWrap(true);
  text_->setTextFormat(Qt::PlainText);
  row_->addWidget(text_, 1);
  row_->addWidget(Button);
  hide();
}

QPushButton* BoardBar::AddButton(const char* name, const QString& text, const char* key) {
  auto* button = Named(name, new QPushButton(text));
  button->setShortcut(QKeySequence(key));
  button->setToolTip(button->shortcut().toString(QKeySequence::NativeText));
  row_->insertWidget(row_->count() - 1, button);
  button->hide();
  return button;
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
