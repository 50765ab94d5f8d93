#include "app/window/menus/study_menu.h"

#include <algorithm>
#include <utility>

#include <QMenuBar>

#include "app/play/study_commands.h"
#include "toolkit/menus.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {

StudyMenu::StudyMenu(QMainWindow* window, Desk& desk, PanelRoom& room)
    : QObject(window),
      desk_(desk),
      room_(room),
      steps_(new StepPanel(desk.Place.Walk, desk.Runner, window)) {
  QMenu* menu = window->menuBar()->addMenu(Tr("Stud&y"));
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
  const auto add = [&](const char* name, const QString& caption, const QList<QKeySequence>& keys,
                       CommandRunner::Command act) {
    needBoard_ += AddItem(menu, {name, caption, keys, [this, caption, act = std::move(act)] {
                                   desk_.RunOnCurrentCell(WithoutMnemonic(caption), act);
                                 }});
  };
  add("Varyx", Tr("&Vary"), {Qt::CTRL | Qt::Key_R}, [&session] { session.Vary(); });
  add("Complementx", Tr("&Complement"), {}, [&session] { session.Complement(); });
  add("StandardFormx", Tr("&Standard Form"), {}, [&session] { session.BringToStandardForm(); });
  relatives_ = Named("Relativesx", menu->addMenu(Tr("&Relatives")));
  relatives_->setToolTipsVisible(true);
  for (const Relative& relative : kRelatives) {
    const QString caption = Tr(relative.Caption);
    AddItem(relatives_, {relative.Name,
                         caption,
                         {},
                         [this, caption, &relative] {
                           desk_.RunOnCurrentCell(WithoutMnemonic(caption), [this, &relative] {
                             desk_.TheSession.ShowRelative(relative);
                           });
                         }})
        ->setToolTip(Tr(relative.Keeps));
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
    const QString caption = Tr(square.Caption);
    return AddItem(to, {square.Name, caption, {}, [this, caption, &square, layOut] {
                          desk_.Runner.Run(WithoutMnemonic(caption), [this, &square, layOut] {
                            if (layOut(square)) desk_.ShowLaidOut();
                          });
                        }});
  };
  QMenu* special = Named("Specialx", menu->addMenu(Tr("S&pecial")));
  for (const SpecialKind& kind : kSpecialKinds) {
    add(special, kind,
        [this](const SpecialKind& chosen) { return desk_.TheSession.LayOutSpecial(chosen); });
  }
  QMenu* construct = Named("Constructx", menu->addMenu(Tr("C&onstruct")));
  construct->setToolTipsVisible(true);
  for (const Construction* const construction : kConstructions) {
    add(construct, *construction, [this](const Construction& chosen) {
      return desk_.TheSession.LayOutConstruction(chosen);
    })->setToolTip(Tr(construction->Source));
  }
  QMenu* famous = Named("Famousx", menu->addMenu(Tr("&Famous")));
  famous->setToolTipsVisible(true);
  for (const FamousSquare& square : FamousSquares()) {
    add(famous, square, [this](const FamousSquare& chosen) {
      desk_.TheSession.LayOutFamous(chosen);
      return true;
    })->setToolTip(Tr(square.Story));
  }
}

/// Shows a walk in the board's place while its panel is open; the board does not change. Any
/// command that shows the board, or acts on it, ends the walk.
void StudyMenu::AddWalk(QMenu* menu, QMainWindow* window) {
  shown_ = AddItem(menu, {"StepByStepx",
                          Tr("Step &by Step"),
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
