#pragma once

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "generate/construction_steps.h"

/// Holds the sentences of walks against what their steps do.
namespace numorra {

using Texts = std::map<std::pair<int, int>, std::string>;

/// A sentence says where the number after `From` goes: so many rows down and columns to the right.
struct SaidMove {
  int Rows = 0;
  int Columns = 0;
};

inline SaidMove MoveIn(const std::smatch& words) {
  const auto far = [](const std::string& count) { return count == "two " ? 2 : 1; };
  SaidMove move;
  if (words[2].matched) move.Rows = far(words[1]) * (words[2] == "up" ? -1 : 1);
  if (words[4].matched) move.Columns = far(words[3]) * (words[4] == "left" ? -1 : 1);
  return move;
}

/// Holds each move of a sentence about a number against the arrow, the cells and the edges.
inline void ExpectSaidMove(const WalkStep& step, const Texts& before, int n) {
  static const std::regex kSlanted("(two |one |)(up|down) and (two |one |)to the (left|right)");
  static const std::regex kStraight("goes (?:(two |)(above|below)|(two |)to the (left|right) of) ");
  const std::string& said = step.Sentence;
  std::smatch words;
  if (!step.Arrow || !std::regex_search(said, words, kSlanted)) return;
  const auto [from, to] = *step.Arrow;
  const auto wrapped = [n](int line) { return (line + n - 1) % n + 1; };
  const auto after = [&](Place place, SaidMove move) {
    return Place{wrapped(place.Row + move.Rows), wrapped(place.Column + move.Columns)};
  };
  SaidMove move = MoveIn(words);
  const std::size_t run = step.Written.size();
  for (std::size_t i = 1; i < run; ++i)
    EXPECT_EQ(step.Written[i].first, after(step.Written[i - 1].first, move)) << said;
  if (from == step.Written.front().first) {
    EXPECT_EQ(to, step.Written.back().first) << said;
    return;
  }
  EXPECT_EQ(to, step.Written.front().first);
  if (std::smatch beside; std::regex_search(said, beside, kStraight)) {
    const Place taken = after(from, move);
    EXPECT_EQ(said.find("finds " + before.at({taken.Row, taken.Column}) + " in its way"),
              said.find("finds "));
    move = MoveIn(beside);
    if (beside[2].matched) move.Rows = std::abs(move.Rows) * (beside[2] == "above" ? -1 : 1);
  }
  EXPECT_EQ(to, after(from, move)) << said;
  if (said.find("what leaves the board") < said.size()) return;
  const std::pair<const char*, bool> edges[] = {
      {"at the top, so in at the bottom", from.Row + move.Rows < 1},
      {"at the bottom, so in at the top", from.Row + move.Rows > n},
      {"on the left, so in on the right", from.Column + move.Columns < 1},
      {"on the right, so in on the left", from.Column + move.Columns > n}};
  for (const auto& [leaving, leaves] : edges)
    EXPECT_EQ(said.find(leaving) != std::string::npos, leaves) << said;
}

/// Holds a line that a sentence names against the cells that are written.
inline void ExpectSaidLine(const WalkStep& step) {
  static const std::regex kLine(
      R"(to (row|column) (\d+), (?:column|row)(s?) (\d+)(?: to (\d+))?$)");
  std::smatch words;
  if (!std::regex_search(step.Sentence, words, kLine)) return;
  const int line = std::stoi(words[2]);
  int at = std::stoi(words[4]);
  for (const auto& [place, text] : step.Written) {
    EXPECT_EQ(place, words[1] == "row" ? (Place{line, at}) : (Place{at, line})) << step.Sentence;
    ++at;
  }
  EXPECT_EQ(at - 1, std::stoi(words[words[5].matched ? 5 : 4])) << step.Sentence;
}

/// Changes the first row as a sentence about another row says.
inline std::vector<int> ChangedRow(std::vector<int> row, const std::string& said) {
  static const std::regex kExchange("neighbouring (?:numbers|groups of (\\d+)) exchanged");
  static const std::regex kMove(
      "(all|each group of (\\d+)) ?(?:numbers)? moved (\\d+) to the (l|r)");
  for (std::sregex_iterator it(said.begin(), said.end(), kExchange), end; it != end; ++it) {
    const std::ptrdiff_t size = (*it)[1].matched ? std::stoi((*it)[1]) : 1;
    for (auto at = row.begin(); at != row.end(); at += 2 * size)
      std::rotate(at, at + size, at + 2 * size);
  }
  std::smatch move;
  if (!std::regex_search(said, move, kMove)) return row;
  const int size = move[2].matched ? std::stoi(move[2]) : static_cast<int>(row.size());
  const int by = std::stoi(move[3]);
  for (auto at = row.begin(); at != row.end(); at += size)
    std::rotate(at, at + (move[4] == "l" ? by : size - by), at + size);
  return row;
}

/// Holds "row 3 is row 1 with ..." and "row 3 adds what row 1 adds, with ..." against the numbers.
inline void ExpectSaidRow(const WalkStep& step, const Texts& before, std::vector<int>& firstRow) {
  std::vector<int> row;
  for (const auto& [place, text] : step.Written) {
    const auto had = before.find({place.Row, place.Column});
    row.push_back(std::stoi(text) - (had == before.end() ? 0 : std::stoi(had->second)));
  }
  if (step.Written[0].first.Row == 1) {
    firstRow = row;
  } else {
    EXPECT_EQ(row, ChangedRow(firstRow, step.Sentence)) << step.Sentence;
  }
}

/// Plays the walk of a square: its sentences are true, and its last board is the square.
inline void ExpectTrueWalk(const std::string& construction, const Square<double>& square,
                           const std::vector<WalkStep>& steps) {
  const int n = square.Order();
  Texts board;
  std::vector<int> firstRow;
  for (const WalkStep& step : steps) {
    EXPECT_FALSE(step.Sentence.empty());
    EXPECT_TRUE(!step.Arrow || step.Marked.empty() ||
                std::count(step.Marked.begin(), step.Marked.end(), step.Arrow->second) == 1)
        << step.Sentence;
    EXPECT_TRUE(!step.Arrow || step.Arrow->first != step.Arrow->second) << step.Sentence;
    const bool quarter = step.Sentence.starts_with("in the upper left quarter");
    const bool whole = construction != "composite" && construction != "lux";
    if (whole) ExpectSaidMove(step, board, quarter ? n / 2 : n);
    if (whole) ExpectSaidLine(step);
    if (construction == "latin") ExpectSaidRow(step, board, firstRow);
    for (const auto& [place, text] : step.Written)
      board[{place.Row, place.Column}] = text;
    if (step.Number > 0) {
      EXPECT_EQ(step.Written[0].second, std::to_string(step.Number));
      EXPECT_NE(step.Sentence.find(std::to_string(step.Number)), std::string::npos);
    }
  }
  ASSERT_EQ(static_cast<int>(board.size()), square.Size()) << "order " << n;
  for (int cell = 0; cell < square.Size(); ++cell) {
    const Place place = square.PlaceOf(cell);
    ASSERT_EQ((board[{place.Row, place.Column}]), std::to_string(static_cast<int>(square[cell])));
  }
}

}  // namespace numorra
