#include "app/window/main_window.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QScreen>

#include "app/board/numbers.h"
#include "app/board/totals_check.h"
#include "app/play/board_mouse.h"
#include "app/play/board_text.h"
#include "app/play/lay_out.h"
#include "app/play/manual_board.h"
#include "app/play/moves.h"
#include "app/window/column_scroller.h"
#include "app/window/grid_accessible.h"
#include "app/window/square_files.h"
#include "files/square_text.h"
#include "generate/corner_choice.h"
#include "generate/proposal.h"
#include "print/print_form.h"
#include "print/sheet.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/twips.h"
#include "visual/shading.h"

namespace numorra {
namespace {

// Distances in twips.
constexpr int kGap = 30;           // left of the column of frames, and right of it
constexpr int kInside = 90;        // around and between a frame's controls
constexpr int kOuterMargin = 120;  // right of the board's frame and below it

/// Room for the largest proposal, a board of order 14, where the screen has it.
constexpr double kShareOfScreen = 0.95;
constexpr QSize kOpeningSize(740, 700);

/// What a button says, without its mnemonic.
std::string CaptionOf(const QAbstractButton* button) {
  return button->text().remove('&').toStdString();
}

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
      dialogs_(world.TheDialogs ? *world.TheDialogs : messageBoxes_),
      printer_(world.Printer ? *world.Printer : paperPrinter_),
      pages_(world.Pages ? *world.Pages : previewedPages_),
      files_(world.Files ? *world.Files : fileDialogs_),
      runner_(dialogs_, world.FrameMilliseconds),
      solve_(new SolveFrame),
      limit_(new LimitFrame),
      square_(new SquareFrame),
      corners_(new CornersFrame),
      colours_(new ColourPicker),
      draw_(new DrawFrame),
      place_(new BoardPlace(board_)),
      menu_(new BoardMenu(this)),
      state_(new StateLine),
      stage_(*solve_, runner_),
      searchStage_(*place_, runner_),
      hints_(board_, random_, searchStage_),
      cellEntry_(board_, dialogs_),
      edit_(board_, dialogs_, random_, history_),
      List2(random_),
      List3(random_),
      solveCommand_({board_, *square_, *this, dialogs_, stage_, random_, List2, List3}),
      topRowCommand_(board_, *square_, dialogs_, stage_, random_) {
  setObjectName("Form1");
  setAcceptDrops(true);
  setWindowTitle(kApplicationTitle);
  ArrangeFrames();
  BuildPropertiesPanel();
  BuildStepPanel();
  BuildMenus();
  ConnectControls();
  ConnectBoard();
  StartUp();
  resize(kOpeningSize.boundedTo(screen()->availableSize() * kShareOfScreen));
}

MainWindow::~MainWindow() {
  board_.grid.OnRepaint = nullptr;
  properties_->disconnect(this);
  stepPanel_->disconnect();
}

void MainWindow::ArrangeFrames() {
  const int gap = PixelsOf(kGap);
  const int inside = PixelsOf(kInside);
  const int margin = PixelsOf(kOuterMargin);
  auto* centre = new QWidget;
  setCentralWidget(centre);
  auto* columns = new QHBoxLayout(centre);
  columns->setContentsMargins(gap, gap, margin, margin);
  columns->setSpacing(gap);

  auto* left = new QWidget;
  auto* frames = new QVBoxLayout(left);
  frames->setContentsMargins({});
  frames->setSpacing(gap);
  for (QGroupBox* frame :
       std::initializer_list<QGroupBox*>{limit_, solve_, square_, corners_, colours_, draw_}) {
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    frame->layout()->setContentsMargins(inside, inside, inside, inside);
    frame->layout()->setSpacing(inside);
    frames->addWidget(frame);
  }
  frames->addStretch();
  leftColumn_ = new ColumnScroller(left);
  columns->addWidget(leftColumn_);

  columns->addWidget(place_, 1);
}

/// The board as text for tables and texts, and as a picture for drawings.
void MainWindow::CopyBoard(bool withPicture) {
  if (!board_.Shown()) return;
  auto* copied = new QMimeData;
  copied->setText(QString::fromStdString(BoardText(board_)));
  if (withPicture) {
    copied->setImageData(board_.OverlayShown ? place_->Picture->grab().toImage()
                                             : View().Picture());
  }
  QGuiApplication::clipboard()->setMimeData(copied);
}

/// Formats are asked for first: a program that does not answer is then waited for only once.
void MainWindow::PasteFromClipboard() {
  runner_.Run("Paste", [this] {
    const QMimeData* const copied = QGuiApplication::clipboard()->mimeData();
    const QString text = copied && copied->hasText() ? copied->text() : QString();
    if (text.size() > static_cast<qsizetype>(kMostTextBytes)) {
      dialogs_.Tell(kTooLongForASquare);
      return;
    }
    if (!PasteBoard(board_, *square_, dialogs_, text.toStdString())) return;
    ShowLaidOut();
    CheckAndReturn(board_, dialogs_);
  });
}

void MainWindow::Open(const QString& name) {
  runner_.Run("Open", [this, name] {
    const auto read = OpenSquare(name);
    if (const auto* unreadable = std::get_if<Unreadable>(&read)) {
      dialogs_.Tell(unreadable->Why);
      return;
    }
    LayOut(board_, *square_, std::get<StoredSquare>(read));
    ShowLaidOut();
  });
}

/// A board that came from elsewhere is in its mode, and has the keyboard.
void MainWindow::ShowLaidOut() {
  SetSolveMode(board_.SolveMode);
  View().setFocus();
  BringCurrentCellIntoView();
}

void MainWindow::Save() {
  const QString name = files_.ToSave(this, "Save As", kSquareKinds);
  if (!name.isEmpty()) SaveSquare(name, StoredSquareOf(board_));
}

void MainWindow::Export() {
  const QString name = files_.ToSave(this, "Export Picture", kPictureKinds);
  if (name.isEmpty()) return;
  if (board_.OverlayShown) {
    ExportDrawing(name, *place_->Picture);
  } else {
    ExportBoard(name, View());
  }
}

/// Counts and colours whatever board is shown, without a word: from then on it can be played.
void MainWindow::CheckTheTotals() {
  RunOnCurrentCell("Check Totals", [this] {
    RecountInPlace(board_);
    menu_->EnableEditing(true);
  });
}

/// A single file that is dropped onto the window opens.
void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return;
  event->setDropAction(Qt::CopyAction);  // the file stays where it is
  event->accept();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->accept();
  Open(event->mimeData()->urls().front().toLocalFile());
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
  const auto command = [this](QPushButton* button, CommandRunner::Command body) {
    OnClick(runner_, button, this,
            [this, button, body = std::move(body)] { runner_.Run(CaptionOf(button), body); });
  };
  const auto build = [&](QPushButton* button, CommandRunner::Command body) {
    command(button, [this, body = std::move(body)] {
      body();
      BringCurrentCellIntoView();
    });
  };
  build(solve_->SolveAuto, [this] { solveCommand_.Auto(); });
  build(solve_->SolveManual, [this] {
    BuildManualBoard(board_, *square_, dialogs_, stage_);
    View().setFocus();
  });
  build(solve_->SolveAgain, [this] { solveCommand_.Again(); });
  connect(corners_->Combo1, &CornerBox::Entered, this, [this] {
    runner_.Run("Corners", [this] {
      corners_->Combo1->clear();
      OfferCorners(board_, *square_, List2, *corners_);
    });
  });
  command(corners_->DoCor1, [this] { solveCommand_.VaryCornerDiagonals(); });
  command(corners_->DoCor2, [this] { solveCommand_.VaryCornerEdges(); });
  build(square_->Set4x4, [this] {
    if (topRowCommand_.Run()) SetSolveMode(ModeVariable);
  });
  command(square_->SolveRandum, [this] { ProposeSquare(*square_, board_.SolveMode, random_); });
  command(colours_->Command3, [this] {
    const BusyPointer busy(stage_);
    FillColours(board_, colours_->Picked());
  });
  command(draw_->Command4, [this] {
    if (board_.HasTotal()) board_.SetOverlayShown(false);
  });
  connect(draw_, &DrawFrame::Chosen, this,
          [this](const DrawingKind* kind) { runner_.Run("Draw", [this, kind] { Draw(kind); }); });
  connect(colours_, &ColourPicker::Changed, this, [this] {
    runner_.RunBeside([this] { place_->Picture->SetColour(colours_->Picked()); });
  });
  for (const Mode mode : {ModeNormal, ModeVariable}) {
    QRadioButton* option = mode == ModeNormal ? solve_->Option3 : solve_->Option4;
    connect(option, &QRadioButton::toggled, this, [this, mode, option](bool on) {
      if (on) runner_.Run(CaptionOf(option), [this, mode] { SetSolveMode(mode); });
    });
  }
  OnSignal(runner_, square_->Text1, &QLineEdit::textChanged, this, [this] { FollowSize(); });
  for (QLineEdit* box : {square_->Text1, square_->Text4}) {
    connect(box, &QLineEdit::returnPressed, solve_->SolveAuto, &QPushButton::click);
  }
}

void MainWindow::ConnectBoard() {
  runner_.OnBegin = [this] { watch_.Begin(); };
  runner_.OnEnd = [this](const std::string& name) { watch_.End(name); };
  watch_.Tell([this](const Deed& deed) { undo_.Note(deed); });
  watch_.Tell([this](const Deed&) { ShowState(); });
  board_.OnShown = [this] {
    stepPanel_->hide();
    place_->ShowBoard();
  };
  messageBoxes_.BeforeBox = [this] { ShowStateLine(); };
  GridView* const view = place_->View;
  connect(view, &GridView::CellPressed, this,
          [this](int row, int column, Qt::MouseButton button, QPoint position) {
            const auto press = [=, this] {
              return PressBoard(board_, dialogs_, row, column, ButtonOf(button));
            };
            Press(press, position);
          });
  connect(view, &GridView::MenuWanted, this, [this] {
    const auto press = [this] {
      return PressBoard(board_, dialogs_, board_.grid.CurrentRow(), board_.grid.CurrentColumn(),
                        PressedButton::Right);
    };
    Press(press);
  });
  connect(view, &GridView::MarkWanted, this, [this](MarkedLine line) {
    Press([this, line] { return MarkByKey(board_, dialogs_, line); });
  });
  for (GridView* cells : std::initializer_list<GridView*>{view, place_->Walk}) {
    OnSignal(runner_, cells, &GridView::CurrentCellShown, this,
             [cells](bool another) { ReadCurrentCell(*cells, another); });
    OnSignal(runner_, cells, &GridView::ZoomWanted, this,
             [this](int direction, QPoint at) { size_->Zoom(direction, at); });
  }
  connect(view, &GridView::CellWanted, this, [this](int row, int column) {
    RunOnCurrentCell("move", [this, row, column] { board_.grid.SetCurrent(row, column); });
  });
  connect(view, &GridView::CharacterTyped, this, [this](char32_t character) {
    if (character == U'\r') {
      RunOnCurrentCell("check", [this] { cellEntry_.PressEnter(); });
    } else {
      RunOnCurrentCell(UndoHistory::kTyping,
                       [this, character] { cellEntry_.TypeCharacter(character); });
    }
  });
  connect(view, &GridView::KeypadPressed, this, [this](int sign) {
    RunOnCurrentCell(
        "step", [this, sign] { sign > 0 ? cellEntry_.KeypadPlus() : cellEntry_.KeypadMinus(); });
  });
  connect(menu_, &BoardMenu::Chosen, this, [this](const EditCommand* command) {
    RunOnCurrentCell(WordsFor(*command, board_.BaseValue),
                     [this, command] { edit_.Run(*command); });
  });
  connect(menu_, &BoardMenu::RedoChosen, this,
          [this] { RunOnCurrentCell(history_.Caption, [this] { edit_.Redo(); }); });
}

/// Runs a command that acts on the board, which then has the keyboard and is not hidden by a walk.
void MainWindow::RunOnBoard(const std::string& name, CommandRunner::Command command) {
  runner_.Run(name, [this, command = std::move(command)] {
    stepPanel_->hide();
    View().setFocus();
    if (board_.Shown()) command();
  });
}

/// The same for what acts on the current cell, which then is in sight.
void MainWindow::RunOnCurrentCell(const std::string& name, CommandRunner::Command command) {
  RunOnBoard(name, [this, command = std::move(command)] {
    command();
    BringCurrentCellIntoView();
  });
}

void MainWindow::BringCurrentCellIntoView() {
  View().BringIntoView(board_.grid.CurrentRow(), board_.grid.CurrentColumn());
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
  for (QWidget* button : {corners_->DoCor1, corners_->DoCor2})
    button->setEnabled(board_.Shown());
  for (QAction* item : QList<QAction*>{saveItem_, exportItem_, checkItem_} + needBoard_)
    item->setEnabled(board_.Shown());
  const auto showStep = [](QAction* item, const QString& caption, bool can,
                           const std::string& step) {
    item->setEnabled(can);
    item->setText(can ? caption + " " + QString::fromStdString(step) : caption);
  };
  showStep(undoItem_, "&Undo", undo_.CanUndo(), undo_.CanUndo() ? undo_.UndoName() : "");
  showStep(redoItem_, "&Redo", undo_.CanRedo(), undo_.CanRedo() ? undo_.RedoName() : "");
  if (board_.OverlayShown) place_->Picture->update();
  ShowStateLine();
}

/// What is told is what is in sight.
void MainWindow::ShowStateLine() {
  if (place_->Walking()) {
    state_->Show(place_->Walk->TheWalk());
  } else {
    state_->Show(board_);
  }
}

/// Covers the board with a drawing of it, where there is something to draw.
void MainWindow::Draw(const DrawingKind* kind) {
  if (!board_.HasTotal()) return;
  place_->Picture->SetKind(kind);
  place_->Picture->SetColour(colours_->Picked());
  board_.SetOverlayShown(true);
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
  RunOnBoard("swap", [this, press = std::move(press), menuPosition] {
    const PressOutcome outcome = press();
    if (outcome == PressOutcome::Nothing) return;
    menu_->EnableEditing(outcome != PressOutcome::OpenShortMenu);
    menu_->redox->setEnabled(true);
    if (outcome == PressOutcome::Done) return;
    menu_->ShowBaseValue(Str(board_.BaseValue));
    if (!menuPosition) BringCurrentCellIntoView();
    menu_->popup(menuPosition.value_or(View().CurrentCellPosition()));
  });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  runner_.Stop();
  event->accept();
}

}  // namespace numorra
