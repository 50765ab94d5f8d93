#include "app/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>

#include "app/board/numbers.h"
#include "app/column_scroller.h"
#include "app/grid_accessible.h"
#include "app/named.h"
#include "app/play/board_mouse.h"
#include "app/play/board_text.h"
#include "app/play/manual_board.h"
#include "app/play/moves.h"
#include "generate/corner_choice.h"
#include "generate/proposal.h"
#include "help/about_window.h"
#include "help/help_window.h"
#include "print/print_form.h"
#include "print/sheet.h"
#include "visual/shading.h"

namespace numorra {
namespace {

/// A distance given in twips (1/1440 inch), in pixels of 1/96 inch.
constexpr int Pixels(int twips) {
  return twips / 15;
}

constexpr int kGap = Pixels(30);      // left of the column of frames, and right of it
constexpr int kInside = 6;            // pixels around and between a frame's controls
constexpr int kMargin = Pixels(120);  // right of the board and below it

/// Room for the largest proposal, a board of order 14, where the screen has it.
constexpr double kShareOfScreen = 0.95;
constexpr QSize kOpeningSize(740, 700);

PressedButton ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return PressedButton::Left;
    case Qt::RightButton:
      return PressedButton::Right;
    default:
      return PressedButton::Other;
  }
}

}  // namespace

MainWindow::MainWindow(const World& world)
    : messageBoxes_(this),
      random_(world.TimeOfDay ? *world.TimeOfDay : systemClock_),
      dialogs_(world.Boxes ? *world.Boxes : messageBoxes_),
      printer_(world.Printer ? *world.Printer : paperPrinter_),
      runner_(dialogs_, world.FrameMilliseconds),
      solve_(new SolveFrame),
      limit_(new LimitFrame),
      square_(new SquareFrame),
      corners_(new CornersFrame),
      colours_(new ColourPicker),
      draw_(new DrawFrame),
      solution_(Named("Frame1", new QGroupBox("Solution"))),
      view_(new GridView(board_.grid)),
      drawing_(new Drawing(board_)),
      boardPlace_(new QStackedLayout),
      menu_(new BoardMenu(this)),
      stage_(*solve_, runner_),
      cellEntry_(board_, dialogs_),
      edit_(board_, dialogs_, random_, history_),
      List2(random_),
      List3(random_),
      solveCommand_({board_, *square_, *this, dialogs_, stage_, random_, List2, List3}),
      topRowCommand_(board_, *square_, dialogs_, stage_, random_) {
  setObjectName("Form1");
  view_->setAccessibleName("Board");
  setWindowTitle(kApplicationTitle);
  LayOut();
  BuildMenus();
  ConnectControls();
  ConnectBoard();
  StartUp();
  resize(kOpeningSize.boundedTo(screen()->availableSize() * kShareOfScreen));
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

  auto* left = new QWidget;
  auto* frames = new QVBoxLayout(left);
  frames->setContentsMargins({});
  frames->setSpacing(kGap);
  for (QGroupBox* frame :
       std::initializer_list<QGroupBox*>{limit_, solve_, square_, corners_, colours_, draw_}) {
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    frame->layout()->setContentsMargins(kInside, kInside, kInside, kInside);
    frame->layout()->setSpacing(kInside);
    frames->addWidget(frame);
  }
  frames->addStretch();
  columns->addWidget(new ColumnScroller(left));

  auto* board = new QVBoxLayout(solution_);
  board->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  board->addLayout(boardPlace_);
  boardPlace_->addWidget(view_);
  boardPlace_->addWidget(drawing_);
  columns->addWidget(solution_, 1);
}

void MainWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  QAction* print = Named("PrintSol", file->addAction("&Print Solution..."));
  print->setShortcut(QKeySequence::Print);
  connect(print, &QAction::triggered, this, &MainWindow::OpenPrintForm);
  file->addSeparator();
  QAction* exit = Named("Exitx", file->addAction("E&xit"));
  exit->setShortcut(Qt::CTRL | Qt::Key_Q);  // not every desktop names a standard key for it
  connect(exit, &QAction::triggered, this, [] { QApplication::closeAllWindows(); });

  QMenu* edit = menuBar()->addMenu("&Edit");
  QAction* copy = Named("Copyx", edit->addAction("&Copy Board"));
  copy->setShortcut(QKeySequence::Copy);
  connect(copy, &QAction::triggered, this, [this] { CopyBoard(true); });
  QAction* numbers = Named("CopyNumbersx", edit->addAction("Copy &Numbers"));
  numbers->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  connect(numbers, &QAction::triggered, this, [this] { CopyBoard(false); });
  QAction* paste = Named("Pastex", edit->addAction("&Paste Board"));
  paste->setShortcut(QKeySequence::Paste);
  connect(paste, &QAction::triggered, this, &MainWindow::PasteFromClipboard);

  QMenu* view = menuBar()->addMenu("&View");
  QAction* maximize = Named("Maximx", view->addAction("&Maximize"));
  connect(maximize, &QAction::triggered, this, [this] {
    move(0, 0);
    showMaximized();
  });

  QMenu* help = menuBar()->addMenu("&Help");
  QAction* page = Named("Helpx", help->addAction("&Help"));
  page->setShortcut(QKeySequence::HelpContents);
  connect(page, &QAction::triggered, this, &MainWindow::OpenHelp);
  QAction* about = Named("Aboutx", help->addAction("&About"));
  connect(about, &QAction::triggered, this, [this] { (new AboutForm(this))->open(); });
}

