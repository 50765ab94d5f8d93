#pragma once

#include <QMainWindow>

#include "app/window/menus/desk.h"
#include "app/window/panels/panel_room.h"
#include "app/window/panels/step_panel.h"

namespace numorra {

/// The Study menu: related squares, special and famous ones, and walks through constructions.
class StudyMenu : public QObject {
  Q_OBJECT

 public:
  StudyMenu(QMainWindow* window, Desk& desk, PanelRoom& room);

 private:
  void AddRelatives(QMenu* menu);
  void OfferRelatives();
  void AddSquares(QMenu* menu);
  void AddWalk(QMenu* menu, QMainWindow* window);
  void FollowSteps();
  void ShowState();

  Desk& desk_;
  PanelRoom& room_;
  QList<QAction*> needBoard_;
  QMenu* relatives_ = nullptr;
  StepPanel* steps_;
  QAction* shown_;
};

}  // namespace numorra
