#include "app/window/menus/board_menu.h"

#include "toolkit/named.h"

namespace numorra {

BoardMenu::BoardMenu(QWidget* parent)
    : QMenu(parent),
      redox(Named("redox", new QAction(this))),
      setValue_(addMenu("Set value to")),
      adjustValue_(addMenu("Adjust value to")) {
  setObjectName("ManualMenux");
  Named("SetValuex", setValue_->menuAction());
  Named("Adjustvaluex", adjustValue_->menuAction());
  EditGroup group = EditGroup::Cells;
  for (const EditCommand& command : EditTable()) {
    QMenu* menu = MenuOf(command.Menu);
    if (menu == this && std::exchange(group, command.Menu) != command.Menu) addSeparator();
    QAction* action = Named(command.Name, menu->addAction(command.Caption));
    connect(action, &QAction::triggered, this, [this, &command] { Q_EMIT Chosen(&command); });
  }
  Named("transx", addAction("Transpose"));  // does nothing, by design
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

void BoardMenu::ShowBaseValue(const std::string& value) {
  const QString text = QString::fromStdString(value);
  setValue_->actions().first()->setText(text);
  setValue_->actions().last()->setText("all other values to" + text);
}

void BoardMenu::EnableEditing(bool enabled) {
  setValue_->menuAction()->setEnabled(enabled);
  adjustValue_->menuAction()->setEnabled(enabled);
}

}  // namespace numorra
