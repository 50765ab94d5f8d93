#include "puzzle/candidates.h"

#include <algorithm>
#include <bit>

namespace numorra {
namespace {

constexpr int kWordBits = 64;

}  // namespace

Candidates::Candidates(const Puzzle& puzzle)
    : order_(puzzle.Order()),
      most_(puzzle.Most()),
      map_(LineMap::Of(puzzle.Order(), puzzle.Kind)),
      gaps_(puzzle.Cells.Size()),
      values_(At(gaps_)),
      low_(At(gaps_), 1),
      high_(At(gaps_), most_),
      count_(At(gaps_), most_),
      rest_(At(map_.Lines())),
      open_(At(map_.Lines())),
      touched_(At(map_.Lines())) {
  for (int line = 0; line < map_.Lines(); ++line) {
    rest_[At(line)] = map_.SumOf(line, puzzle.Target);
    open_[At(line)] = static_cast<int>(map_.CellsOf(line).size());
    if (!map_.IsWhole(line, puzzle.Target)) impossible_ = true;
  }
  for (int cell = 0; cell < Cells(); ++cell) {
    const std::int64_t number = puzzle.Cells[cell];
    if (number != 0) Take(cell, number);
  }
  for (int line = 0; line < map_.Lines(); ++line)
    Touch(line);
  if (puzzle.Asked == Rules::Normal) StartSets();
}

/// Gives each gap the set of missing numbers, and every other cell the set of its own number.
void Candidates::StartSets() {
  words_ = At(static_cast<int>(most_)) / kWordBits + 1;
  bits_.assign(values_.size() * words_, 0);
  std::vector<std::uint64_t> missing(words_);
  for (std::int64_t number = 1; number <= most_; ++number)
    missing[At(static_cast<int>(number / kWordBits))] |= std::uint64_t{1} << (number % kWordBits);
  for (int cell = 0; cell < Cells(); ++cell) {
    const std::int64_t number = Value(cell);
    if (number == 0) continue;
    const std::uint64_t bit = std::uint64_t{1} << (number % kWordBits);
    std::uint64_t& word = missing[At(static_cast<int>(number / kWordBits))];
    if ((word & bit) == 0) impossible_ = true;  // it is in another cell, too
    word &= ~bit;
    Bits(cell)[number / kWordBits] = bit;
  }
  int first = -1;
  for (int cell = 0; cell < Cells(); ++cell) {
    if (Value(cell) != 0) continue;
    std::copy(missing.begin(), missing.end(), Bits(cell));
    if (first < 0) {
      first = cell;
      impossible_ = !Narrowed(cell) || impossible_;
    }
    low_[At(cell)] = Low(first);
    high_[At(cell)] = High(first);
    count_[At(cell)] = Count(first);
  }
}

bool Candidates::Allows(int cell, std::int64_t number) const {
  if (number < Low(cell) || number > High(cell)) return false;
  return !IsNormal() || (Bits(cell)[number / kWordBits] >> (number % kWordBits) & 1) != 0;
}

std::vector<int> Candidates::GapsOf(int line) const {
  std::vector<int> gaps;
  for (const int cell : map_.CellsOf(line)) {
    if (Value(cell) == 0) gaps.push_back(cell);
  }
  return gaps;
}

void Candidates::Touch(int line) {
  if (touched_[At(line)] != 0) return;
  touched_[At(line)] = 1;
  waiting_.push_back(line);
}

void Candidates::Save(int cell, bool placed, std::size_t word) {
  trail_.push_back({cell, placed, static_cast<std::uint32_t>(word),
                    IsNormal() ? Bits(cell)[word] : 0, Low(cell), High(cell), Count(cell)});
}

void Candidates::UndoTo(std::size_t mark) {
  for (; trail_.size() > mark; trail_.pop_back()) {
    const Change& change = trail_.back();
    const int cell = change.Cell;
    if (change.Placed) {
      for (const int line : map_.LinesOf(cell)) {
        rest_[At(line)] += Value(cell);
        ++open_[At(line)];
      }
      values_[At(cell)] = 0;
      ++gaps_;
    }
    low_[At(cell)] = change.Low;
    high_[At(cell)] = change.High;
    count_[At(cell)] = change.Count;
    if (IsNormal()) Bits(cell)[change.Word] = change.Bits;
  }
  for (const int line : waiting_)
    touched_[At(line)] = 0;
  waiting_.clear();
}

/// Updates the ends and the count from the set, and queues the lines of the cell that this can
/// affect: bounds depend on the ends only.
bool Candidates::Narrowed(int cell) {
  bool endsMoved = true;
  if (IsNormal()) {
    const std::uint64_t* const bits = Bits(cell);
    std::int64_t count = 0;
    std::int64_t low = 0;
    std::int64_t high = -1;
    for (std::size_t word = 0; word < words_; ++word) {
      if (bits[word] == 0) continue;
      const auto first = static_cast<std::int64_t>(word * kWordBits);
      if (count == 0) low = first + std::countr_zero(bits[word]);
      high = first + kWordBits - 1 - std::countl_zero(bits[word]);
      count += std::popcount(bits[word]);
    }
    endsMoved = low != Low(cell) || high != High(cell);
    low_[At(cell)] = low;
    high_[At(cell)] = high;
    count_[At(cell)] = count;
  } else {
    count_[At(cell)] = std::max<std::int64_t>(0, High(cell) - Low(cell) + 1);
  }
  for (const int line : map_.LinesOf(cell)) {
    if (endsMoved || open_[At(line)] <= 2) Touch(line);
  }
  return Count(cell) > 0;
}

bool Candidates::Remove(int cell, std::int64_t number) {
  if (!Allows(cell, number)) return true;
  if (IsNormal()) {
    Save(cell, false, At(static_cast<int>(number / kWordBits)));
    Bits(cell)[number / kWordBits] &= ~(std::uint64_t{1} << (number % kWordBits));
    return Narrowed(cell);
  }
  if (number == Low(cell)) return Restrict(cell, number + 1, High(cell));
  return number != High(cell) || Restrict(cell, Low(cell), number - 1);
}

bool Candidates::Restrict(int cell, std::int64_t low, std::int64_t high) {
  if (low <= Low(cell) && high >= High(cell)) return true;
  low = std::max(low, Low(cell));
  high = std::min(high, High(cell));
  KeepBits(cell, low, high);
  if (!IsNormal()) {
    Save(cell, false);
    low_[At(cell)] = low;
    high_[At(cell)] = high;
  }
  return Narrowed(cell);
}

/// Removes all numbers outside low..high from the cell's set.
void Candidates::KeepBits(int cell, std::int64_t low, std::int64_t high) {
  for (std::size_t word = 0; word < words_; ++word) {
    const auto first = static_cast<std::int64_t>(word * kWordBits);
    const auto last = first + kWordBits - 1;
    std::uint64_t kept = high < first || low > last ? 0 : ~std::uint64_t{0};
    if (kept != 0 && low > first) kept &= ~std::uint64_t{0} << (low - first);
    if (kept != 0 && high < last) kept &= (std::uint64_t{1} << (high - first + 1)) - 1;
    if ((Bits(cell)[word] & ~kept) == 0) continue;
    Save(cell, false, word);
    Bits(cell)[word] &= kept;
  }
}

/// Fills a gap, and takes its number off the rest of its lines.
void Candidates::Take(int cell, std::int64_t number) {
  values_[At(cell)] = low_[At(cell)] = high_[At(cell)] = number;
  count_[At(cell)] = 1;
  --gaps_;
  for (const int line : map_.LinesOf(cell)) {
    rest_[At(line)] -= number;
    --open_[At(line)];
    Touch(line);
  }
}

bool Candidates::Put(int cell, std::int64_t number) {
  if (Value(cell) != 0) return Value(cell) == number;
  if (!Allows(cell, number)) return false;
  KeepBits(cell, number, number);
  Save(cell, true);
  Take(cell, number);
  if (!IsNormal()) return true;
  bool possible = true;
  for (int other = 0; other < Cells(); ++other) {
    if (other != cell && Value(other) == 0) possible = Remove(other, number) && possible;
  }
  return possible;
}

bool Candidates::FindSinglePlace(Single& found) const {
  once_.assign(words_, 0);
  twice_.assign(words_, 0);
  for (int cell = 0; cell < Cells(); ++cell) {
    const std::uint64_t* const bits = Bits(cell);
    for (std::size_t word = 0; word < words_; ++word) {
      twice_[word] |= once_[word] & bits[word];
      once_[word] |= bits[word];
    }
  }
  std::int64_t places = 0;
  for (const std::uint64_t word : once_)
    places += std::popcount(word);
  if (places < most_) return false;
  for (int cell = 0; cell < Cells(); ++cell) {
    if (Value(cell) != 0) continue;
    for (std::size_t word = 0; word < words_; ++word) {
      const std::uint64_t alone = Bits(cell)[word] & ~twice_[word];
      if (alone == 0) continue;
      found = {cell, static_cast<std::int64_t>(word * kWordBits) + std::countr_zero(alone)};
      return true;
    }
  }
  return true;
}

}  // namespace numorra
