#include "app/window/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>

#include "app/window/menus/board_input.h"
#include "app/window/menus/control_commands.h"
#include "app/window/menus/controls_menu.h"
#include "app/window/menus/edit_menu.h"
#include "app/window/menus/puzzle_menu.h"
#include "app/window/menus/study_menu.h"
#include "help/about_window.h"
#include "help/help_window.h"
#include "toolkit/menus.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"
#include "toolkit/twips.h"

namespace numorra {
namespace {

// Distances in twips.
constexpr int kGap = 30;           // left of the column of frames, and right of it
constexpr int kInside = 90;        // around and between a frame's controls
constexpr int kOuterMargin = 120;  // right of the board's frame and below it

/// Room for the largest proposal, a board of order 14, if the screen has it.
constexpr double kShareOfScreen = 0.95;
constexpr QSize kOpeningSize(740, 700);

}  // namespace

MainWindow::MainWindow(Session& session, const World& world)
    : session_(session),
      world_(world, this),
      runner_(world_.TheDialogs, world.FrameMilliseconds),
      controls_(new ControlColumn(PixelsOf(kGap), PixelsOf(kInside))),
      place_(new BoardPlace(session.TheBoard)),
      menu_(new BoardMenu(this)),
      state_(new StateLine),
      stage_(*controls_->Solve, runner_),
      searchStage_(*place_, runner_),
      desk_{session_, runner_, world_.TheDialogs, stage_, *controls_, *place_, *menu_} {
  setObjectName("Form1");
  setAcceptDrops(true);
  setWindowTitle(kApplicationTitle);
  Arrange();
  ConnectSession();
  new ControlCommands(desk_, this);
  new BoardInput(desk_, *state_, this);
  AddMenus(world.Kept);
  session_.Start();
  desk_.ShowMode();
  resize(kOpeningSize.boundedTo(screen()->availableSize() * kShareOfScreen));
  view_->Kept().BringBack();
}

MainWindow::~MainWindow() {
  view_->Kept().Save();  // a command that ran when the window was closed has ended
  session_.Disconnect();
  for (QDockWidget* panel : findChildren<QDockWidget*>())
    panel->disconnect();
}

void MainWindow::BeginBoard() {
  controls_->Solve->SolveAuto->click();
}

/// A square of order 4 whose numbers the player hides, as the menus have it.
void MainWindow::BeginPuzzle() {
  controls_->Square->SetSize("4");
  BeginBoard();
  findChild<QAction*>("HideNumbersx")->trigger();
}

void MainWindow::Arrange() {
  auto* centre = new QWidget;
  setCentralWidget(centre);
  auto* columns = new QHBoxLayout(centre);
  const int gap = PixelsOf(kGap);
  const int margin = PixelsOf(kOuterMargin);
  columns->setContentsMargins(gap, gap, margin, margin);
  columns->setSpacing(gap);
  columns->addWidget(controls_);
  columns->addWidget(place_, 1);
}

void MainWindow::ConnectSession() {
  session_.Connect({*controls_->Square, *controls_, world_.TheDialogs, stage_, searchStage_});
  runner_.OnBegin = [this] { session_.BeginCommand(); };
  runner_.OnEnd = [this](const std::string& name) { session_.EndCommand(name); };
  session_.Watch.Listen([this](const CommandResult&) { ShowState(); });
  session_.TheBoard.OnShown = [this] { place_->ShowBoard(); };
  world_.Boxes.BeforeBox = [this] { ShowStateLine(); };
  OnSignal(runner_, place_, &BoardPlace::SightChanged, this, [this] { ShowStateLine(); });
  OnSignal(runner_, place_->Walk, &WalkView::StepShown, this, [this] { ShowStateLine(); });
}

void MainWindow::AddMenus(const KeptFolders& folders) {
  files_ = new FileMenu(menuBar(), desk_, {world_.Files, world_.Printer, world_.Pages});
  new EditMenu(menuBar(), desk_);
  view_ = new ViewMenu(this, desk_, state_, folders);
  new ControlsMenu(menuBar(), *controls_);
  new StudyMenu(this, desk_, view_->Room());
  new PuzzleMenu(menuBar(), desk_, searchStage_, {world_.Pages, world_.Files}, state_);
  QMenu* help = menuBar()->addMenu(Tr("&Help"));
  AddItem(help, {"Helpx", Tr("&Help"), QKeySequence::keyBindings(QKeySequence::HelpContents),
                 desk_.Beside([this] {
                   (new HelpForm(QCoreApplication::applicationDirPath(), this))->open();
                 })});
  AddItem(help,
          {"Aboutx", Tr("&About"), {}, desk_.Beside([this] { (new AboutForm(this))->open(); })});
  menuBar()->setCornerWidget(state_);
}

void MainWindow::ShowState() {
  if (session_.TheBoard.OverlayShown) place_->Picture->update();
  ShowStateLine();
}

/// Screen readers are told what is visible.
void MainWindow::ShowStateLine() {
  if (place_->Walking()) {
    state_->Show(place_->Walk->TheWalk());
  } else {
    state_->Show(session_.TheBoard);
  }
}

/// Opens a single file that is dropped onto the window.
void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return;
  event->setDropAction(Qt::CopyAction);  // the file stays where it is
  event->accept();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->accept();
  files_->Open(event->mimeData()->urls().front().toLocalFile());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  runner_.Abandon();
  view_->Kept().Save();
  event->accept();
}

}  // namespace numorra
