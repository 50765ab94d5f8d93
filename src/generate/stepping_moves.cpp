#include "generate/stepping_moves.h"

#include <cstdlib>
#include <utility>

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

/// The direction of a move that is no line's, in words: "up and to the right", "two up and one to
/// the right".
std::string Direction(Move move) {
  const std::string up = move.Rows < 0 ? "up" : "down";
  const std::string right = move.Columns < 0 ? "left" : "right";
  if (std::abs(move.Rows) == 1 && std::abs(move.Columns) == 1) return up + " and to the " + right;
  const auto count = [](int cells) { return std::abs(cells) == 1 ? "one " : "two "; };
  return count(move.Rows) + up + " and " + count(move.Columns) + "to the " + right;
}

std::string Side(Move move) {
  const bool far = std::abs(move.Rows + move.Columns) == 2;
  if (move.Rows != 0) return std::string(far ? "two " : "") + (move.Rows < 0 ? "above" : "below");
  return std::string(far ? "two " : "") + (move.Columns < 0 ? "to the left of" : "to the right of");
}

/// "out of the board at the top, so in at the bottom", or nothing for a move that stays inside.
std::string Leaving(Place from, Move move, int n) {
  std::string leaving;
  const auto add = [&](int line, int moved, const char* low, const char* high) {
    if (line + moved == Wrapped(line + moved, n)) return;
    leaving += std::string(", out of the board ") + (moved < 0 ? low : high) + ", so in " +
               (moved < 0 ? high : low);
  };
  add(from.Row, move.Rows, "at the top", "at the bottom");
  add(from.Column, move.Columns, "on the left", "on the right");
  return leaving;
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

std::string MoveSentence(const PlacedNumbers& square, const SteppingMoves& moves, int number) {
  if (number == 1) return "1 goes to " + NameOf(square.PlaceOf(1));
  const int n = square.Order();
  const Place from = square.PlaceOf(number - 1);
  const Move wanted = moves.Usual;
  const std::string said = std::to_string(number);
  if (number % n != 1) return said + " goes " + Direction(wanted) + Leaving(from, wanted, n);
  const Place taken{Wrapped(from.Row + wanted.Rows, n), Wrapped(from.Column + wanted.Columns, n)};
  return said + " finds " + std::to_string(square.At(taken)) + " in its way " + Direction(wanted) +
         ", so it goes " + Side(moves.Break) + " " + std::to_string(number - 1) +
         Leaving(from, moves.Break, n);
}

std::vector<WalkStep> StepsByMoves(const PlacedNumbers& square, const SteppingMoves& moves) {
  const int n = square.Order();
  std::vector<WalkStep> walk;
  for (int number = 1; number <= n * n; ++number) {
    const Place here = square.PlaceOf(number);
    WalkStep step{{{here, std::to_string(number)}}, {here}, {}, {}, number};
    if (number > 1) step.Arrow = {square.PlaceOf(number - 1), here};
    step.Sentence = MoveSentence(square, moves, number);
    walk.push_back(std::move(step));
  }
  return walk;
}

}  // namespace numorra
