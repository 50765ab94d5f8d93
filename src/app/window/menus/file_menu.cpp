#include "app/window/menus/file_menu.h"

#include <QApplication>
#include <QFileInfo>

#include "app/play/lay_out.h"
#include "app/window/menus/export_picture.h"
#include "app/window/menus/square_files.h"
#include "print/print_form.h"
#include "print/sheet.h"
#include "puzzle/code.h"
#include "toolkit/menus.h"
#include "toolkit/tr.h"

namespace numorra {

FileMenu::FileMenu(QMenuBar* bar, Desk& desk, const Ports& ports)
    : QObject(bar), window_(bar->window()), desk_(desk), ports_(ports) {
  const QList<QKeySequence> none;
  QMenu* menu = bar->addMenu(Tr("&File"));
  AddItem(menu, {"Openx", Tr("&Open..."), QKeySequence::keyBindings(QKeySequence::Open),
                 desk_.Beside([this] { ChooseAndOpen(); })});
  save_ =
      AddItem(menu, {"SaveAsx", Tr("&Save As..."), QKeySequence::keyBindings(QKeySequence::Save),
                     desk_.Beside([this] { Save(); })});
  export_ = AddItem(menu, {"ExportPicturex", Tr("&Export Picture..."), none,
                           desk_.Beside([this] { OpenExport(desk_, ports_.Files, window_); })});
  menu->addSeparator();
  AddItem(menu, {"PrintSol", Tr("&Print Solution"), QKeySequence::keyBindings(QKeySequence::Print),
                 desk_.Beside([this] { OpenPrintForm(); })});
  AddItem(
      menu,
      {"PrintWorksheetx", Tr("Print &Worksheet..."), {Qt::CTRL | Qt::SHIFT | Qt::Key_P}, [this] {
         desk_.Runner.Run(Say("Print Worksheet"), [this] { OpenWorksheet(); });
       }});
  menu->addSeparator();
  // Not every desktop has a standard key for this.
  AddItem(menu,
          {"Exitx", Tr("E&xit"), {Qt::CTRL | Qt::Key_Q}, [] { QApplication::closeAllWindows(); }});
  desk_.TheSession.Watch.Listen([this](const CommandResult&) { ShowState(); });
  ShowState();
}

void FileMenu::ShowState() {
  save_->setEnabled(desk_.TheBoard().Shown());
  export_->setEnabled(desk_.TheBoard().Shown());
}

void FileMenu::ChooseAndOpen() {
  const QString name = ports_.Files.ToOpen(window_, Tr("Open"), ReadableKinds());
  if (!name.isEmpty()) Open(name);
}

void FileMenu::Open(const QString& name) {
  desk_.Runner.Run(Say("Open"), [this, name] { Show(OpenSquare(name)); });
}

void FileMenu::OpenFileOrCode(const QString& name) {
  const std::string code = name.toStdString();
  if (QFileInfo::exists(name) || !LooksLikeCode(code)) return Open(name);
  desk_.Runner.Run(Say("Open"), [this, code] { Show(ReadSquareOrCode(code)); });
}

void FileMenu::Show(const std::variant<StoredSquare, Unreadable>& read) {
  if (const auto* unreadable = std::get_if<Unreadable>(&read)) {
    desk_.TheDialogs.Tell(unreadable->Why);
    return;
  }
  desk_.TheSession.LayOut(std::get<StoredSquare>(read));
  desk_.ShowLaidOut();
}

void FileMenu::Save() {
  const QString name = ports_.Files.ToSave(window_, Tr("Save As"), SquareKinds());
  if (!name.isEmpty()) SaveSquare(name, StoredSquareOf(desk_.TheBoard()));
}

/// Opens the print form if there is a visible board that fits on a page.
void FileMenu::OpenPrintForm() {
  const Board& board = desk_.TheBoard();
  if (!board.Shown() || !board.grid.Visible()) {
    desk_.TheDialogs.Tell(Say("nothing to print"));
  } else if (board.GridSize > kMaxPrintedOrder) {
    desk_.TheDialogs.Tell(Say("cannot print larger than 30x30 grid"));
  } else {
    (new PrintForm(board.grid, *desk_.Controls.Square, ports_.Sheets, desk_.TheDialogs, window_))
        ->open();
  }
}

void FileMenu::OpenWorksheet() {
  PuzzlesAtHand onBoard{Tr("The puzzle on the &board"), {}};
  if (auto solved = desk_.TheSession.SolvedPuzzleOnBoard()) {
    onBoard.Puzzles.push_back(*std::move(solved));
  }
  desk_.OpenWorksheet(std::move(onBoard), {ports_.Pages, ports_.Files}, window_);
}

}  // namespace numorra
