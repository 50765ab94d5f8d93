#include "app/window/menus/edit_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "app/play/board_text.h"
#include "app/play/moves.h"
#include "files/square_text.h"
#include "toolkit/menus.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {}  // namespace

EditMenu::EditMenu(QMenuBar* bar, Desk& desk) : QObject(bar), desk_(desk) {
  QMenu* menu = bar->addMenu(Tr("&Edit"));
  undo_ = AddItem(menu, {"UndoMovex", Tr("&Undo"), {Qt::CTRL | Qt::Key_Z}, [this] {
                           Walk(Say("Undo"), &UndoHistory::Undo);
                         }});
  redo_ = AddItem(menu, {"RedoMovex",
                         Tr("&Redo"),
                         {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y},
                         [this] { Walk(Say("Redo"), &UndoHistory::Redo); }});
  menu->addSeparator();
  AddItem(menu, {"Copyx", Tr("&Copy Board"), QKeySequence::keyBindings(QKeySequence::Copy),
                 desk_.Beside([this] { Copy(true); })});
  AddItem(menu, {"CopyNumbersx",
                 Tr("Copy &Numbers"),
                 {Qt::CTRL | Qt::SHIFT | Qt::Key_C},
                 desk_.Beside([this] { Copy(false); })});
  AddItem(menu, {"Pastex", Tr("&Paste Board"), QKeySequence::keyBindings(QKeySequence::Paste),
                 [this] { desk_.Runner.Run(Say("Paste"), [this] { Paste(); }); }});
  menu->addSeparator();
  check_ = AddItem(menu, {"CheckTotalsx", Tr("Check &Totals"), {Qt::Key_F9}, [this] {
                            desk_.RunOnCurrentCell(Say("Check Totals"), [this] {
                              desk_.TheSession.CheckTheTotals();
                              desk_.Menu.EnableEditing(true);
                            });
                          }});
  desk_.TheSession.Watch.Listen([this](const CommandResult&) { ShowState(); });
  ShowState();
}

void EditMenu::ShowState() {
  const UndoHistory& history = desk_.TheSession.History;
  undo_->setEnabled(history.CanUndo());
  redo_->setEnabled(history.CanRedo());
  // Translators: %1 is the name of a command, such as "Fill Gaps" or "typing".
  undo_->setText(history.CanUndo() ? Tr("&Undo %1", history.UndoName()) : Tr("&Undo"));
  // Translators: %1 is the name of a command, such as "Fill Gaps" or "typing".
  redo_->setText(history.CanRedo() ? Tr("&Redo %1", history.RedoName()) : Tr("&Redo"));
  check_->setEnabled(desk_.TheBoard().Shown());
}

void EditMenu::Walk(const std::string& name, void (UndoHistory::*step)(Board&)) {
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
    desk_.TheDialogs.Tell(Say(kTooLongForASquare));
    return;
  }
  if (!desk_.TheSession.Paste(text.toStdString())) return;
  desk_.ShowLaidOut();
  CheckAndReturn(desk_.TheSession.TheBoard, desk_.TheDialogs);
}

}  // namespace numorra
