#include "study/census.h"

#include <algorithm>

#include "study/images.h"

namespace numorra {
namespace {

constexpr int kTotal = 34;
constexpr int kCells = 16;

/// The cells in the order in which they are filled. A cell with others follows from them, as 34
/// minus three cells of a line, or of the corners, which add up to 34, too. Each choice fills as
/// many cells as possible. The last row and column follow from the other three.
struct Step {
  int Cell;
  std::array<int, 3> Others;  ///< all 0 if the cell is chosen
};
constexpr Step kSteps[] = {{0, {}}, {3, {}},          {12, {}},        {15, {0, 3, 12}},
                           {5, {}}, {10, {0, 5, 15}}, {6, {}},         {9, {3, 6, 12}},
                           {1, {}}, {2, {0, 1, 3}},   {13, {1, 5, 9}}, {14, {2, 6, 10}},
                           {4, {}}, {8, {0, 4, 12}},  {7, {4, 5, 6}},  {11, {8, 9, 10}}};

class CensusSearch {
 public:
  std::vector<Square4> Run() {
    Settle(0);
    std::sort(found_.begin(), found_.end());
    return std::move(found_);
  }

 private:
  void Settle(std::size_t step) {
    if (step == std::size(kSteps)) {
      found_.push_back(square_);
      return;
    }
    const auto& [cell, others] = kSteps[step];
    if (others != std::array<int, 3>{}) {
      Try(cell, kTotal - At(others[0]) - At(others[1]) - At(others[2]), step);
      return;
    }
    for (int number = 1; number <= kCells; ++number)
      Try(cell, number, step);
  }

  void Try(int cell, int number, std::size_t step) {
    if (number < 1 || number > kCells || used_[static_cast<std::size_t>(number)]) return;
    square_[static_cast<std::size_t>(cell)] = number;
    if (!IsStandard(cell)) return;
    used_[static_cast<std::size_t>(number)] = true;
    Settle(step + 1);
    used_[static_cast<std::size_t>(number)] = false;
  }

  /// Whether the top left corner is still the smallest and its right neighbour smaller than the one
  /// below.
  bool IsStandard(int cell) const {
    const bool corner = cell == 3 || cell == 12 || cell == 15;
    if (corner) return At(0) < At(cell);
    return cell != 4 || At(1) < At(4);
  }

  int At(int cell) const { return square_[static_cast<std::size_t>(cell)]; }

  Square4 square_{};
  std::array<bool, kCells + 1> used_{};
  std::vector<Square4> found_;
};

}  // namespace

const std::vector<Square4>& SquaresOfOrder4() {
  static const std::vector<Square4> squares = CensusSearch().Run();
  return squares;
}

std::optional<int> CensusNumber(const Square<double>& standardForm) {
  if (standardForm.Size() != kCells) return std::nullopt;
  const auto& squares = SquaresOfOrder4();
  const auto isBefore = [](const auto& a, const auto& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end());
  };
  const auto found = std::lower_bound(squares.begin(), squares.end(), standardForm, isBefore);
  if (found == squares.end() || isBefore(standardForm, *found)) return std::nullopt;
  return static_cast<int>(found - squares.begin()) + 1;
}

Square<double> AnyImageOf(const std::vector<Square4>& squares, Random& random) {
  const int last = static_cast<int>(squares.size()) - 1;
  const Square4& square = squares[static_cast<std::size_t>(random.Between(0, last))];
  return ImageOf(random.Between(0, kImages - 1), {4, {square.begin(), square.end()}});
}

Square<double> AnySquareOfOrder4(Random& random) {
  return AnyImageOf(SquaresOfOrder4(), random);
}

std::vector<Square4> SquaresOfOrder4That(Judgement (*judge)(const Facts&)) {
  std::vector<Square4> squares;
  for (const Square4& square : SquaresOfOrder4()) {
    if (judge(Facts(NumberSquare({4, {square.begin(), square.end()}})))) squares.push_back(square);
  }
  return squares;
}

}  // namespace numorra
