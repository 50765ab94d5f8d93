#include "app/play/note_entry.h"

#include <algorithm>

#include "app/play/fill_gaps.h"
#include "app/play/lay_out.h"
#include "app/play/moves.h"
#include "app/play/puzzle_aids.h"
#include "puzzle/candidates.h"

namespace numorra {
namespace {

constexpr char32_t kTakeBack = 8;
constexpr int kTen = 10;

/// The largest number that can be noted on the board.
int LargestNote(const Board& board) {
  return board.ByNormalRules() ? board.GridSize * board.GridSize : kMostNoted;
}

/// Why the numbers on the board leave a gap without candidates.
std::string WhyNothingFits(const Puzzle& puzzle, const Candidates& candidates) {
  const int line = candidates.FailedLine();
  const std::string wrong = FullWrongLine(puzzle);
  if (!wrong.empty() || line < 0) return "nothing can fill these gaps" + wrong;
  return "nothing can fill the gaps of " + candidates.Map().NameOf(line);
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
    dialogs_.Tell(NameOf(place) + " holds a number: only gaps take notes");
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
  Candidates candidates(puzzle);
  if (!candidates.Narrow(Grade::Hard)) return {WhyNothingFits(puzzle, candidates)};
  const int cells = candidates.Cells();
  for (int cell = 0; cell < cells; ++cell) {
    if (candidates.Value(cell) != 0 || candidates.High(cell) <= kMostNoted) continue;
    const Place place = PlaceAt(cell, candidates.Order());
    return {NameOf(place) + " may hold a number above " + std::to_string(kMostNoted) +
                ", which is too large for notes",
            {place}};
  }
  board.grid.SetNotes(NotesOf(candidates.Order(), [&](int cell) {
    NoteSet numbers;
    if (candidates.Value(cell) != 0) return numbers;
    for (std::int64_t number = candidates.Low(cell); number <= candidates.High(cell); ++number)
      numbers[static_cast<std::size_t>(number)] = candidates.Allows(cell, number);
    return numbers;
  }));
  return {};
}

void ClearNotes(Board& board) {
  board.grid.SetNotes({});
}

}  // namespace numorra
