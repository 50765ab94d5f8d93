#include "generate/stepping_moves.h"

#include <cstdlib>
#include <utility>

#include "words/say.h"

namespace numorra {
namespace {

/// The line from 1 to n for a line counted on beyond the edge.
int Wrapped(int line, int n) {
  return (line - 1 + n) % n + 1;
}

/// The shortest step from one line to another, with wrap-around.
int StepBetween(int from, int to, int n) {
  const int forward = (to - from + n) % n;
  return forward > n / 2 ? forward - n : forward;
}

/// Whether the moves are of the kinds that the sentences have words for.
bool AreNamed(const SteppingMoves& moves) {
  const int area = std::abs(moves.Usual.Rows * moves.Usual.Columns);
  const int straight = moves.Break.Rows * moves.Break.Columns == 0
                           ? std::abs(moves.Break.Rows + moves.Break.Columns)
                           : 0;
  return (area == 1 || area == 2) && (straight == 1 || straight == 2);
}

/// The direction of a move that is no line's: "up and to the right", "two up and one to the right".
std::string Direction(Move move) {
  constexpr const char* kDiagonal[2][2] = {
      // Translators: directions stand in "3 goes up and to the right" and "4 finds 1 in its way up
      // and to the right, so it goes below 3"
      {Mark("up and to the left"), Mark("up and to the right")},
      {Mark("down and to the left"), Mark("down and to the right")}};
  constexpr const char* kTwoRows[2][2] = {
      {Mark("two up and one to the left"), Mark("two up and one to the right")},
      {Mark("two down and one to the left"), Mark("two down and one to the right")}};
  constexpr const char* kTwoColumns[2][2] = {
      {Mark("one up and two to the left"), Mark("one up and two to the right")},
      {Mark("one down and two to the left"), Mark("one down and two to the right")}};
  const auto& directions = std::abs(move.Rows) == 2      ? kTwoRows
                           : std::abs(move.Columns) == 2 ? kTwoColumns
                                                         : kDiagonal;
  return Say(directions[move.Rows < 0 ? 0 : 1][move.Columns < 0 ? 0 : 1]);
}

/// Where a move along a line ends: "two above 3".
std::string Beside(int number, Move move) {
  constexpr const char* kSides[2][4] = {
      // Translators: %1 is a number; another one goes to a cell beside it: "so it goes above 3"
      {Mark("above %1"), Mark("below %1"), Mark("to the left of %1"), Mark("to the right of %1")},
      {Mark("two above %1"), Mark("two below %1"), Mark("two to the left of %1"),
       Mark("two to the right of %1")}};
  const int by = move.Rows + move.Columns;
  const int side = (move.Rows != 0 ? 0 : 2) + (by < 0 ? 0 : 1);
  return Say(kSides[std::abs(by) - 1][side], number);
}

/// The sentence about a move with how it leaves the board, if it does: "2 goes up and to the right,
/// out of the board at the top, so in at the bottom".
std::string WithLeaving(std::string sentence, Place from, Move move, int n) {
  const auto add = [&](int line, int moved, const char* low, const char* high) {
    if (line + moved != Wrapped(line + moved, n)) sentence = Say(moved < 0 ? low : high, sentence);
  };
  // Translators: %1 is a move: "2 goes up and to the right"; a move may leave the board twice
  add(from.Row, move.Rows, Mark("%1, out of the board at the top, so in at the bottom"),
      Mark("%1, out of the board at the bottom, so in at the top"));
  add(from.Column, move.Columns, Mark("%1, out of the board on the left, so in on the right"),
      Mark("%1, out of the board on the right, so in on the left"));
  return sentence;
}

}  // namespace

std::optional<SteppingMoves> MovesOf(const PlacedNumbers& square) {
  const int n = square.Order();
  const auto between = [&](int a, int b) {
    const Place from = square.PlaceOf(a);
    const Place to = square.PlaceOf(b);
    return Move{StepBetween(from.Row, to.Row, n), StepBetween(from.Column, to.Column, n)};
  };
  const SteppingMoves moves{between(1, 2), between(n, n + 1)};
  if (!AreNamed(moves)) return std::nullopt;
  for (int number = 1; number < n * n; ++number) {
    if (between(number, number + 1) != (number % n == 0 ? moves.Break : moves.Usual)) {
      return std::nullopt;
    }
  }
  return moves;
}

bool IsDiagonal(const SteppingMoves& moves) {
  return std::abs(moves.Usual.Rows * moves.Usual.Columns) == 1;
}

std::string MoveSentence(const PlacedNumbers& square, const SteppingMoves& moves, int number,
                         const std::string& name) {
  // Translators: here and in the next phrases, %1 is a number, or "block 3"
  if (number == 1) return Say("%1 goes to %2", name, NameOf(square.PlaceOf(1)));
  const int n = square.Order();
  const Place from = square.PlaceOf(number - 1);
  const Move wanted = moves.Usual;
  if (number % n != 1) {
    // Translators: %2 is a direction, such as "up and to the right"
    return WithLeaving(Say("%1 goes %2", name, Direction(wanted)), from, wanted, n);
  }
  const Place taken{Wrapped(from.Row + wanted.Rows, n), Wrapped(from.Column + wanted.Columns, n)};
  // Translators: %2 is a number, %3 a direction, such as "up and to the right", and %4 is like
  // "above 3"
  return WithLeaving(Say("%1 finds %2 in its way %3, so it goes %4", name, square.At(taken),
                         Direction(wanted), Beside(number - 1, moves.Break)),
                     from, moves.Break, n);
}

std::vector<WalkStep> StepsByMoves(const PlacedNumbers& square, const SteppingMoves& moves) {
  const int n = square.Order();
  std::vector<WalkStep> walk;
  for (int number = 1; number <= n * n; ++number) {
    const Place here = square.PlaceOf(number);
    WalkStep step{{{here, std::to_string(number)}}, {here}, {}, {}, number};
    if (number > 1) step.Arrow = {square.PlaceOf(number - 1), here};
    step.Sentence = MoveSentence(square, moves, number, Written(std::to_string(number)));
    walk.push_back(std::move(step));
  }
  return walk;
}

}  // namespace numorra
