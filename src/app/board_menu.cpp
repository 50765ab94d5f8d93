#include "app/board_menu.h"

#include "app/named.h"

namespace numorra {

BoardMenu::BoardMenu(QWidget* parent)
    : QMenu(parent),
      redox(Named("redox", new QAction(this))),
      setValue_(addMenu("Set value to")),
      adjustValue_(addMenu("Adjust value to")) {
  setObjectName("ManualMenux");
  Named("SetValuex", setValue_->menuAction());
  AddCommand(setValue_, "Set2Cellvaluex", RedoCode::SetValue);
  AddCommand(setValue_, "Set2Max", RedoCode::MaximumValue);
  AddCommand(setValue_, "set2Min", RedoCode::MinimumValue);
  AddCommand(setValue_, "set2Ran", RedoCode::RandomValue);
  AddCommand(setValue_, "Set2allran", RedoCode::WholeBoardRandom);
  AddItem(setValue_, "SetAllRem", "all other values to", OnSetAllRem);
  Named("Adjustvaluex", adjustValue_->menuAction());
  AddCommand(adjustValue_, "correctrowx", RedoCode::CorrectRow);
  AddCommand(adjustValue_, "correctcolx", RedoCode::CorrectColumn);
  AddCommand(adjustValue_, "correctdiagx", RedoCode::CorrectDiagonal);
  AddItem(this, "swapvaluex", "Swap value", OnSwapValue);
  addSeparator();
  AddCommand(this, "flipvx", RedoCode::FlipVertical);
  AddCommand(this, "fliphx", RedoCode::FlipHorizontal);
  AddCommand(this, "flipd1x", RedoCode::FlipDiagonal1);
  AddCommand(this, "flipd2x", RedoCode::FlipDiagonal2);
  AddCommand(this, "rot90x", RedoCode::Rotate90);
  AddCommand(this, "rot180x", RedoCode::Rotate180);
  AddCommand(this, "rot270x", RedoCode::Rotate270);
  Named("transx", addAction("Transpose"));  // by design without a command
  addSeparator();
  addAction(redox);
  connect(redox, &QAction::triggered, this, [this] { OnRedo(); });
  ShowHistory({});
}

void BoardMenu::AddCommand(QMenu* menu, const char* name, RedoCode code) {
  QAction* action = Named(name, menu->addAction(CaptionOf(code)));
  connect(action, &QAction::triggered, this, [this, code] { OnCommand(code); });
}

void BoardMenu::AddItem(QMenu* menu, const char* name, const char* caption,
                        std::function<void()>& chosen) {
  QAction* action = Named(name, menu->addAction(caption));
  connect(action, &QAction::triggered, this, [&chosen] { chosen(); });
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
