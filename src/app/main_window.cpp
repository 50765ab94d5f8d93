#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>

#include "app/board/numbers.h"
#include "app/named.h"
#include "generate/corner_choice.h"
#include "generate/proposal.h"
#include "transform/symmetry.h"

namespace numorra {
namespace {

/// A distance given in twips (1/1440 inch), in pixels of 1/96 inch.
constexpr int Pixels(int twips) {
  return twips / 15;
}

constexpr int kGap = Pixels(30);      // left of the column of frames, and right of it
constexpr int kMargin = Pixels(120);  // right of the board and below it

/// Room for the largest proposal, a board of order 14.
constexpr QSize kOpeningSize(720, 600);

/// Which symmetry a menu command's code stands for.
Symmetry SymmetryOf(RedoCode code) {
  const int first = static_cast<int>(RedoCode::FlipVertical);
  return static_cast<Symmetry>(static_cast<int>(code) - first);
}

}  // namespace

MainWindow::MainWindow(const World& world)
    : messageBoxes_(this),
      random_(world.TimeOfDay ? *world.TimeOfDay : systemClock_),
      dialogs_(world.Boxes ? *world.Boxes : messageBoxes_),
      runner_(dialogs_, world.FrameMilliseconds),
      solve_(new SolveFrame),
      limit_(new LimitFrame),
      square_(new SquareFrame),
      corners_(new CornersFrame),
      solution_(Named("Frame1", new QGroupBox("Solution"))),
      view_(new GridView(board_.grid)),
      menu_(new BoardMenu(this)),
      stage_(*solve_, runner_),
      List2(random_),
      List3(random_),
      solveCommand_({board_, *square_, *this, dialogs_, stage_, random_, List2, List3}),
      topRowCommand_(board_, *square_, dialogs_, stage_, random_) {
  setObjectName("Form1");
  setWindowTitle(kApplicationTitle);
  LayOut();
  BuildMenus();
  ConnectControls();
  StartUp();
  resize(kOpeningSize);
}

MainWindow::~MainWindow() {
  board_.grid.OnRepaint = nullptr;
}

void MainWindow::LayOut() {
  auto* centre = new QWidget;
  setCentralWidget(centre);
  auto* columns = new QHBoxLayout(centre);
  columns->setContentsMargins(kGap, kGap, kMargin, kMargin);
  columns->setSpacing(kGap);

  auto* frames = new QVBoxLayout;
  for (QGroupBox* frame : std::initializer_list<QGroupBox*>{limit_, solve_, square_, corners_}) {
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    frames->addWidget(frame);
  }
  frames->addStretch();
  columns->addLayout(frames);

  auto* board = new QVBoxLayout(solution_);
  board->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  board->addWidget(view_);
  columns->addWidget(solution_, 1);
}

void MainWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  QAction* exit = Named("Exitx", file->addAction("E&xit"));
  exit->setShortcut(QKeySequence::Quit);
  connect(exit, &QAction::triggered, this, [] { QApplication::closeAllWindows(); });

  QMenu* view = menuBar()->addMenu("&View");
  QAction* maximize = Named("Maximx", view->addAction("&Maximize"));
  connect(maximize, &QAction::triggered, this, [this] {
    move(0, 0);
    showMaximized();
  });
}

void MainWindow::ConnectControls() {
  const auto command = [this](auto* control, auto signal, CommandRunner::Command body) {
    connect(control, signal, this, [this, body = std::move(body)] {
      runner_.Run([this, body] {
        body();
        EnableCommands();
      });
    });
  };
  command(solve_->SolveAuto, &QPushButton::clicked, [this] { solveCommand_.Auto(); });
  command(solve_->SolveAgain, &QPushButton::clicked, [this] { solveCommand_.Again(); });
  command(corners_->Combo1, &CornerBox::Entered, [this] {
    corners_->Combo1->clear();
    OfferCorners(board_, *square_, List2, *corners_);
  });
  command(corners_->DoCor1, &QPushButton::clicked,
          [this] { solveCommand_.SpreadCornerDiagonals(); });
  command(corners_->DoCor2, &QPushButton::clicked, [this] { solveCommand_.SpreadCornerEdges(); });
  command(square_->Set4x4, &QPushButton::clicked, [this] {
    if (topRowCommand_.Run()) SetSolveMode(ModeVariable);
  });
  command(square_->SolveRandum, &QPushButton::clicked,
          [this] { ProposeSquare(*square_, board_.SolveMode, random_); });
  for (const Mode mode : {ModeNormal, ModeVariable}) {
    QRadioButton* option = mode == ModeNormal ? solve_->Option3 : solve_->Option4;
    connect(option, &QRadioButton::toggled, this, [this, mode](bool on) {
      if (on) runner_.Run([this, mode] { SetSolveMode(mode); });
    });
  }
  connect(square_->Text1, &QLineEdit::textChanged, this, [this] { FollowSize(); });
  connect(view_, &GridView::CellPressed, this, &MainWindow::PressCell);
  menu_->OnCommand = [this](RedoCode code) { runner_.Run([this, code] { EditBoard(code); }); };
}

/// What the boxes say before the first proposal replaces it is what the program starts from.
void MainWindow::StartUp() {
  board_.TargetTotal = Val(square_->Sum());
  board_.BaseValue = ToInt16(board_.TargetTotal);
  board_.GridSize = ToInt16(Val(square_->Size()));
  SetSolveMode(ModeNormal);
  ProposeSquare(*square_, board_.SolveMode, random_);
}

void MainWindow::SetSolveMode(Mode mode) {
  const bool variable = mode == ModeVariable;
  board_.SolveMode = mode;
  {
    const QSignalBlocker quiet(solve_->Option4);
    (variable ? solve_->Option4 : solve_->Option3)->setChecked(true);
  }
  square_->Text4->setEnabled(variable);
  limit_->setEnabled(variable);
  corners_->setEnabled(variable);
  menu_->redox->setEnabled(variable);
  EnableCommands();
  FollowSize();
}

/// Buttons can be pressed when their command has something to work on.
void MainWindow::EnableCommands() {
  solve_->SolveAgain->setEnabled(board_.SolveMode == ModeVariable && solveCommand_.CanSolveAgain());
  corners_->DoCor1->setEnabled(board_.Shown());
  corners_->DoCor2->setEnabled(board_.Shown());
}

bool MainWindow::LimitToNine() const {
  return limit_->Option1->isChecked();
}

void MainWindow::UncheckLimit() {
  limit_->Option1->setChecked(false);
}

std::optional<double> MainWindow::Corner() const {
  const std::string text = corners_->Combo1->currentText().toStdString();
  return text == kAnyCorner ? std::nullopt : std::optional(Val(text));
}

/// In the Normal mode the sum belongs to the size.
void MainWindow::FollowSize() {
  if (board_.SolveMode == ModeNormal) square_->SetSum(MagicConstantText(square_->Size()));
}

void MainWindow::PressCell(int row, int column, Qt::MouseButton button, QPoint globalPosition) {
  if (button != Qt::RightButton || !board_.Shown()) return;
  if (row < 1 || row > board_.GridSize || column < 1 || column > board_.GridSize) return;
  board_.grid.SetCurrent(row, column);
  menu_->redox->setEnabled(true);
  menu_->popup(globalPosition);
}

void MainWindow::EditBoard(RedoCode code) {
  if (!board_.Shown()) return;
  TurnBoard(board_, SymmetryOf(code));
  history_.Record(code, menu_->Caption(code));
  menu_->ShowHistory(history_);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  runner_.Stop();
  event->accept();
}

}  // namespace numorra
