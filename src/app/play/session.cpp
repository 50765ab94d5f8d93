#include "app/play/session.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/totals_check.h"
#include "app/play/board_text.h"
#include "app/play/enter_puzzle.h"
#include "app/play/fill_gaps.h"
#include "app/play/last_right.h"
#include "app/play/lay_out.h"
#include "app/play/manual_board.h"
#include "app/play/puzzle_aids.h"
#include "app/play/study_commands.h"
#include "generate/corner_choice.h"
#include "generate/proposal.h"
#include "puzzle/candidates.h"
#include "puzzle/code.h"
#include "puzzle/only_solution.h"
#include "words/say.h"

namespace numorra {

Session::Session(Clock& clock) : TheRandom(clock), List2(TheRandom), List3(TheRandom) {}

Session::Commands::Commands(Session& session, const SessionPorts& ports)
    : Entry(session.TheBoard, ports.TheDialogs),
      Edits(session.TheBoard, ports.TheDialogs, session.TheRandom, session.LastCommand),
      Noting(session.TheBoard, ports.TheDialogs, session.History),
      Hints(session.TheBoard, session.TheRandom, ports.Searching),
      Solve({session.Context(), ports.Options, ports.Building, session.List2, session.List3}),
      TopRow(session.Context(), ports.Building) {}

void Session::Connect(const SessionPorts& ports) {
  ports_.emplace(ports);
  commands_.emplace(*this, ports);
  Watch.Listen([this](const CommandResult& result) { Follow(result); });
}

void Session::Follow(const CommandResult& result) {
  History.Note(result);
  ShowAids(TheBoard);
  if (result.Name != UndoHistory::kNoting) Noting().EndNumber();
  if (!TheBoard.HasGaps()) Noting().TakeNotes(false);
}

void Session::Disconnect() {
  Grid& grid = TheBoard.grid;
  grid.OnRepaint = grid.OnLeaveCell = grid.OnCellChanged = TheBoard.OnShown = nullptr;
  Watch.ForgetListeners();
  commands_.reset();
  ports_.reset();
}

void Session::Start() {
  TheBoard.TargetTotal = Val(ports_->Boxes.Sum());
  TheBoard.BaseValue = ToInt16(TheBoard.TargetTotal);
  TheBoard.GridSize = ToInt16(Val(ports_->Boxes.Size()));
  SetMode(ModeNormal);
  ProposeSquare();
}

void Session::SetMode(Mode mode) {
  TheBoard.SolveMode = mode;
  FollowSize();
}

void Session::FollowSize() {
  if (TheBoard.SolveMode == ModeVariable) return;
  ports_->Boxes.SetSum(NormalTotalText(ports_->Boxes.Size()));
}

void Session::ProposeSquare() {
  numorra::ProposeSquare(ports_->Boxes, TheBoard.SolveMode, TheRandom);
}

void Session::OfferCorners(ListBox& choice) {
  numorra::OfferCorners(TheBoard, ports_->Boxes, List2, choice);
}

void Session::BuildManually() {
  BuildManualBoard(Context(), ports_->Building);
}

bool Session::BuildFromTopRow() {
  if (!commands_->TopRow.Run()) return false;
  TheBoard.SolveMode = ModeVariable;
  return true;
}

void Session::CheckTheTotals() {
  RecountInPlace(TheBoard);
}

void Session::SetQuietTotals(bool quiet) {
  TheBoard.QuietTotals = quiet;
  if (TheBoard.Shown() && TheBoard.TotalsJudged) RecountInPlace(TheBoard);
}

void Session::LayOut(const StoredSquare& square) {
  numorra::LayOut(TheBoard, ports_->Boxes, square);
}

bool Session::Paste(const std::string& text) {
  return PasteBoard(Context(), text);
}

void Session::Vary() {
  VaryBoard(Context());
}

void Session::Complement() {
  ComplementBoard(Context());
}

void Session::BringToStandardForm() {
  numorra::BringToStandardForm(Context());
}

void Session::ShowRelative(const Relative& relative) {
  numorra::ShowRelative(relative, Context());
}

std::vector<const Relative*> Session::RelativesOfBoard() const {
  const auto square = SquareOn(TheBoard);
  return square ? RelativesOf(square->Numbers()) : std::vector<const Relative*>();
}

bool Session::LayOutConstruction(const Construction& construction) {
  return numorra::LayOutConstruction(construction, Context());
}

bool Session::LayOutSpecial(const SpecialKind& kind) {
  return numorra::LayOutSpecial(kind, Context());
}

void Session::LayOutFamous(const FamousSquare& famous) {
  numorra::LayOutFamous(famous, Context());
}

Remark Session::Hint() {
  return commands_->Hints.Next();
}

Remark Session::CheckEntries() {
  return numorra::CheckEntries(TheBoard, TheRandom, ports_->Searching);
}

Remark Session::EnterPuzzle() {
  return numorra::EnterPuzzle(Context(), ports_->Searching);
}

void Session::FillGaps(LineKind kind) {
  numorra::FillGaps(Context(), ports_->Options.LimitToNine(), ports_->Searching, kind);
}

Remark Session::FillNotes() {
  return numorra::FillNotes(TheBoard);
}

void Session::ClearNotes() {
  numorra::ClearNotes(TheBoard);
}

Remark Session::BackToLastRight() {
  return numorra::BackToLastRight(TheBoard, History, TheRandom, ports_->Searching);
}

void Session::EmptyBoard() {
  numorra::EmptyBoard(TheBoard);
}

std::optional<Puzzle> Session::PuzzleOnBoard() const {
  if (!TheBoard.Shown() || !TheBoard.HasGaps() || WhyNoBoardHas(TheBoard.GridSize)) {
    return std::nullopt;
  }
  StoredSquare square = StoredSquareOf(TheBoard);
  for (int cell = 0; cell < square.Givens.Size(); ++cell) {
    if (!square.Givens[cell]) square.Cells[cell].reset();
  }
  auto read = PuzzleOf(square);
  auto* const puzzle = std::get_if<Puzzle>(&read);
  return puzzle ? std::optional(std::move(*puzzle)) : std::nullopt;
}

std::optional<MadePuzzle> Session::SolvedPuzzleOnBoard() {
  constexpr double kAtOnce = 0.03;
  const auto clues = PuzzleOnBoard();
  if (!clues) return std::nullopt;
  SilentStage stage;
  const auto solved = WithOnlySolution(*clues, {.Seconds = kAtOnce}, TheRandom, stage);
  const auto* one = std::get_if<MadePuzzle>(&solved);
  return one ? std::optional(*one) : std::nullopt;
}

std::optional<std::string> Session::PuzzleCode() const {
  const auto puzzle = PuzzleOnBoard();
  const std::string code = puzzle ? CodeOf(*puzzle) : "";
  if (!code.empty()) return code;
  ports_->TheDialogs.Tell(
      Say("only puzzles of size 3 to 20 have a code: boards with gaps and numbers that break no "
          "rule"));
  return std::nullopt;
}

std::optional<SquareWish> Session::WishForFreshSquares() const {
  SquareWish wish{.Order = ToInt16(Val(ports_->Boxes.Size()))};
  if (const char* why = WhyNoBoardHas(wish.Order)) {
    ports_->TheDialogs.Tell(Say(why));
    return std::nullopt;
  }
  if (TheBoard.SolveMode != ModeVariable) return wish;
  wish.LimitToNine = ports_->Options.LimitToNine();
  constexpr auto kMost = static_cast<double>(Puzzle::kMostTarget);
  const auto total =
      static_cast<std::int64_t>(std::clamp(AsShown(Val(ports_->Boxes.Sum())), 1.0, kMost));
  if (total != NormalTotal(wish.Order)) wish.Total = total;
  return wish;
}

PuzzleSource Session::SquareToHide() const {
  if (!TheBoard.Shown() || TheBoard.HasGaps()) return {.WhyNot = Say("there is no full board")};
  auto read = PuzzleOf(StoredSquareOf(TheBoard), false);
  if (const auto* against = std::get_if<AgainstRules>(&read)) return {.WhyNot = against->Why};
  if (const char* none = WhyNoBoardHas(TheBoard.GridSize)) return {.WhyNot = Say(none)};
  auto& square = std::get<Puzzle>(read);
  if (!Candidates(square).Propagate(Grade::Easy)) {
    return {.WhyNot = Say("not all lines of the board are right")};
  }
  return {.Square = std::move(square)};
}

void Session::Take(const MadePuzzle& made) {
  LayOut(StoredSquareOf(made.Clues, true));
}

}  // namespace numorra
