#pragma once

#include <functional>

#include <QMenuBar>

#include "app/window/board/search_stage.h"
#include "app/window/menus/desk.h"
#include "print/page_printer.h"

namespace numorra {

/// The Puzzle menu: makes boards with gaps, helps to solve them, and fills them.
class PuzzleMenu : public QObject {
  Q_OBJECT

 public:
  /// `state`: the state line, which offers the puzzle's code.
  PuzzleMenu(QMenuBar* bar, Desk& desk, SearchStage& stage, const WorksheetForm::Ports& sheets,
             QWidget* state);

 private:
  void OpenHideNumbers();
  void OpenEnterCode();
  void CopyCode();

  /// Runs a command and shows its remark; its search replaces an older remark.
  void ShowRemark(const char* name, const char* doing, std::function<Remark()> find);
  void AddFillAs(QMenu* menu);
  void FillGaps(const std::string& name, LineKind kind);
  void ShowState();

  QWidget* window_;
  Desk& desk_;
  SearchStage& stage_;
  WorksheetForm::Ports sheets_;
  QList<QAction*> needBoard_;
};

}  // namespace numorra
