#include "app/window/menus/study_menu.h"

#include <algorithm>
#include <utility>

#include <QMenuBar>

#include "app/play/study_commands.h"
#include "toolkit/menus.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"

namespace numorra {

StudyMenu::StudyMenu(QMainWindow* window, Desk& desk, PanelRoom& room)
    : QObject(window),
      desk_(desk),
      room_(room),
      steps_(new StepPanel(desk.Place.Walk, desk.Runner, window)) {
  QMenu* menu = window->menuBar()->addMenu("Stud&y");
  AddRelatives(menu);
  menu->addSeparator();
  AddSquares(menu);
  menu->addSeparator();
  AddWalk(menu, window);
  desk_.TheSession.Watch.Listen([this](const CommandResult& result) {
    if (result.ChangedTheBoard()) desk_.Place.EndWalk();
    ShowState();
  });
  ShowState();
}

void StudyMenu::ShowState() {
  for (QAction* item : needBoard_)
    item->setEnabled(desk_.TheBoard().Shown());
}

void StudyMenu::AddRelatives(QMenu* menu) {
  Session& session = desk_.TheSession;
  const auto add = [&](const char* name, const char* caption, const QList<QKeySequence>& keys,
                       const char* command, CommandRunner::Command act) {
    needBoard_ += AddItem(menu, {name, caption, keys, [this, command, act = std::move(act)] {
                                   desk_.RunOnCurrentCell(command, act);
                                 }});
  };
  add("Varyx", "&Vary", {Qt::CTRL | Qt::Key_R}, "Vary", [&session] { session.Vary(); });
  add("Complementx", "&Complement", {}, "Complement", [&session] { session.Complement(); });
  add("StandardFormx", "&Standard Form", {}, "Standard Form",
      [&session] { session.BringToStandardForm(); });
  relatives_ = Named("Relativesx", menu->addMenu("&Relatives"));
  relatives_->setToolTipsVisible(true);
  for (const Relative& relative : kRelatives) {
    const std::string command = QString(relative.Caption).remove('&').toStdString();
    AddItem(relatives_, {relative.Name,
                         relative.Caption,
                         {},
                         [this, command, &relative] {
                           desk_.RunOnCurrentCell(command, [this, &relative] {
                             desk_.TheSession.ShowRelative(relative);
                           });
                         }})
        ->setToolTip(relative.Keeps);
  }
  needBoard_ += relatives_->menuAction();
  OnSignal(desk_.Runner, relatives_, &QMenu::aboutToShow, this, [this] { OfferRelatives(); });
}

/// Enables the relatives that keep what the board's square is.
void StudyMenu::OfferRelatives() {
  const auto offered = desk_.TheSession.RelativesOfBoard();
  for (QAction* item : relatives_->actions()) {
    item->setEnabled(std::any_of(offered.begin(), offered.end(), [&](const Relative* relative) {
      return item->objectName() == relative->Name;
    }));
  }
}

void StudyMenu::AddSquares(QMenu* menu) {
  const auto add = [this](QMenu* to, const auto& square, auto layOut) {
    return AddItem(to, {square.Name, square.Caption, {}, [this, &square, layOut] {
                          desk_.Runner.Run(QString(square.Caption).remove('&').toStdString(),
                                           [this, &square, layOut] {
                                             if (layOut(square)) desk_.ShowLaidOut();
                                           });
                        }});
  };
  QMenu* special = Named("Specialx", menu->addMenu("S&pecial"));
  for (const SpecialKind& kind : kSpecialKinds) {
    add(special, kind,
        [this](const SpecialKind& chosen) { return desk_.TheSession.LayOutSpecial(chosen); });
  }
  QMenu* construct = Named("Constructx", menu->addMenu("C&onstruct"));
  construct->setToolTipsVisible(true);
  for (const Construction* const construction : kConstructions) {
    add(construct, *construction, [this](const Construction& chosen) {
      return desk_.TheSession.LayOutConstruction(chosen);
    })->setToolTip(construction->Source);
  }
  QMenu* famous = Named("Famousx", menu->addMenu("&Famous"));
  famous->setToolTipsVisible(true);
  for (const FamousSquare& square : FamousSquares()) {
    add(famous, square, [this](const FamousSquare& chosen) {
      desk_.TheSession.LayOutFamous(chosen);
      return true;
    })->setToolTip(square.Story);
  }
}

/// Shows a walk in the board's place while its panel is open; the board does not change. Any
/// command that shows the board, or acts on it, ends the walk.
void StudyMenu::AddWalk(QMenu* menu, QMainWindow* window) {
  shown_ = AddItem(menu, {"StepByStepx",
                          "Step &by Step",
                          {},
                          desk_.Beside([this] { steps_->setVisible(shown_->isChecked()); }),
                          true});
  window->addDockWidget(Qt::BottomDockWidgetArea, steps_);
  steps_->hide();
  OnSignal(desk_.Runner, steps_, &QDockWidget::visibilityChanged, this, [this] { FollowSteps(); });
  OnSignal(desk_.Runner, &desk_.Place, &BoardPlace::SightChanged, this, [this] {
    if (!desk_.Place.Walking()) steps_->hide();
  });
}

/// Called when the panel was opened or closed.
void StudyMenu::FollowSteps() {
  const bool shown = !steps_->isHidden();
  room_.Follow(steps_);
  shown_->setChecked(shown);
  if (!shown) return desk_.Place.EndWalk();
  if (desk_.Place.Walking()) return;
  const auto square = SquareOn(desk_.TheBoard());
  desk_.Place.ShowWalk();
  steps_->Begin(square ? square->Numbers() : Square<double>());
}

}  // namespace numorra
