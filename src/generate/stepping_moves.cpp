#include "generate/stepping_moves.h"

#include <cstdlib>

namespace numorra {
namespace {

/// The line from 1 to n for a line counted on beyond the edge.
int Wrapped(int line, int n) {
  return (line - 1 + n) % n + 1;
}

/// The step from one line to another, with wrap-around: -1, 0 or 1; 2 for any other distance.
int StepBetween(int from, int to, int n) {
  for (const int step : {-1, 0, 1}) {
    if (Wrapped(from + step, n) == to) return step;
  }
  return 2;
}

/// The direction of a diagonal move, in words.
std::string Direction(Move move) {
  return std::string(move.Rows < 0 ? "up" : "down") + " and to the " +
         (move.Columns < 0 ? "left" : "right");
}

std::string Side(Move move) {
  if (move.Rows != 0) return move.Rows < 0 ? "above" : "below";
  return move.Columns < 0 ? "to the left of" : "to the right of";
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
  const bool diagonal = std::abs(moves.Diagonal.Rows) == 1 && std::abs(moves.Diagonal.Columns) == 1;
  const bool straight = std::abs(moves.Break.Rows) + std::abs(moves.Break.Columns) == 1;
  if (!diagonal || !straight) return std::nullopt;
  for (int number = 1; number < n * n; ++number) {
    if (between(number, number + 1) != (number % n == 0 ? moves.Break : moves.Diagonal)) {
      return std::nullopt;
    }
  }
  return moves;
}

std::string MoveSentence(const PlacedNumbers& square, const SteppingMoves& moves, int number) {
  if (number == 1) return "1 goes to " + NameOf(square.PlaceOf(1));
  const int n = square.Order();
  const Place from = square.PlaceOf(number - 1);
  const Move wanted = moves.Diagonal;
  const std::string said = std::to_string(number);
  if (number % n != 1) return said + " goes " + Direction(wanted) + Leaving(from, wanted, n);
  const Place taken{Wrapped(from.Row + wanted.Rows, n), Wrapped(from.Column + wanted.Columns, n)};
  return said + " finds " + std::to_string(square.At(taken)) + " in its way " + Direction(wanted) +
         ", so it goes " + Side(moves.Break) + " " + std::to_string(number - 1) +
         Leaving(from, moves.Break, n);
}

}  // namespace numorra
