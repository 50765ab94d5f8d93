#pragma once

#include <QMainWindow>

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/play/board_watch.h"
#include "app/play/cell_entry.h"
#include "app/play/command_history.h"
#include "app/play/edit_commands.h"
#include "app/play/hints.h"
#include "app/play/undo_history.h"
#include "app/window/board_menu.h"
#include "app/window/board_place.h"
#include "app/window/corners_frame.h"
#include "app/window/limit_frame.h"
#include "app/window/panel_room.h"
#include "app/window/properties_panel.h"
#include "app/window/search_stage.h"
#include "app/window/solve_frame.h"
#include "app/window/square_frame.h"
#include "app/window/state_line.h"
#include "app/window/step_panel.h"
#include "app/window/view_control.h"
#include "app/window/window_stage.h"
#include "generate/solve_command.h"
#include "generate/top_row_command.h"
#include "listbox/list_boy.h"
#include "print/page_printer.h"
#include "print/sheet_printer.h"
#include "puzzle/fresh_square.h"
#include "toolkit/command_runner.h"
#include "toolkit/file_chooser.h"
#include "toolkit/message_boxes.h"
#include "visual/colour_picker.h"
#include "visual/draw_frame.h"

namespace numorra {

/// What the window needs of the world; where something is missing it brings its own.
struct World {
  Clock* TimeOfDay = nullptr;
  Dialogs* TheDialogs = nullptr;
  SheetPrinter* Printer = nullptr;
  PagePrinter* Pages = nullptr;
  FileChooser* Files = nullptr;
  int FrameMilliseconds = CommandRunner::kFrameMilliseconds;
};

/// The main window: the controls on the left, the board on the right. It owns the board, hands what
/// the player does to the commands and shows what they leave behind.
class MainWindow : public QMainWindow, private BuildOptions {
  Q_OBJECT

 public:
  explicit MainWindow(const World& world = {});
  ~MainWindow() override;

  const Board& TheBoard() const { return board_; }
  GridView& View() { return *place_->View; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ArrangeFrames();
  void BuildMenus();
  void Escape();
  void BuildStudyMenu();
  void BuildPuzzleMenu();
  SquareWish FreshWish() const;
  void OpenHideNumbers();
  void OpenWorksheet();
  std::optional<Puzzle> PuzzleOnBoard() const;
  void CopyPuzzleCode();
  void BuildPropertiesPanel();
  void BuildStepPanel();
  void FollowSteps();
  void FollowProperties();
  void StudyBoard();
  void ConnectControls();
  void StartUp();

  bool LimitToNine() const override;
  void UncheckLimit() override;
  std::optional<double> Corner() const override;

  void SetSolveMode(Mode mode);
  void FollowSize();
  void ConnectBoard();
  void RunOnBoard(const std::string& name, CommandRunner::Command command);
  void RunOnCurrentCell(const std::string& name, CommandRunner::Command command);
  void Press(std::function<PressOutcome()> press, std::optional<QPoint> menuPosition = {});
  void Draw(const DrawingKind* kind);
  void BringCurrentCellIntoView();
  void ShowState();
  void ShowStateLine();
  void CopyBoard(bool withPicture);
  void PasteFromClipboard();
  void Open(const QString& name);
  void Save();
  void Export();
  void CheckTheTotals();
  void ShowLaidOut();
  void OpenPrintForm();

  SystemClock systemClock_;
  MessageBoxes messageBoxes_;
  ClockSeededRandom random_;
  PaperPrinter paperPrinter_;
  Dialogs& dialogs_;
  SheetPrinter& printer_;
  PreviewedPages previewedPages_;
  PagePrinter& pages_;
  FileDialogs fileDialogs_;
  FileChooser& files_;
  CommandRunner runner_;
  Board board_;
  BoardWatch watch_{board_};
  CommandHistory history_;
  UndoHistory undo_;

  // The toolkit owns these through the window.
  SolveFrame* solve_;
  LimitFrame* limit_;
  SquareFrame* square_;
  CornersFrame* corners_;
  ColourPicker* colours_;
  DrawFrame* draw_;
  BoardPlace* place_;
  BoardMenu* menu_;
  StateLine* state_;
  QWidget* leftColumn_ = nullptr;
  ViewControl* size_ = nullptr;
  PropertiesPanel* properties_ = nullptr;
  StepPanel* stepPanel_ = nullptr;
  PanelRoom* room_ = nullptr;
  bool studied_ = false;       ///< the panel shows what the board is now
  QList<QAction*> needBoard_;  ///< the menu items that work on one
  QAction* undoItem_ = nullptr;
  QAction* redoItem_ = nullptr;
  QAction* saveItem_ = nullptr;
  QAction* exportItem_ = nullptr;
  QAction* checkItem_ = nullptr;

  WindowStage stage_;
  SearchStage searchStage_;
  Hints hints_;
  CellEntry cellEntry_;
  EditCommands edit_;
  ListBoy List2;
  ListBoy List3;
  SolveCommand solveCommand_;
  TopRowCommand topRowCommand_;
};

}  // namespace numorra
