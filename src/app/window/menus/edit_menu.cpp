#include "app/window/menus/edit_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "app/play/board_text.h"
#include "app/play/moves.h"
#include "files/square_text.h"
#include "toolkit/menus.h"

namespace numorra {

EditMenu::EditMenu(QMenuBar* bar, Desk& desk) : QObject(bar), desk_(desk) {
  QMenu* menu = bar->addMenu("&Edit");
  undo_ = AddItem(menu, {"UndoMovex", "&Undo", {Qt::CTRL | Qt::Key_Z}, [this] {
                           Walk("Undo", &UndoHistory::Undo);
                         }});
  redo_ = AddItem(menu, {"RedoMovex",
                         "&Redo",
                         {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y},
                         [this] { Walk("Redo", &UndoHistory::Redo); }});
  menu->addSeparator();
  AddItem(menu, {"Copyx", "&Copy Board", QKeySequence::keyBindings(QKeySequence::Copy),
                 desk_.Beside([this] { Copy(true); })});
  AddItem(menu, {"CopyNumbersx",
                 "Copy &Numbers",
                 {Qt::CTRL | Qt::SHIFT | Qt::Key_C},
                 desk_.Beside([this] { Copy(false); })});
  AddItem(menu, {"Pastex", "&Paste Board", QKeySequence::keyBindings(QKeySequence::Paste),
                 [this] { desk_.Runner.Run("Paste", [this] { Paste(); }); }});
  menu->addSeparator();
  check_ = AddItem(menu, {"CheckTotalsx", "Check &Totals", {Qt::Key_F9}, [this] {
                            desk_.RunOnCurrentCell("Check Totals", [this] {
                              desk_.TheSession.CheckTheTotals();
                              desk_.Menu.EnableEditing(true);
                            });
                          }});
  desk_.TheSession.Watch.Listen([this](const CommandResult&) { ShowState(); });
  ShowState();
}

void EditMenu::ShowState() {
  const UndoHistory& history = desk_.TheSession.History;
  const auto show = [](QAction* item, const QString& caption, bool can, const std::string& step) {
    item->setEnabled(can);
    item->setText(can ? caption + " " + QString::fromStdString(step) : caption);
  };
  show(undo_, "&Undo", history.CanUndo(), history.CanUndo() ? history.UndoName() : "");
  show(redo_, "&Redo", history.CanRedo(), history.CanRedo() ? history.RedoName() : "");
  check_->setEnabled(desk_.TheBoard().Shown());
}

void EditMenu::Walk(const char* name, void (UndoHistory::*step)(Board&)) {
  desk_.Runner.Run(name, [this, step] {
    (desk_.TheSession.History.*step)(desk_.TheSession.TheBoard);
    desk_.BringCurrentCellIntoView();
  });
}

/// Copies the board as text for spreadsheets and texts, and as a picture for drawings.
void EditMenu::Copy(bool withPicture) {
  const Board& board = desk_.TheBoard();
  if (!board.Shown()) return;
  auto* copied = new QMimeData;
  copied->setText(QString::fromStdString(BoardText(board)));
  if (withPicture) {
    copied->setImageData(board.OverlayShown ? desk_.Place.Picture->grab().toImage()
                                            : desk_.Place.View->Picture());
  }
  QGuiApplication::clipboard()->setMimeData(copied);
}

/// Asks for the formats first, so that it waits only once for a program that does not answer.
void EditMenu::Paste() {
  const QMimeData* const copied = QGuiApplication::clipboard()->mimeData();
  const QString text = copied && copied->hasText() ? copied->text() : QString();
  if (text.size() > static_cast<qsizetype>(kMostTextBytes)) {
    desk_.TheDialogs.Tell(kTooLongForASquare);
    return;
  }
  if (!desk_.TheSession.Paste(text.toStdString())) return;
  desk_.ShowLaidOut();
  CheckAndReturn(desk_.TheSession.TheBoard, desk_.TheDialogs);
}

}  // namespace numorra
