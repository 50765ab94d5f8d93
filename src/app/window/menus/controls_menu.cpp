#include "app/window/menus/controls_menu.h"

#include <QEvent>

#include "toolkit/menus.h"
#include "toolkit/tr.h"

namespace numorra {

ControlsMenu::ControlsMenu(QMenuBar* bar, const ControlColumn& controls) : QObject(bar) {
  QMenu* menu = bar->addMenu(Tr("&Board"));
  const auto add = [&](const char* name, const QKeySequence& key, QPushButton* button,
                       const QString& inMenu = {}) {
    const QString caption = inMenu.isEmpty() ? button->text() : inMenu;
    QAction* item = AddItem(menu, {name, caption, {key}, [button] { button->click(); }});
    item->setEnabled(button->isEnabled());
    button->installEventFilter(this);
    items_[button] = item;
  };
  add("BoardAutox", Qt::Key_F5, controls.Solve->SolveAuto);
  add("BoardAgainx", Qt::SHIFT | Qt::Key_F5, controls.Solve->SolveAgain);
  add("BoardManualx", Qt::Key_F6, controls.Solve->SolveManual);
  menu->addSeparator();
  add("BoardSet4x4x", Qt::SHIFT | Qt::Key_F6, controls.Square->Set4x4);
  add("BoardRandomx", Qt::Key_F7, controls.Square->SolveRandum);
  menu->addSeparator();
  add("BoardDiagonalsx", Qt::CTRL | Qt::Key_D, controls.Corners->DoCor1, Tr("Corner &Diagonals"));
  add("BoardEdgesx", Qt::CTRL | Qt::Key_E, controls.Corners->DoCor2, Tr("Corner Ed&ges"));
  menu->addSeparator();
  add("BoardShowx", Qt::Key_F4, controls.Colours->Command3);
  for (std::size_t kind = 0; kind < kDrawingKinds.size(); ++kind)
    add(kDrawingKinds[kind]->Item, kDrawingKinds[kind]->Key, controls.Draw->Buttons[kind]);
  add("BoardClearx", Qt::SHIFT | Qt::Key_F4, controls.Draw->Command4);
}

bool ControlsMenu::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::EnabledChange) {
    items_[watched]->setEnabled(static_cast<QPushButton*>(watched)->isEnabled());
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace numorra
