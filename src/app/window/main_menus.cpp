#include <QApplication>
#include <QMenuBar>
#include <QShortcut>

#include "app/window/main_window.h"
#include "app/window/square_files.h"
#include "help/about_window.h"
#include "help/help_window.h"
#include "toolkit/menus.h"
#include "toolkit/on_signal.h"

namespace numorra {

/// Esc takes away what has come last: a search, a remark, the full screen.
void MainWindow::Escape() {
  if (!place_->DismissBar() && size_->FullScreen()) size_->ToggleFullScreen();
}

/// The menu bar. What changes the board is a command; what only shows, writes or opens something
/// runs beside one.
void MainWindow::BuildMenus() {
  const auto beside = [this](auto body) {
    return [this, body] { runner_.RunBeside([body] { body(); }); };
  };
  const QList<QKeySequence> none;
  const QList<QKeySequence> redo{Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y};
  AddMenu(menuBar(), "&File",
          {{"Openx", "&Open...", QKeySequence::keyBindings(QKeySequence::Open), beside([this] {
              const QString name = files_.ToOpen(this, "Open", ReadableKinds());
              if (!name.isEmpty()) Open(name);
            })},
           {"SaveAsx", "&Save As...", QKeySequence::keyBindings(QKeySequence::Save),
            beside([this] { Save(); })},
           {"ExportPicturex", "&Export Picture...", none, beside([this] { Export(); })},
           {},
           {"PrintSol", "&Print Solution", QKeySequence::keyBindings(QKeySequence::Print),
            beside([this] { OpenPrintForm(); })},
           {"PrintWorksheetx",
            "Print &Worksheet...",
            {Qt::CTRL | Qt::SHIFT | Qt::Key_P},
            [this] { runner_.Run("Print Worksheet", [this] { OpenWorksheet(); }); }},
           {},
           // Not every desktop names a standard key for it.
           {"Exitx", "E&xit", {Qt::CTRL | Qt::Key_Q}, [] { QApplication::closeAllWindows(); }}});
  AddMenu(menuBar(), "&Edit",
          {{"UndoMovex",
            "&Undo",
            {Qt::CTRL | Qt::Key_Z},
            [this] {
              runner_.Run("Undo", [this] {
                undo_.Undo(board_);
                BringCurrentCellIntoView();
              });
            }},
           {"RedoMovex", "&Redo", redo,
            [this] {
              runner_.Run("Redo", [this] {
                undo_.Redo(board_);
                BringCurrentCellIntoView();
              });
            }},
           {},
           {"Copyx", "&Copy Board", QKeySequence::keyBindings(QKeySequence::Copy),
            beside([this] { CopyBoard(true); })},
           {"CopyNumbersx", "Copy &Numbers", {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, beside([this] {
              CopyBoard(false);
            })},
           {"Pastex", "&Paste Board", QKeySequence::keyBindings(QKeySequence::Paste),
            [this] { PasteFromClipboard(); }},
           {},
           {"CheckTotalsx", "Check &Totals", {Qt::Key_F9}, [this] { CheckTheTotals(); }}});
  const auto zoom = [&](int direction) {
    return beside([this, direction] { size_->Zoom(direction); });
  };
  AddMenu(menuBar(), "&View",
          {{"ZoomInx", "Zoom &In", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, zoom(1)},
           {"ZoomOutx", "Zoom &Out", {Qt::CTRL | Qt::Key_Minus}, zoom(-1)},
           {"NormalSizex", "&Normal Size", {Qt::CTRL | Qt::Key_0}, zoom(0)},
           {"FitBoardx", "&Fit Board", none, beside([this] { size_->ToggleFitting(); }), true},
           {"FullScreenx",
            "Full &Screen",
            {Qt::Key_F11},
            beside([this] { size_->ToggleFullScreen(); }),
            true},
           {"Maximx", "&Maximize", none, beside([this] {
              move(0, 0);
              showMaximized();
            })},
           {},
           {"DrawingNumbersx", "Numbers in &Drawings", none, beside([this] {
              place_->Picture->SetNumbers(findChild<QAction*>("DrawingNumbersx")->isChecked());
            }),
            true},
           {"Propertiesx",
            "&Properties",
            {Qt::CTRL | Qt::Key_I},
            beside([this] { properties_->setVisible(properties_->isHidden()); }),
            true}});
  BuildStudyMenu();
  BuildPuzzleMenu();
  AddMenu(menuBar(), "&Help",
          {{"Helpx", "&Help", QKeySequence::keyBindings(QKeySequence::HelpContents), beside([this] {
              (new HelpForm(QCoreApplication::applicationDirPath(), this))->open();
            })},
           {"Aboutx", "&About", none, beside([this] { (new AboutForm(this))->open(); })}});
  menuBar()->setCornerWidget(state_);
  undoItem_ = findChild<QAction*>("UndoMovex");
  redoItem_ = findChild<QAction*>("RedoMovex");
  saveItem_ = findChild<QAction*>("SaveAsx");
  exportItem_ = findChild<QAction*>("ExportPicturex");
  checkItem_ = findChild<QAction*>("CheckTotalsx");
  size_ = new ViewControl(this, place_, {leftColumn_, properties_},
                          findChild<QAction*>("FitBoardx"), findChild<QAction*>("FullScreenx"));
  room_ = new PanelRoom(this);  // behind it, so as to know of a new state before it does
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  OnSignal(runner_, escape, &QShortcut::activated, this, [this] { Escape(); });
}

}  // namespace numorra
