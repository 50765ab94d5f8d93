#include "app/window/menus/board_menu.h"

#include "app/board/numbers.h"
#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {

BoardMenu::BoardMenu(QWidget* parent)
    : QMenu(parent),
      redox(Named("redox", new QAction(this))),
      // Translators: the items of this menu go on, such as "a random value".
      setValue_(addMenu(Tr("Set value to"))),
      // Translators: the items of this menu go on, such as "correct row total".
      adjustValue_(addMenu(Tr("Adjust value to"))) {
  setObjectName("ManualMenux");
  Named("SetValuex", setValue_->menuAction());
  Named("Adjustvaluex", adjustValue_->menuAction());
  EditGroup group = EditGroup::Cells;
  for (const EditCommand& command : EditTable()) {
    QMenu* menu = MenuOf(command.Menu);
    if (menu == this && std::exchange(group, command.Menu) != command.Menu) addSeparator();
    QAction* action = Named(command.Name, menu->addAction(Tr(command.Caption)));
    connect(action, &QAction::triggered, this, [this, &command] { Q_EMIT Chosen(&command); });
  }
  Named("transx", addAction(Tr("Transpose")));  // does nothing, by design
  addSeparator();
  addAction(redox);
  connect(redox, &QAction::triggered, this, &BoardMenu::RedoChosen);
  ShowHistory({});
}

QMenu* BoardMenu::MenuOf(EditGroup place) {
  switch (place) {
    case EditGroup::SetValue:
      return setValue_;
    case EditGroup::AdjustValue:
      return adjustValue_;
    case EditGroup::Cells:
    case EditGroup::Symmetries:
      break;
  }
  return this;
}

void BoardMenu::ShowHistory(const CommandHistory& history) {
  redox->setProperty("tag", QString::fromStdString(history.Tag));
  redox->setText(QString::fromStdString(history.Caption));
}

void BoardMenu::ShowBaseValue(double value) {
  const EditCommand& others = *FindEdit(std::string("SetAllRem"));
  setValue_->actions().first()->setText(QString::fromStdString(Str(value)));
  setValue_->actions().last()->setText(QString::fromStdString(WordsFor(others, value)));
}

void BoardMenu::EnableEditing(bool enabled) {
  setValue_->menuAction()->setEnabled(enabled);
  adjustValue_->menuAction()->setEnabled(enabled);
}

}  // namespace numorra