/// The board as text for tables and texts, and as a picture for drawings.
void MainWindow::CopyBoard(bool withPicture) {
  if (!board_.Shown()) return;
  auto* copied = new QMimeData;
  copied->setText(QString::fromStdString(BoardText(board_)));
  if (withPicture) {
    copied->setImageData(board_.OverlayShown() ? drawing_->grab().toImage() : view_->Picture());
  }
  QGuiApplication::clipboard()->setMimeData(copied);
}

void MainWindow::PasteFromClipboard() {
  runner_.Run([this] {
    // Pages of the web are full of blanks that look like others.
    const QString text = QGuiApplication::clipboard()->text().replace(QChar::Nbsp, ' ');
    if (!PasteBoard(board_, *square_, dialogs_, text.toStdString())) return;
    SetSolveMode(ModeVariable);
    view_->setFocus();
    BringCurrentCellIntoView();
    CheckAndReturn(board_, dialogs_);
    ShowState();
  });
}

void MainWindow::OpenHelp() {
  (new HelpForm(QCoreApplication::applicationDirPath(), this))->open();
}

/// The print form, where there is a board in sight that fits on a page.
void MainWindow::OpenPrintForm() {
  if (!board_.Shown() || !board_.grid.Visible()) {
    dialogs_.Tell("nothing to print");
  } else if (board_.GridSize > kMaxPrintedOrder) {
    dialogs_.Tell("cannot print larger than 30x30 grid");
  } else {
    (new PrintForm(board_.grid, *square_, printer_, dialogs_, this))->open();
  }
}

void MainWindow::ConnectControls() {
  const auto command = [this](auto* control, auto signal, CommandRunner::Command body) {
    connect(control, signal, this, [this, body = std::move(body)] {
      runner_.Run([this, body] {
        body();
        ShowState();
      });
    });
  };
  const auto build = [&](QPushButton* button, CommandRunner::Command body) {
    command(button, &QPushButton::clicked, [this, body = std::move(body)] {
      body();
      BringCurrentCellIntoView();
    });
  };
  build(solve_->SolveAuto, [this] { solveCommand_.Auto(); });
  build(solve_->SolveManual, [this] {
    BuildManualBoard(board_, *square_, dialogs_, stage_);
    view_->setFocus();
  });
  build(solve_->SolveAgain, [this] { solveCommand_.Again(); });
  command(corners_->Combo1, &CornerBox::Entered, [this] {
    corners_->Combo1->clear();
    OfferCorners(board_, *square_, List2, *corners_);
  });
  command(corners_->DoCor1, &QPushButton::clicked,
          [this] { solveCommand_.SpreadCornerDiagonals(); });
  command(corners_->DoCor2, &QPushButton::clicked, [this] { solveCommand_.SpreadCornerEdges(); });
  build(square_->Set4x4, [this] {
    if (topRowCommand_.Run()) SetSolveMode(ModeVariable);
  });
  command(square_->SolveRandum, &QPushButton::clicked,
          [this] { ProposeSquare(*square_, board_.SolveMode, random_); });
  command(colours_->Command3, &QPushButton::clicked, [this] {
    const BusyPointer busy(stage_);
    FillColours(board_, colours_->Picked());
  });
  const auto draw = [this](OverlayKind kind) {
    return [this, kind] {
      if (board_.HasTotal()) board_.SetOverlay(kind);
    };
  };
  command(draw_->Command1, &QPushButton::clicked, draw(OverlayKind::Circles));
  command(draw_->Command2, &QPushButton::clicked, draw(OverlayKind::Vectors));
  command(draw_->Command4, &QPushButton::clicked, draw(OverlayKind::None));
  for (const Mode mode : {ModeNormal, ModeVariable}) {
    QRadioButton* option = mode == ModeNormal ? solve_->Option3 : solve_->Option4;
    connect(option, &QRadioButton::toggled, this, [this, mode](bool on) {
      if (on) runner_.Run([this, mode] { SetSolveMode(mode); });
    });
  }
  connect(square_->Text1, &QLineEdit::textChanged, this, [this] { FollowSize(); });
}

