#include "generate/random_square.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <utility>

#include "app/board/quick_random.h"

namespace numorra {
namespace {

/// Low enough for the walk to meet magic squares often, high enough for it to leave them; fitted to
/// the orders 5 to 50.
double TemperatureOf(int order) {
  return 0.2 + 4.2 / order;
}

/// Both numbers and cells count from 0, in std::size_t for indexing.
class Walk {
 public:
  Walk(int order, Random& random)
      : order_(static_cast<std::size_t>(order)),
        quick_(random),
        numberIn_(order_ * order_),
        cellOf_(numberIn_.size()),
        linesOf_(numberIn_.size()),
        off_(Lines() + 2),
        ifRaised_(off_.size()),
        ifLowered_(off_.size()) {
    const double temperature = TemperatureOf(order);
    for (int rise = -kMostRise; rise <= kMostRise; ++rise)
      chances_[Index(rise + kMostRise)] = QuickRandom::ChanceOf(std::exp(-rise / temperature));
    // The walk leaves a square mostly by an exchange within a line, which raises the cost by 2.
    constexpr double kShare = 0.02;
    halting_ = QuickRandom::ChanceOf(kShare * std::exp(-2 / temperature));
    NumberCells(random);
  }

  /// Takes one step; true if it ends the walk.
  bool Step() {
    constexpr std::uint32_t kAnyTwo = 0xffffffffU / 20;
    if (quick_.Happens(kAnyTwo)) {
      ExchangeAny();
    } else {
      ExchangeNeighbours();
    }
    return cost_ == 0 && quick_.Happens(halting_);
  }

  Square<int> Numbers() const {
    Square<int> square(static_cast<int>(order_), numberIn_);
    for (int& number : square)
      ++number;
    return square;
  }

 private:
  /// The lines of a cell: row, column and both diagonals; lines without weight replace the
  /// diagonals that it is not on.
  using LinesOfCell = std::array<std::size_t, 4>;

  /// An exchange of neighbouring numbers changes at most eight lines, each by 1.
  static constexpr int kMostRise = 8;

  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

  /// The number of lines with weight. After them comes one line without weight for each diagonal.
  std::size_t Lines() const { return 2 * order_ + 2; }

  void NumberCells(Random& random) {
    for (std::size_t cell = 0; cell < linesOf_.size(); ++cell) {
      const std::size_t i = cell / order_;
      const std::size_t j = cell % order_;
      const std::size_t falling = 2 * order_ + (i == j ? 0 : 2);
      const std::size_t rising = 2 * order_ + (i + j + 1 == order_ ? 1 : 3);
      linesOf_[cell] = {i, order_ + j, falling, rising};
    }
    std::iota(numberIn_.begin(), numberIn_.end(), 0);
    Shuffle(std::span(numberIn_), random);
    const int total = static_cast<int>(order_ * (numberIn_.size() - 1) / 2);
    for (std::size_t line = 0; line < Lines(); ++line)
      Raise(line, -total);
    for (std::size_t cell = 0; cell < numberIn_.size(); ++cell) {
      cellOf_[Index(numberIn_[cell])] = cell;
      for (const std::size_t line : linesOf_[cell])
        Raise(line, numberIn_[cell]);
    }
  }

  void ExchangeNeighbours() {
    const std::size_t number = Index(quick_.Below(static_cast<int>(numberIn_.size()) - 1));
    const std::size_t raised = cellOf_[number];
    const std::size_t lowered = cellOf_[number + 1];
    int rise = 0;
    for (std::size_t way = 0; way < 4; ++way) {
      const std::size_t up = linesOf_[raised][way];
      const std::size_t down = linesOf_[lowered][way];
      rise += up == down ? 0 : ifRaised_[up] + ifLowered_[down];
    }
    if (quick_.Happens(chances_[Index(rise + kMostRise)])) Exchange(raised, lowered, 1);
  }

  void ExchangeAny() {
    const int cells = static_cast<int>(numberIn_.size());
    const std::size_t raised = Index(quick_.Below(cells));
    const std::size_t lowered = Index(quick_.Below(cells));
    const int by = numberIn_[lowered] - numberIn_[raised];
    const int before = cost_;
    Exchange(raised, lowered, by);
    const int rise = cost_ - before;
    if (rise <= 0) return;
    const std::uint32_t chance = rise > kMostRise ? 0 : chances_[Index(rise + kMostRise)];
    if (!quick_.Happens(chance)) Exchange(raised, lowered, -by);
  }

  /// Exchanges the numbers of two cells; that of the first rises by `by`.
  void Exchange(std::size_t raised, std::size_t lowered, int by) {
    for (std::size_t way = 0; way < 4; ++way) {
      const std::size_t up = linesOf_[raised][way];
      const std::size_t down = linesOf_[lowered][way];
      if (up == down) continue;
      Raise(up, by);
      Raise(down, -by);
    }
    std::swap(numberIn_[raised], numberIn_[lowered]);
    cellOf_[Index(numberIn_[raised])] = raised;
    cellOf_[Index(numberIn_[lowered])] = lowered;
  }

  void Raise(std::size_t line, int by) {
    if (line >= Lines()) return;
    cost_ -= std::abs(off_[line]);
    off_[line] += by;
    cost_ += std::abs(off_[line]);
    ifRaised_[line] = off_[line] >= 0 ? 1 : -1;
    ifLowered_[line] = off_[line] <= 0 ? 1 : -1;
  }

  std::size_t order_;
  QuickRandom quick_;
  std::vector<int> numberIn_;
  std::vector<std::size_t> cellOf_;
  std::vector<LinesOfCell> linesOf_;
  std::vector<int> off_;        ///< sum of each line minus the total
  std::vector<int> ifRaised_;   ///< rise of the cost if a line is raised by 1
  std::vector<int> ifLowered_;  ///< the same if it is lowered by 1; 0 for lines without weight
  int cost_ = 0;
  std::array<std::uint32_t, 2 * kMostRise + 1> chances_{};  ///< by rise, from -kMostRise on
  std::uint32_t halting_ = 0;
};

}  // namespace

Square<int> RandomNormalSquare(int order, Random& random, Yielding& yielding) {
  constexpr int kStepsBetweenYields = 4096;
  Walk walk(order, random);
  for (;;) {
    yielding.Yield();
    for (int step = 0; step < kStepsBetweenYields; ++step) {
      if (walk.Step()) return walk.Numbers();
    }
  }
}

}  // namespace numorra
