#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/play/fill_gaps.h"
#include "app/play/lay_out.h"
#include "app/window/hide_numbers_form.h"
#include "app/window/main_window.h"
#include "app/window/worksheet_form.h"
#include "puzzle/code.h"
#include "toolkit/menus.h"
#include "toolkit/on_signal.h"

namespace numorra {

/// Boards with gaps: made, solved with help, filled.
void MainWindow::BuildPuzzleMenu() {
  const auto remark = [this](const char* name, const char* doing, auto body) {
    return [this, name, doing, body] {
      RunOnCurrentCell(name, [this, doing, body] {
        searchStage_.ShowCount(doing);
        place_->ShowRemark(body());
      });
    };
  };
  QMenu* menu = AddMenu(menuBar(), "&Puzzle",
                        {{"HideNumbersx",
                          "&Hide Numbers...",
                          {},
                          [this] { runner_.Run("Hide Numbers", [this] { OpenHideNumbers(); }); }},
                         {"EnterPuzzlex",
                          "&Enter Your Own",
                          {},
                          remark("Enter Your Own", "Looking for solutions",
                                 [this] { return EnterPuzzle(board_, random_, searchStage_); })},
                         {"EmptyBoardx",
                          "E&mpty Board",
                          {},
                          [this] {
                            RunOnCurrentCell("Empty Board", [this] {
                              EmptyBoard(board_);
                              menu_->EnableEditing(true);
                            });
                          }},
                         {"CopyPuzzleCodex",
                          "C&opy Code",
                          {},
                          [this] { runner_.RunBeside([this] { CopyPuzzleCode(); }); }},
                         {},
                         {"Hintx",
                          "H&int",
                          {Qt::CTRL | Qt::Key_H},
                          remark("Hint", "Looking for a hint", [this] { return hints_.Next(); })},
                         {"CheckEntriesx",
                          "&Check Entries",
                          {},
                          remark("Check Entries", "Checking the entries",
                                 [this] { return CheckEntries(board_, random_, searchStage_); })},
                         {"FillGapsx", "&Fill Gaps", {}, [this] {
                            RunOnCurrentCell("Fill Gaps", [this] {
                              place_->ForgetRemark();
                              searchStage_.ShowCount("Filling the gaps");
                              FillGaps(board_, LimitToNine(), dialogs_, searchStage_, random_);
                            });
                          }}});
  needBoard_ += menu->actions().mid(1);
  OnClick(runner_, place_->SearchBar->Button, this, [this] { runner_.Run("Stop", [] {}); });
  OnClick(runner_, place_->RemarkBar->Button, this, [this] { place_->ForgetRemark(); });
  state_->setContextMenuPolicy(Qt::ActionsContextMenu);
  state_->addAction(findChild<QAction*>("CopyPuzzleCodex"));
  watch_.Tell([this](const Deed& deed) { place_->EndCommand(deed.ChangedTheBoard()); });
}

/// The puzzle that stands on the board: its givens alone where it has any. Boards of one or two
/// rows, which Auto builds of their numbers, are none.
std::optional<Puzzle> MainWindow::PuzzleOnBoard() const {
  if (!board_.Shown() || !board_.HasGaps() || WhyNoBoardHas(board_.GridSize)) return std::nullopt;
  StoredSquare square = StoredSquareOf(board_);
  for (std::size_t cell = 0; cell < square.Givens.size(); ++cell) {
    if (!square.Givens[cell]) square.Cells[cell].reset();
  }
  auto read = PuzzleOf(square);
  auto* const puzzle = std::get_if<Puzzle>(&read);
  return puzzle ? std::optional(std::move(*puzzle)) : std::nullopt;
}

void MainWindow::CopyPuzzleCode() {
  const auto puzzle = PuzzleOnBoard();
  if (!puzzle || puzzle->Order > kMostCodedOrder) {
    return dialogs_.Tell(
        "there is a code for boards with gaps, of size 3 to 10, that keep their rules");
  }
  QGuiApplication::clipboard()->setText(QString::fromStdString(CodeOf(*puzzle)));
}

/// What a fresh square is to be like, by the boxes.
SquareWish MainWindow::FreshWish() const {
  SquareWish wish;
  wish.Order = ToInt16(Val(square_->Size()));
  if (board_.SolveMode != ModeVariable) return wish;
  wish.LimitToNine = LimitToNine();
  constexpr auto kMost = static_cast<double>(Puzzle::kMostTarget);
  const auto total =
      static_cast<std::int64_t>(std::clamp(AsShown(Val(square_->Sum())), 1.0, kMost));
  if (total != NormalTotal(wish.Order)) wish.Total = total;
  return wish;
}

void MainWindow::OpenHideNumbers() {
  const SquareWish fresh = FreshWish();
  if (const char* why = WhyNoBoardHas(fresh.Order)) return dialogs_.Tell(why);
  std::optional<Puzzle> square;
  QString whyNot = "there is no full board";
  if (board_.Shown() && !board_.HasGaps()) {
    const auto read = PuzzleOf(StoredSquareOf(board_), false);
    if (const auto* against = std::get_if<AgainstRules>(&read)) {
      whyNot = QString::fromStdString(against->Why);
    } else if (const char* none = WhyNoBoardHas(board_.GridSize)) {
      whyNot = none;
    } else if (Candidates(std::get<Puzzle>(read)).Propagate(Grade::Easy)) {
      square = std::get<Puzzle>(read);
    } else {
      whyNot = "not all lines of the board are right";
    }
  }
  auto* form = new HideNumbersForm(square, whyNot, fresh, random_, dialogs_, this);
  OnSignal(runner_, form, &HideNumbersForm::Taken, this, [this](const MadePuzzle& made) {
    runner_.Run("Hide Numbers", [this, made] {
      LayOut(board_, *square_, StoredSquareOf(made.Clues, true));
      ShowLaidOut();
    });
  });
  form->open();
}

/// The puzzle on the board, its own entries left out, where it has one solution that is found at
/// once.
void MainWindow::OpenWorksheet() {
  const SquareWish fresh = FreshWish();
  if (const char* why = WhyNoBoardHas(fresh.Order)) return dialogs_.Tell(why);
  std::optional<MadePuzzle> puzzle;
  if (const auto clues = PuzzleOnBoard()) {
    constexpr double kAtOnce = 0.03;
    SilentStage stage;
    const SearchResult result = Solve(*clues, {.Seconds = kAtOnce}, random_, stage);
    if (const auto* one = std::get_if<OneSolution>(&result)) {
      puzzle = MadePuzzle{*clues, one->Solved, GradeOf(*clues)};
    }
  }
  (new WorksheetForm(puzzle, fresh, pages_, random_, dialogs_, this))->open();
}

}  // namespace numorra
