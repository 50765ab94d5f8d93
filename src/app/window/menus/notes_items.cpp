#include "app/window/menus/notes_items.h"

#include <utility>

#include "toolkit/menus.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {

NotesItems::NotesItems(QMenu* menu, Desk& desk, const std::function<void()>& back)
    : QObject(menu), desk_(desk) {
  menu->addSeparator();
  notes_ = AddItem(menu, {"Notesx",
                          Tr("&Notes"),
                          {Qt::CTRL | Qt::Key_N},
                          desk_.Beside([this] {
                            desk_.TheSession.Noting().TakeNotes(notes_->isChecked());
                            ShowState();
                            desk_.Place.View->setFocus();
                          }),
                          true});
  fill_ = AddItem(menu, {"FillNotesx", Tr("Fill No&tes"), {}, [this] { Fill(); }});
  clear_ = AddItem(menu, {"ClearNotesx", Tr("Clea&r Notes"), {}, [this] {
                            desk_.RunOnCurrentCell(Say("Clear Notes"),
                                                   [this] { desk_.TheSession.ClearNotes(); });
                          }});
  back_ = AddItem(menu, {"LastRightx", Tr("&Back to Last Right"), {}, back});
  desk_.TheSession.Watch.Listen([this](const CommandResult&) { ShowState(); });
  OnSignal(desk_.Runner, &desk_.Place, &BoardPlace::SightChanged, this, [this] { ShowMissing(); });
  ShowState();
}

void NotesItems::Fill() {
  desk_.RunOnCurrentCell(Say("Fill Notes"), [this] {
    const Remark why = desk_.TheSession.FillNotes();
    if (!why.Text.empty()) desk_.Place.ShowRemark(why);
  });
}

void NotesItems::ShowState() {
  Session& session = desk_.TheSession;
  const Board& board = session.TheBoard;
  const bool gaps = board.HasGaps();
  const bool noting = session.Noting().TakingNotes();
  notes_->setEnabled(gaps);
  notes_->setChecked(noting);
  fill_->setEnabled(gaps);
  clear_->setEnabled(!board.grid.AllNotes().IsEmpty());
  back_->setEnabled(board.HasGivens() && session.History.CanUndo());
  desk_.Place.View->SetNoting(noting);
  ShowMissing();
}

/// A number that is being typed neither brings the panel nor takes it away. Walks hide it.
void NotesItems::ShowMissing() {
  NumbersToPlace now = NumbersToPlaceOn(desk_.TheBoard());
  const bool changes = now.Numbers.empty() != missing_.Numbers.empty();
  if (!changes || !desk_.TheBoard().Typing()) missing_ = std::move(now);
  desk_.Place.Missing->Show(desk_.Place.Walking() ? NumbersToPlace() : missing_,
                            desk_.TheSession.Noting().TakingNotes());
}

}  // namespace numorra
