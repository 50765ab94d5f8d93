#include "app/board_menu.h"

#include "app/named.h"

namespace numorra {

BoardMenu::BoardMenu(QWidget* parent) : QMenu(parent), redox(Named("redox", new QAction(this))) {
  setObjectName("ManualMenux");
  AddCommand("flipvx", "Flip vertical", RedoCode::FlipVertical);
  AddCommand("fliphx", "Flip horizontal", RedoCode::FlipHorizontal);
  AddCommand("flipd1x", "Flip diagonal 1", RedoCode::FlipDiagonal1);
  AddCommand("flipd2x", "Flip diagonal 2", RedoCode::FlipDiagonal2);
  AddCommand("rot90x", "Rotate 90d", RedoCode::Rotate90);
  AddCommand("rot180x", "Rotate 180d", RedoCode::Rotate180);
  AddCommand("rot270x", "Rotate 270d", RedoCode::Rotate270);
  Named("transx", addAction("Transpose"));  // by design without a command
  addSeparator();
  addAction(redox);
  connect(redox, &QAction::triggered, this, [this] {
    const int code = redox->property("tag").toString().toInt();
    if (code != 0) OnCommand(static_cast<RedoCode>(code));
  });
  ShowHistory({});
}

void BoardMenu::AddCommand(const char* name, const char* caption, RedoCode code) {
  QAction* action = Named(name, addAction(caption));
  action->setData(static_cast<int>(code));
  connect(action, &QAction::triggered, this, [this, code] { OnCommand(code); });
}

void BoardMenu::ShowHistory(const CommandHistory& history) {
  redox->setProperty("tag", QString::fromStdString(history.Tag));
  redox->setText(QString::fromStdString(history.Caption));
}

std::string BoardMenu::Caption(RedoCode code) const {
  for (const QAction* action : actions()) {
    if (action->data() == static_cast<int>(code)) return action->text().toStdString();
  }
  return {};
}

}  // namespace numorra
