#include "puzzle/numbering.h"

#include <cstdlib>
#include <utility>

namespace numorra {
namespace {

void MixInPlace(std::vector<int>& cells, QuickRandom& random) {
  for (std::size_t i = cells.size(); i > 1; --i)
    std::swap(cells[i - 1], cells[static_cast<std::size_t>(random.Below(static_cast<int>(i)))]);
}

}  // namespace

Numbering::Numbering(const Candidates& board)
    : map_(board.Map()),
      rests_(At(map_.Lines())),
      errors_(At(map_.Lines())),
      weights_(At(map_.Lines()), 1),
      ranks_(At(board.Cells()), -1),
      gapsOf_(At(map_.Lines())) {
  constexpr std::int64_t kDiagonalWeight = 3;
  std::vector<char> missing(At(board.Cells()) + 1, 1);
  for (int cell = 0; cell < board.Cells(); ++cell) {
    missing[static_cast<std::size_t>(board.Value(cell))] = 0;
    if (board.Value(cell) == 0) ranks_[At(cell)] = 0;
  }
  for (int number = 1; number <= board.Cells(); ++number) {
    if (missing[At(number)] != 0) numbers_.push_back(number);
  }
  cells_.resize(numbers_.size());
  for (int line = 0; line < map_.Lines(); ++line) {
    rests_[At(line)] = board.Rest(line);
    gapsOf_[At(line)] = board.GapsOf(line);
  }
  const int rowsAndColumns = 2 * map_.Order();
  for (const int diagonal : {rowsAndColumns, rowsAndColumns + 1})
    weights_[At(diagonal)] = kDiagonalWeight;
  FindPartners();
}

/// The rules have filled the partner of every filled cell, so either all gaps have partners or none
/// has.
void Numbering::FindPartners() {
  for (int line = 0; line < map_.Lines(); ++line) {
    const std::vector<int>& gaps = GapsOf(line);
    if (map_.CellsOf(line).size() != 2 || gaps.size() != 2) continue;
    partners_.resize(ranks_.size(), -1);
    partners_[At(gaps[0])] = gaps[1];
    partners_[At(gaps[1])] = gaps[0];
    const std::int64_t sum = rests_[At(line)];
    for (int rank = 0; rank < Gaps(); ++rank) {
      possible_ = possible_ && numbers_[At(rank)] + numbers_[At(Gaps() - 1 - rank)] == sum;
    }
  }
}

void Numbering::Mix(QuickRandom& random) {
  std::vector<int> gaps;
  for (std::size_t cell = 0; cell < ranks_.size(); ++cell) {
    const bool isSecond = !partners_.empty() && partners_[cell] < static_cast<int>(cell);
    if (ranks_[cell] >= 0 && !isSecond) gaps.push_back(static_cast<int>(cell));
  }
  MixInPlace(gaps, random);
  for (std::size_t line = 0; line < errors_.size(); ++line)
    errors_[line] = -rests_[line];
  for (int i = 0; i < static_cast<int>(gaps.size()); ++i) {
    const int cell = gaps[At(i)];
    if (partners_.empty()) {
      Place(cell, i);
    } else {
      const bool turned = random.Below(2) == 1;
      Place(turned ? partners_[At(cell)] : cell, i);
      Place(turned ? cell : partners_[At(cell)], Gaps() - 1 - i);
    }
  }
  cost_ = 0;
  for (std::size_t line = 0; line < errors_.size(); ++line)
    cost_ += weights_[line] * std::abs(errors_[line]);
}

void Numbering::Place(int cell, int rank) {
  cells_[At(rank)] = cell;
  ranks_[At(cell)] = rank;
  for (const int line : map_.LinesOf(cell))
    errors_[At(line)] += numbers_[At(rank)];
}

void Numbering::Add(int cell, std::int64_t change) {
  for (const int line : map_.LinesOf(cell)) {
    std::int64_t& error = errors_[At(line)];
    cost_ += weights_[At(line)] * (std::abs(error + change) - std::abs(error));
    error += change;
  }
}

void Numbering::ExchangeTwo(int a, int b) {
  const std::int64_t change = NumberOf(b) - NumberOf(a);
  Add(a, change);
  Add(b, -change);
  std::swap(ranks_[At(a)], ranks_[At(b)]);
  std::swap(cells_[At(RankOf(a))], cells_[At(RankOf(b))]);
}

void Numbering::Exchange(int a, int b) {
  ExchangeTwo(a, b);
  if (partners_.empty() || partners_[At(a)] == b) return;
  ExchangeTwo(partners_[At(a)], partners_[At(b)]);
}

}  // namespace numorra
