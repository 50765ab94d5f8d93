#include "puzzle/puzzle_set.h"

#include <algorithm>
#include <utility>

#include "app/board/numbers.h"
#include "study/images.h"
#include "words/say.h"

namespace numorra {
namespace {

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
  const auto tell = [&](const std::string& what) {
    told = told.empty() ? what : Say("%1; %2", told, what);
  };
  if (otherTotal_) {
    tell(Say("the total is %1, not %2", *otherTotal_, *wish_.Square.Total));
  }
  if (otherGrade_ > 0) {
    tell(size_ == 1
             ? Say("the puzzle is of another grade than wished")
             : SayCounted("%1 of %2 puzzles is of another grade than wished",
                          "%1 of %2 puzzles are of another grade than wished", otherGrade_, size_));
  }
  if (repeated_ > 0) {
    tell(
        SayCounted("%1 of %2 puzzles repeats another one, turned or mirrored: no new one was found",
                   "%1 of %2 puzzles repeat another one, turned or mirrored: no new one was found",
                   repeated_, size_));
  }
  if (leftOut_ == size_) return whyLeftOut_;
  if (leftOut_ > 0) {
    tell(SayCounted("%1 of %2 puzzles was not made: %3", "%1 of %2 puzzles were not made: %3",
                    leftOut_, size_, whyLeftOut_));
  }
  return told;
}

}  // namespace numorra
