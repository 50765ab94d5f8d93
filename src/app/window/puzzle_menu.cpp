#include <QMenu>

#include "app/play/fill_gaps.h"
#include "app/window/main_window.h"
#include "toolkit/menus.h"

namespace numorra {

void MainWindow::BuildPuzzleMenu() {
  QMenu* menu = AddMenu(menuBar(), "&Puzzle", {{"FillGapsx", "&Fill Gaps", {}, [this] {
                                                  RunOnCurrentCell("Fill Gaps", [this] {
                                                    searchStage_.ShowCount("Filling the gaps");
                                                    FillGaps(board_, LimitToNine(), dialogs_,
                                                             searchStage_, random_);
                                                  });
                                                }}});
  needBoard_ += menu->actions();
  connect(searchBar_->Stop, &QPushButton::clicked, this, [this] { runner_.Run("Stop", [] {}); });
}

}  // namespace numorra
