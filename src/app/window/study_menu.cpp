#include <QMenu>

#include "app/play/study_commands.h"
#include "app/window/main_window.h"
#include "study/report.h"
#include "toolkit/menus.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"

namespace numorra {

/// What a square is, and what leads from it to others.
void MainWindow::BuildStudyMenu() {
  const auto onBoard = [this](const char* name, auto body) {
    return [this, name, body] { RunOnCurrentCell(name, body); };
  };
  QMenu* menu =
      AddMenu(menuBar(), "Stud&y",
              {{"Varyx",
                "&Vary",
                {Qt::CTRL | Qt::Key_R},
                onBoard("Vary", [this] { VaryBoard(board_, dialogs_, random_); })},
               {"Complementx",
                "&Complement",
                {},
                onBoard("Complement", [this] { ComplementBoard(board_, *square_, dialogs_); })},
               {"StandardFormx",
                "&Standard Form",
                {},
                onBoard("Standard Form", [this] { BringToStandardForm(board_, dialogs_); })},
               {}});
  needBoard_ += menu->actions().first(3);
  const auto add = [this](QMenu* to, const auto& square, auto layOut) {
    QAction* item = Named(square.Name, to->addAction(square.Caption));
    connect(item, &QAction::triggered, this, [this, &square, layOut] {
      runner_.Run(QString(square.Caption).remove('&').toStdString(), [this, &square, layOut] {
        if (layOut(square)) ShowLaidOut();
      });
    });
    return item;
  };
  QMenu* special = Named("Specialx", menu->addMenu("S&pecial"));
  for (const SpecialKind& kind : kSpecialKinds) {
    add(special, kind, [this](const SpecialKind& chosen) {
      return LayOutSpecial(chosen, board_, *square_, dialogs_, random_);
    });
  }
  QMenu* famous = Named("Famousx", menu->addMenu("&Famous"));
  famous->setToolTipsVisible(true);
  for (const FamousSquare& square : FamousSquares()) {
    add(famous, square, [this](const FamousSquare& chosen) {
      LayOutFamous(chosen, board_, *square_);
      return true;
    })->setToolTip(square.Story);
  }
  menu->addSeparator();
  QAction* walk = Named("StepByStepx", menu->addAction("Step &by Step"));
  walk->setCheckable(true);
  connect(walk, &QAction::triggered, this,
          [this](bool on) { runner_.RunBeside([this, on] { stepPanel_->setVisible(on); }); });
}

/// The walk stands in the board's place while its panel is open; the board behind it stays.
/// Whatever shows the board, or acts on it, ends it.
void MainWindow::BuildStepPanel() {
  stepPanel_ = new StepPanel(place_->Walk, runner_, this);
  addDockWidget(Qt::BottomDockWidgetArea, stepPanel_);
  stepPanel_->hide();
  OnSignal(runner_, stepPanel_, &QDockWidget::visibilityChanged, this, [this] { FollowSteps(); });
  OnSignal(runner_, stepPanel_, &StepPanel::StepShown, this, [this] { ShowStateLine(); });
  watch_.Tell([this](const Deed& deed) {
    if (deed.ChangedTheBoard()) stepPanel_->hide();
  });
}

/// When the panel has come or gone.
void MainWindow::FollowSteps() {
  const bool shown = !stepPanel_->isHidden();
  room_->Follow(stepPanel_);
  findChild<QAction*>("StepByStepx")->setChecked(shown);
  if (shown == place_->Walking()) return;
  if (shown) {
    const auto square = SquareOn(board_);
    place_->ShowWalk();
    stepPanel_->Begin(board_.GridSize, square ? square->Numbers() : std::vector<double>());
  } else {
    place_->ShowBoard();
    ShowStateLine();
  }
}

/// The panel beside the board.
void MainWindow::BuildPropertiesPanel() {
  properties_ = new PropertiesPanel(runner_, this);
  addDockWidget(Qt::RightDockWidgetArea, properties_);
  properties_->hide();
  OnSignal(runner_, properties_, &PropertiesPanel::EvidenceChosen, this,
           [this](const std::vector<Place>& cells) { place_->PointAt(cells); });
  OnSignal(runner_, properties_, &QDockWidget::visibilityChanged, this,
           [this] { FollowProperties(); });
  watch_.Tell([this](const Deed& deed) {
    studied_ = studied_ && !deed.ChangedTheBoard();
    StudyBoard();
  });
}

/// When the panel has come or gone.
void MainWindow::FollowProperties() {
  const bool shown = !properties_->isHidden();
  findChild<QAction*>("Propertiesx")->setChecked(shown);
  room_->Follow(properties_);
  if (shown) {
    StudyBoard();
  } else {
    studied_ = false;
    if (place_->RemarkBar->isHidden()) board_.grid.SetOutlined({});
  }
}

/// What the panel shows is what stands on the board.
void MainWindow::StudyBoard() {
  if (studied_ || properties_->isHidden()) return;
  studied_ = true;
  if (auto square = SquareOn(board_)) {
    properties_->Show(Study(std::move(*square)));
  } else {
    properties_->ShowNone(board_.Shown() ? "The board has empty cells: what it is can be told "
                                           "when it is full."
                                         : "There is no board to study.");
  }
}

}  // namespace numorra
