#include "puzzle/puzzle_set.h"

#include <algorithm>
#include <utility>

#include "app/board/numbers.h"
#include "study/images.h"

namespace numorra {
namespace {

/// "3 of 30 puzzles", or "1 of 30 puzzles"; of one puzzle "the puzzle".
std::string CountedOf(int count, int all) {
  if (all == 1) return "the puzzle";
  return std::to_string(count) + " of " + std::to_string(all) + " puzzles";
}

const char* Verb(int count, const char* one, const char* more) {
  return count == 1 ? one : more;
}

/// The same for all images of a puzzle.
std::size_t HashOf(const Puzzle& puzzle) {
  std::string numbers;
  for (const double number : StandardForm(Square<double>(puzzle.Cells)))
    numbers += Decimal(number) + ' ';
  return std::hash<std::string>()(numbers);
}

}  // namespace

PuzzleSet::PuzzleSet(PuzzleSetWish wish, Random& random, Yielding& yielding)
    : wish_(std::move(wish)), random_(random), yielding_(yielding) {
  std::stable_sort(wish_.Grades.begin(), wish_.Grades.end(),
                   [](const GradeShare& a, const GradeShare& b) { return a.Wanted < b.Wanted; });
  for (const GradeShare& share : wish_.Grades)
    size_ += share.Count;
}

std::optional<MadePuzzle> PuzzleSet::Next() {
  constexpr int kMostInARow = 5;
  for (; share_ < wish_.Grades.size(); ++share_, ofShare_ = 0) {
    const auto [wanted, count] = wish_.Grades[share_];
    for (int inARow = 0; ofShare_ < count && inARow < kMostInARow; ++inARow) {
      ++ofShare_;
      if (auto made = Make(wanted)) {
        Note(*made, wanted);
        return made;
      }
      ++leftOut_;
    }
    leftOut_ += count - ofShare_;
  }
  return std::nullopt;
}

std::optional<MadePuzzle> PuzzleSet::Make(Grade wanted) {
  constexpr int kMostTries = 50;
  std::optional<MadePuzzle> repeated;
  for (int attempt = 0; attempt < kMostTries; ++attempt) {
    auto result = MakeFreshPuzzle(wish_.Square, {wanted, wish_.ClueCount, wish_.Symmetric}, random_,
                                  yielding_);
    if (const auto* cannot = std::get_if<CannotMake>(&result)) {
      if (repeated) break;
      whyLeftOut_ = cannot->Why;
      return std::nullopt;
    }
    auto& made = std::get<MadePuzzle>(result);
    if (known_.insert(HashOf(made.Clues)).second) return made;
    repeated = std::move(made);
  }
  ++repeated_;
  return repeated;
}

void PuzzleSet::Note(const MadePuzzle& made, Grade wanted) {
  if (made.Needed != wanted) ++otherGrade_;
  if (wish_.Square.Total && made.Clues.Target != *wish_.Square.Total) {
    otherTotal_ = made.Clues.Target;
  }
}

std::string PuzzleSet::Shortfall() const {
  std::string told;
  const auto tell = [&](const std::string& what) { told += (told.empty() ? "" : "; ") + what; };
  if (otherTotal_) {
    tell("the total is " + std::to_string(*otherTotal_) + ", not " +
         std::to_string(*wish_.Square.Total));
  }
  if (otherGrade_ > 0) {
    tell(CountedOf(otherGrade_, size_) + Verb(otherGrade_, " is", " are") +
         " of another grade than wished");
  }
  if (repeated_ > 0) {
    tell(CountedOf(repeated_, size_) + Verb(repeated_, " repeats", " repeat") +
         " another one, turned or mirrored: no new one was found");
  }
  if (leftOut_ == size_) return whyLeftOut_;
  if (leftOut_ > 0) {
    tell(CountedOf(leftOut_, size_) + Verb(leftOut_, " was", " were") +
         " not made: " + whyLeftOut_);
  }
  return told;
}

}  // namespace numorra