void MainWindow::ConnectBoard() {
  board_.OnOverlay = [this] { ShowOverlay(); };
  connect(view_, &GridView::CellPressed, this,
          [this](int row, int column, Qt::MouseButton button, QPoint position) {
            const auto press = [=, this] {
              return PressBoard(board_, dialogs_, row, column, ButtonOf(button));
            };
            Press(press, position);
          });
  connect(view_, &GridView::MenuWanted, this, [this] {
    const auto press = [this] {
      return PressBoard(board_, dialogs_, board_.grid.CurrentRow(), board_.grid.CurrentColumn(),
                        PressedButton::Right);
    };
    Press(press);
  });
  connect(view_, &GridView::MarkWanted, this, [this](MarkedLine line) {
    Press([this, line] { return MarkByKey(board_, dialogs_, line); });
  });
  connect(view_, &GridView::CurrentCellShown, this,
          [this](bool another) { ReadCurrentCell(*view_, another); });
  connect(view_, &GridView::CellWanted, this, [this](int row, int column) {
    RunOnCurrentCell([this, row, column] { board_.grid.SetCurrent(row, column); });
  });
  connect(view_, &GridView::CharacterTyped, this, [this](char32_t character) {
    RunOnCurrentCell([this, character] {
      if (character == U'\r') {
        cellEntry_.PressEnter();
      } else {
        cellEntry_.TypeCharacter(character);
      }
    });
  });
  connect(view_, &GridView::KeypadPressed, this, [this](int sign) {
    RunOnCurrentCell(
        [this, sign] { sign > 0 ? cellEntry_.KeypadPlus() : cellEntry_.KeypadMinus(); });
  });
  menu_->OnCommand = [this](RedoCode code) { RunOnCurrentCell([this, code] { edit_.Run(code); }); };
  menu_->OnRedo = [this] { RunOnCurrentCell([this] { edit_.Redo(); }); };
  menu_->OnSetAllRem = [this] { RunOnCurrentCell([this] { edit_.SetAllRem(); }); };
  menu_->OnSwapValue = [this] { RunOnCurrentCell([this] { edit_.SwapValue(); }); };
}

/// Runs a command that acts on the board, which then has the keyboard.
void MainWindow::RunOnBoard(CommandRunner::Command command) {
  runner_.Run([this, command = std::move(command)] {
    view_->setFocus();
    if (!board_.Shown()) return;
    command();
    ShowState();
  });
}

/// The same for what acts on the current cell, which then is in sight.
void MainWindow::RunOnCurrentCell(CommandRunner::Command command) {
  RunOnBoard([this, command = std::move(command)] {
    command();
    BringCurrentCellIntoView();
  });
}

void MainWindow::BringCurrentCellIntoView() {
  view_->BringIntoView(board_.grid.CurrentRow(), board_.grid.CurrentColumn());
}

/// What the boxes say before the first proposal replaces it is what the program starts from.
void MainWindow::StartUp() {
  board_.TargetTotal = Val(square_->Sum());
  board_.BaseValue = ToInt16(board_.TargetTotal);
  board_.GridSize = ToInt16(Val(square_->Size()));
  SetSolveMode(ModeNormal);
  colours_->ShowBars();
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
  menu_->EnableEditing(variable);
  menu_->redox->setEnabled(variable);
  ShowState();
  FollowSize();
}

/// Shows what the commands have left behind, and which of them have something to work on.
void MainWindow::ShowState() {
  solve_->SolveManual->setProperty("tag", board_.UntouchedBase ? "X" : "");
  menu_->ShowHistory(history_);
  solve_->SolveAgain->setEnabled(board_.SolveMode == ModeVariable && solveCommand_.CanSolveAgain());
  corners_->DoCor1->setEnabled(board_.Shown());
  corners_->DoCor2->setEnabled(board_.Shown());
}

/// Puts the drawing in the place of the board, or the board back.
void MainWindow::ShowOverlay() {
  drawing_->SetColour(colours_->Picked());
  switch (board_.Overlay) {
    case OverlayKind::None:
      drawing_->setProperty("tag", "");
      break;
    case OverlayKind::Circles:
      drawing_->setProperty("tag", "C");
      break;
    case OverlayKind::Vectors:
      drawing_->setProperty("tag", "V");
      break;
  }
  boardPlace_->setCurrentWidget(board_.OverlayShown() ? static_cast<QWidget*>(drawing_) : view_);
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

/// Runs a press on the board and opens the menu where it asks for one: where the mouse is, or on
/// the current cell.
void MainWindow::Press(std::function<PressOutcome()> press, std::optional<QPoint> menuPosition) {
  RunOnBoard([this, press = std::move(press), menuPosition] {
    const PressOutcome outcome = press();
    if (outcome == PressOutcome::Nothing) return;
    menu_->EnableEditing(outcome != PressOutcome::OpenShortMenu);
    menu_->redox->setEnabled(true);
    if (outcome == PressOutcome::Done) return;
    menu_->ShowBaseValue(Str(board_.BaseValue));
    if (!menuPosition) BringCurrentCellIntoView();
    menu_->popup(menuPosition.value_or(view_->CurrentCellPosition()));
  });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  runner_.Stop();
  event->accept();
}

}  // namespace numorra
