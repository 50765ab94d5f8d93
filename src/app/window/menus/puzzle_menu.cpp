#include "app/window/menus/puzzle_menu.h"

#include <utility>

#include <QClipboard>
#include <QGuiApplication>

#include "app/window/forms/enter_code_form.h"
#include "app/window/forms/hide_numbers_form.h"
#include "app/window/menus/notes_items.h"
#include "study/special.h"
#include "toolkit/menus.h"
#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {

PuzzleMenu::PuzzleMenu(QMenuBar* bar, Desk& desk, SearchStage& stage,
                       const WorksheetForm::Ports& sheets, QWidget* state)
    : QObject(bar), window_(bar->window()), desk_(desk), stage_(stage), sheets_(sheets) {
  QMenu* menu = bar->addMenu(Tr("&Puzzle"));
  Session& session = desk_.TheSession;
  const auto remark = [this](const char* name, const char* doing, std::function<Remark()> find) {
    return [this, name, doing, find = std::move(find)] { ShowRemark(name, doing, find); };
  };
  AddItem(menu, {"HideNumbersx", Tr("&Hide Numbers..."), {}, [this] {
                   desk_.Runner.Run(Say("Hide Numbers"), [this] { OpenHideNumbers(); });
                 }});
  needBoard_ += AddItem(menu, {"EnterPuzzlex",
                               Tr("&Enter Your Own"),
                               {},
                               remark(Mark("Enter Your Own"), Mark("Looking for solutions"),
                                      [&session] { return session.EnterPuzzle(); })});
  needBoard_ += AddItem(menu, {"EmptyBoardx", Tr("E&mpty Board"), {}, [this] {
                                 desk_.RunOnCurrentCell(Say("Empty Board"), [this] {
                                   desk_.TheSession.EmptyBoard();
                                   desk_.Menu.EnableEditing(true);
                                 });
                               }});
  QAction* code = AddItem(
      menu, {"CopyPuzzleCodex", Tr("C&opy Code"), {}, desk_.Beside([this] { CopyCode(); })});
  needBoard_ += code;
  AddItem(menu, {"EnterCodex", Tr("Enter Co&de..."), {}, [this] {
                   desk_.Runner.Run(Say("Enter Code"), [this] { OpenEnterCode(); });
                 }});
  menu->addSeparator();
  needBoard_ += AddItem(menu, {"Hintx",
                               Tr("H&int"),
                               {Qt::CTRL | Qt::Key_H},
                               remark(Mark("Hint"), Mark("Looking for a hint"),
                                      [&session] { return session.Hint(); })});
  needBoard_ += AddItem(menu, {"CheckEntriesx",
                               Tr("&Check Entries"),
                               {},
                               remark(Mark("Check Entries"), Mark("Checking the entries"),
                                      [&session] { return session.CheckEntries(); })});
  needBoard_ += AddItem(menu, {"FillGapsx", Tr("&Fill Gaps"), {}, [this] {
                                 FillGaps(Say("Fill Gaps"), LineKind::Magic);
                               }});
  AddFillAs(menu);
  new NotesItems(menu, desk_,
                 remark(Mark("Back to Last Right"), Mark("Looking for the first wrong entry"),
                        [&session] { return session.BackToLastRight(); }));
  state->setContextMenuPolicy(Qt::ActionsContextMenu);
  state->addAction(code);

  BoardPlace& place = desk_.Place;
  OnClick(desk_.Runner, place.SearchBar->Button, this,
          [this] { desk_.Runner.Run(Say("Stop"), [] {}); });
  OnClick(desk_.Runner, place.RemarkBar->Button, this, [this] { desk_.Place.ForgetRemark(); });
  OnClick(desk_.Runner, place.BackButton, this, [this] { desk_.Place.StepRemark(-1); });
  OnClick(desk_.Runner, place.NextButton, this, [this] { desk_.Place.StepRemark(1); });
  desk_.TheSession.Watch.Listen([this](const CommandResult& result) {
    desk_.Place.EndCommand(result.ChangedTheBoard());
    ShowState();
  });
  ShowState();
}

void PuzzleMenu::ShowState() {
  for (QAction* item : needBoard_)
    item->setEnabled(desk_.TheBoard().Shown());
}

void PuzzleMenu::ShowRemark(const char* name, const char* doing, std::function<Remark()> find) {
  desk_.RunOnCurrentCell(Say(name), [this, doing, find = std::move(find)] {
    stage_.Call(Tr(doing));
    desk_.Place.ShowRemark(find());
  });
}

void PuzzleMenu::AddFillAs(QMenu* menu) {
  QMenu* as = Named("FillGapsAsx", menu->addMenu(Tr("Fill Gaps &As")));
  for (const SpecialKind& kind : kSpecialKinds) {
    const LineKind* const lines = FindLineKind(kind.Term);
    if (!lines) continue;
    const std::string name = std::string("FillAs") + kind.Name;
    // Translators: %1 is a kind of squares as the menu names it, such as "Pandiagonal".
    const std::string command = Say("Fill Gaps As %1", WithoutMnemonic(Tr(kind.Caption)));
    AddItem(as, {name.c_str(), Tr(kind.Caption), {}, [this, command, lines] {
                   FillGaps(command, *lines);
                 }});
  }
  needBoard_ += as->menuAction();
}

void PuzzleMenu::FillGaps(const std::string& name, LineKind kind) {
  desk_.RunOnCurrentCell(name, [this, kind] {
    desk_.Place.ForgetRemark();
    stage_.Call(Tr("Filling the gaps"));
    desk_.TheSession.FillGaps(kind);
  });
}

void PuzzleMenu::CopyCode() {
  if (const auto code = desk_.TheSession.PuzzleCode()) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(*code));
  }
}

void PuzzleMenu::OpenHideNumbers() {
  const auto fresh = desk_.TheSession.WishForFreshSquares();
  if (!fresh) return;
  auto* form = new HideNumbersForm(desk_.TheSession.SquareToHide(), *fresh,
                                   desk_.TheSession.TheRandom, desk_.TheDialogs, window_);
  OnSignal(desk_.Runner, form, &HideNumbersForm::Taken, this, [this](const MadePuzzle& made) {
    desk_.Runner.Run(Say("Hide Numbers"), [this, made] {
      desk_.TheSession.Take(made);
      desk_.ShowLaidOut();
    });
  });
  form->open();
}

void PuzzleMenu::OpenEnterCode() {
  auto* form = new EnterCodeForm(desk_.TheSession.TheRandom, desk_.TheDialogs, window_);
  OnSignal(desk_.Runner, form, &EnterCodeForm::Taken, this, [this](const Puzzle& puzzle) {
    desk_.Runner.Run(Say("Enter Code"), [this, puzzle] {
      desk_.TheSession.LayOut(StoredSquareOf(puzzle, true));
      desk_.ShowLaidOut();
    });
  });
  OnSignal(desk_.Runner, form, &EnterCodeForm::SetTaken, this,
           [this](const std::vector<MadePuzzle>& puzzles) {
             desk_.Runner.Run(Say("Print Worksheet"), [this, puzzles] {
               desk_.OpenWorksheet({Tr("Puzzles &by their codes: %1", puzzles.size()), puzzles},
                                   sheets_, window_);
             });
           });
  form->open();
}

}  // namespace numorra
