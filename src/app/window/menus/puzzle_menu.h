#pragma once

#include <functional>

#include <QMenuBar>

#include "app/window/board/search_stage.h"
#include "app/window/menus/desk.h"

namespace numorra {

/// The Puzzle menu: boards with gaps are made, solved with help, filled.
class PuzzleMenu : public QObject {
  Q_OBJECT

 public:
  /// `state`: the line that tells of the board, which offers the puzzle's code.
  PuzzleMenu(QMenuBar* bar, Desk& desk, SearchStage& stage, QWidget* state);

 private:
  void OpenHideNumbers();
  void CopyCode();

  /// Runs a command whose remark is shown; a search takes the place of an older one.
  void ShowRemark(const char* name, const char* doing, std::function<Remark()> find);
  void FillGaps();
  void ShowState();

  QWidget* window_;
  Desk& desk_;
  SearchStage& stage_;
  QList<QAction*> needBoard_;
};

}  // namespace numorra
