#include "app/window/menus/view_menu.h"

#include <QMenuBar>
#include <QShortcut>

#include "app/play/study_commands.h"
#include "toolkit/menus.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {

ViewMenu::ViewMenu(QMainWindow* window, Desk& desk, QWidget* state, const KeptFolders& folders)
    : QObject(window), desk_(desk), properties_(new PropertiesPanel(desk.Runner, window)) {
  const QList<QKeySequence> none;
  QMenu* menu = window->menuBar()->addMenu(Tr("&View"));
  const auto zoom = [this](int direction) {
    return desk_.Beside([this, direction] { size_->Zoom(direction); });
  };
  AddItem(
      menu,
      {"ZoomInx", Tr("Zoom &In"), {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, zoom(1)});
  AddItem(menu, {"ZoomOutx", Tr("Zoom &Out"), {Qt::CTRL | Qt::Key_Minus}, zoom(-1)});
  AddItem(menu, {"NormalSizex", Tr("&Normal Size"), {Qt::CTRL | Qt::Key_0}, zoom(0)});
  QAction* fit = AddItem(menu, {"FitBoardx", Tr("&Fit Board"), none,
                                desk_.Beside([this] { size_->ToggleFitting(); }), true});
  QAction* full = AddItem(menu, {"FullScreenx",
                                 Tr("Full &Screen"),
                                 {Qt::Key_F11},
                                 desk_.Beside([this] { size_->ToggleFullScreen(); }),
                                 true});
  AddItem(menu, {"Maximx", Tr("&Maximize"), none, desk_.Beside([window] {
                   window->move(0, 0);
                   window->showMaximized();
                 })});
  menu->addSeparator();
  AddItem(menu, {kDigits.Item, Tr(kDigits.Caption), none, [this] { desk_.Draw(kDigits); }});
  numbers_ = AddItem(menu, {"DrawingNumbersx", Tr("Numbers in &Drawings"), none, [] {}, true});
  OnSignal(desk_.Runner, numbers_, &QAction::toggled, this,
           [this](bool on) { desk_.Place.Picture->SetNumbers(on); });
  quiet_ = AddItem(menu, {"QuietTotalsx", Tr("&Quiet Totals"), none, [] {}, true});
  OnSignal(desk_.Runner, quiet_, &QAction::toggled, this, [this](bool on) {
    desk_.Runner.Run(Say("Quiet Totals"), [this, on] { desk_.TheSession.SetQuietTotals(on); });
  });
  pad_ = new NumberPadItem(menu, desk_);
  shown_ =
      AddItem(menu, {"Propertiesx",
                     Tr("&Properties"),
                     {Qt::CTRL | Qt::Key_I},
                     desk_.Beside([this] { properties_->setVisible(properties_->isHidden()); }),
                     true});
  kept_ = new KeepItems(
      menu, desk_, folders,
      {[this] { return Choices(); }, [this](const ViewChoices& choices) { Choose(choices); }});

  window->addDockWidget(Qt::RightDockWidgetArea, properties_);
  properties_->hide();
  size_ = new ViewControl(window, &desk_.Place, {&desk_.Controls, properties_}, state, fit, full);
  room_ = new PanelRoom(window);  // created later, so that it sees a new state first
  OnSignal(desk_.Runner, properties_, &PropertiesPanel::EvidenceChosen, this,
           [this](const std::vector<Place>& cells) { desk_.Place.PointAt(cells); });
  OnSignal(desk_.Runner, properties_, &QDockWidget::visibilityChanged, this,
           [this] { FollowProperties(); });
  desk_.TheSession.Watch.Listen([this](const CommandResult& result) {
    studied_ = studied_ && !result.ChangedTheBoard();
    StudyBoard();
  });
  for (GridView* cells : std::initializer_list<GridView*>{desk_.Place.View, desk_.Place.Walk}) {
    OnSignal(desk_.Runner, cells, &GridView::ZoomWanted, this,
             [this](int direction, QPoint at) { size_->Zoom(direction, at); });
  }
  auto* escape = new QShortcut(Qt::Key_Escape, window);
  OnSignal(desk_.Runner, escape, &QShortcut::activated, this, [this] { Escape(); });
}

ViewChoices ViewMenu::Choices() const {
  const auto [zoom, fitting] = size_->OwnSize();
  return {zoom,
          fitting,
          size_->OwnShown(properties_),
          numbers_->isChecked(),
          quiet_->isChecked(),
          pad_->Item->isChecked()};
}

void ViewMenu::Choose(const ViewChoices& choices) {
  size_->SetOwnSize({choices.Zoom, choices.Fitting});
  properties_->setVisible(choices.Properties);
  numbers_->setChecked(choices.DrawingNumbers);
  quiet_->setChecked(choices.QuietTotals);
  pad_->Item->setChecked(choices.NumberPad);
}

/// Esc ends the most recent of a search, a remark and the full screen.
void ViewMenu::Escape() {
  if (!desk_.Place.DismissBar() && size_->FullScreen()) size_->ToggleFullScreen();
}

/// Called when the panel was opened or closed.
void ViewMenu::FollowProperties() {
  const bool shown = !properties_->isHidden();
  shown_->setChecked(shown);
  room_->Follow(properties_);
  if (shown) {
    StudyBoard();
  } else {
    studied_ = false;
    desk_.Place.PointAtNothing();
  }
}

/// The panel shows the properties of the square on the board.
void ViewMenu::StudyBoard() {
  if (studied_ || properties_->isHidden()) return;
  studied_ = true;
  if (auto square = SquareOn(desk_.TheBoard())) {
    properties_->Show(Study(std::move(*square)));
  } else {
    properties_->ShowNone(desk_.TheBoard().Shown()
                              ? Tr("The board has empty cells: fill them to see its properties.")
                              : Tr("There is no board to study."));
  }
}

}  // namespace numorra
