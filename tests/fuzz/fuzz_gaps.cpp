#include "files/aim.h"
#include "files/square_text.h"
#include "fuzz/check.h"
#include "support/puzzle_judge.h"

using namespace numorra;

namespace {

bool Solves(const Puzzle& solved, const Puzzle& puzzle) {
  for (int cell = 0; cell < solved.Cells.Size(); ++cell) {
    if (puzzle.Cells[cell] != 0 && puzzle.Cells[cell] != solved.Cells[cell]) return false;
    if (solved.Cells[cell] < 1 || solved.Cells[cell] > puzzle.Most()) return false;
  }
  if (puzzle.Asked == Rules::Normal) return slow::WhyNotNormal(RowsOf(solved.Cells)).empty();
  return slow::WhyNotMagic(RowsOf(solved.Cells), static_cast<double>(puzzle.Target)).empty();
}

/// Every hint is right if there is one solution, and follows if the numbers are small enough to
/// judge.
void FollowHints(Puzzle board, const Puzzle& solved, Yielding& yielding) {
  constexpr int kMostJudged = 50;
  while (const auto next = NextDeduction(board, Grade::Expert, yielding)) {
    const int cell = next->Cell;
    Check(board.Cells[cell] == 0 && next->Number == solved.Cells[cell]);
    Check(board.Most() > kMostJudged ||
          ChainJudge(board).WhyWrong(*next, solved.Cells[cell]).empty());
    board.Cells[cell] = next->Number;
  }
}

}  // namespace

/// Boards with any numbers and gaps; the first byte chooses the rules. What the search says of
/// their solutions is true, and agrees with a plain search where that can count them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  auto read = ReadSquareText(TextOf(data + 1, size - 1));
  auto* square = std::get_if<StoredSquare>(&read);
  constexpr int kMostOrder = 6;
  if (!square || square->Order() > kMostOrder) return 0;
  square->Asked = data[0] % 2 == 0 ? Rules::Normal : Rules::Positive;
  const auto aim = AimOf(*square);
  if (aim) square->Total = aim->Target;
  const auto asked = PuzzleOf(*square, data[0] % 3 == 0);
  if (const auto* against = std::get_if<AgainstRules>(&asked)) {
    Check(!against->Why.empty());
    return 0;
  }
  const auto& puzzle = std::get<Puzzle>(asked);
  SeededRandom random(1);
  SilentStage stage;
  const SearchResult result = Solve(puzzle, {.Nodes = 100}, random, stage);
  int solutions = 0;
  if (const auto* one = std::get_if<OneSolution>(&result)) {
    Check(Solves(one->Solved, puzzle));
    FollowHints(puzzle, one->Solved, stage);
    solutions = 1;
  } else if (const auto* several = std::get_if<SeveralSolutions>(&result)) {
    Check(Solves(several->First, puzzle) && Solves(several->Second, puzzle) &&
          several->First.Cells != several->Second.Cells);
    solutions = 2;
  } else if (const auto* open = std::get_if<NotSettled>(&result)) {
    Check(!open->Found || Solves(*open->Found, puzzle));
    return 0;
  }
  constexpr int kMostPlainGaps = 7;
  constexpr int kMostPlainNumber = 16;
  if (puzzle.Gaps() <= kMostPlainGaps && puzzle.Most() <= kMostPlainNumber) {
    Check(SlowCounter(puzzle).Count() == solutions);
  }
  return 0;
}
