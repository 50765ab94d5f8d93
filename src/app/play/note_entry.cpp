#include "app/play/note_entry.h"

#include "app/play/fill_gaps.h"
#include "app/play/lay_out.h"
#include "app/play/moves.h"
#include "app/play/puzzle_aids.h"
#include "puzzle/fitting_numbers.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr char32_t kTakeBack = 8;
constexpr int kTen = 10;

/// The largest number that can be noted on the board.
int LargestNote(const Board& board) {
  return board.ByNormalRules() ? board.GridSize * board.GridSize : kMostNoted;
}

}  // namespace

void NoteEntry::TakeNotes(bool taking) {
  EndNumber();
  taking_ = taking;
}

bool NoteEntry::EndNumber() {
  const bool typed = cell_.has_value();
  cell_.reset();
  number_ = 0;
  return typed;
}

void NoteEntry::TypeCharacter(char32_t character) {
  if (!board_.TotalsChecked || !board_.Shown()) return;
  const bool digit = character >= U'0' && character <= U'9';
  const Place place{board_.grid.CurrentRow(), board_.grid.CurrentColumn()};
  if ((!digit && character != kTakeBack) || RefusesNotes(place)) return;
  const auto cell = static_cast<int>(IndexOf(place, board_.GridSize));
  if (cell_ != cell) EndNumber();
  if (!digit) {
    if (!cell_) {
      Begin(cell);
      before_.reset();
    }
    Toggle(number_ / kTen);
    if (number_ == 0) EndNumber();
    return;
  }
  const int value = static_cast<int>(character - U'0');
  const int longer = number_ * kTen + value;
  if (cell_ && longer <= LargestNote(board_)) return Toggle(longer);
  if (value == 0) return;
  Begin(cell);
  Toggle(value);
}

/// Whether the cell holds a number; then tells the player.
bool NoteEntry::RefusesNotes(Place place) {
  if (board_.grid.At(place.Row, place.Column).IsGap()) return false;
  if (MayChange(board_, dialogs_, place.Row, place.Column)) {
    dialogs_.Tell(Say("%1 holds a number: only gaps take notes", NameOf(place)));
  }
  return true;
}

void NoteEntry::Begin(int cell) {
  history_.EndTyping();
  cell_ = cell;
  number_ = 0;
  before_ = board_.grid.AllNotes()[cell];
}

/// Replaces what was typed so far by `number`; 0 for none.
void NoteEntry::Toggle(int number) {
  number_ = number;
  NoteSet now = before_;
  const auto bit = static_cast<std::size_t>(number);
  const bool placed = board_.ByNormalRules() && NumbersOnBoard(board_)[bit];
  if (number > 0 && number <= LargestNote(board_) && !placed) now.flip(bit);
  Notes notes = board_.grid.AllNotes();
  notes.Set(board_.GridSize, *cell_, now);
  board_.grid.SetNotes(std::move(notes));
}

Remark FillNotes(Board& board) {
  const auto read = PuzzleOf(StoredSquareOf(board));
  if (const auto* against = std::get_if<AgainstRules>(&read)) {
    Remark remark{against->Why};
    if (against->Where) remark.Where.push_back(*against->Where);
    return remark;
  }
  const auto& puzzle = std::get<Puzzle>(read);
  const std::string wrong = FullWrongLine(puzzle);
  if (!wrong.empty()) return {NothingCanFill(wrong)};
  const int order = puzzle.Order();
  Square<NoteSet> notes(order);
  for (int cell = 0; cell < puzzle.Cells.Size(); ++cell) {
    if (puzzle.Cells[cell] != 0) continue;
    const Place place = puzzle.Cells.PlaceOf(cell);
    const auto numbers = FittingNumbers(puzzle, cell, kMostNoted + 1);
    if (numbers.empty()) return {Say("no number fits %1", NameOf(place)), {place}};
    if (numbers.back() > kMostNoted) {
      return {Say("%1 may hold a number above %2, which is too large for notes", NameOf(place),
                  kMostNoted),
              {place}};
    }
    for (const std::int64_t number : numbers)
      notes[cell].set(static_cast<std::size_t>(number));
  }
  board.grid.SetNotes(NotesOf(order, [&](int cell) { return notes[cell]; }));
  return {};
}

void ClearNotes(Board& board) {
  board.grid.SetNotes({});
}

}  // namespace numorra
