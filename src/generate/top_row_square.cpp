#include "generate/top_row_square.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <numeric>
#include <string_view>
#include <vector>

#include "app/board/board.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr int kHighest = 9999;
constexpr std::string_view kSeparators = ",/.-";
constexpr int kSteps = 4096;  // of the search between two yields

/// The search for one quality. Cells are placed in an order that decides each as early as possible;
/// `cells_` holds those placed so far.
class TopRowSearch {
 public:
  TopRowSearch(const TopRow& top, TopRowQuality quality, Random& random, Yielding& yielding)
      : lowest_(quality == TopRowQuality::WithZeros ? 0 : 1),
        different_(quality <= TopRowQuality::Different),
        random_(random),
        yielding_(yielding),
        sum_(std::accumulate(top.begin(), top.end(), 0)),
        used_(static_cast<std::size_t>(sum_) + 1) {
    for (int i = 0; i < 4; ++i) {
      Cell(1, i + 1) = top[static_cast<std::size_t>(i)];
      if (quality == TopRowQuality::AllNew) used_[static_cast<std::size_t>(Cell(1, i + 1))] = 1;
    }
  }

  std::optional<CellTable> Run() {
    if (!PlaceBottomRow()) return std::nullopt;
    CellTable square;
    ForEachCell(4, [&](int r, int c) { square(r, c) = Cell(r, c); });
    return square;
  }

 private:
  bool PlaceBottomRow() {
    const int a = Cell(1, 1), b = Cell(1, 2), c = Cell(1, 3), d = Cell(1, 4);
    return TryBetween(lowest_, b + c - lowest_, [&](int m) {
      return With(4, 1, m, [&] {
        return With(4, 4, b + c - m, [&] {
          return TryBetween(lowest_, a + d - lowest_, [&](int n) {
            return With(4, 2, n,
                        [&] { return With(4, 3, a + d - n, [&] { return PlaceCentre(); }); });
          });
        });
      });
    });
  }

  /// The bounds keep f, j, k, g, and some e with its h, i and l, in range. So if repeats are
  /// allowed, every f tried leads to a square, and an impossible bottom row is refuted at once.
  bool PlaceCentre() {
    const int leftUp = sum_ - Cell(1, 1) - Cell(4, 1);   // e + i
    const int column2 = sum_ - Cell(1, 2) - Cell(4, 2);  // f + j
    const int column3 = sum_ - Cell(1, 3) - Cell(4, 3);  // g + k
    const int falling = sum_ - Cell(1, 1) - Cell(4, 4);  // f + k
    if (leftUp < 2 * lowest_ || 2 * lowest_ + leftUp + column2 + column3 > 2 * sum_) return false;
    const int low = std::max(
        {lowest_, lowest_ + falling - column3, -FloorHalf(sum_ - column2 - falling - 2 * lowest_)});
    const int high = std::min(
        {column2 - lowest_, falling - lowest_, FloorHalf(sum_ - column3 + falling - 2 * lowest_)});
    return TryBetween(low, high, [&](int f) {
      return With(2, 2, f, [&] {
        return With(3, 2, column2 - f, [&] {
          return With(3, 3, falling - f, [&] {
            return With(2, 3, column3 - falling + f, [&] { return PlaceSides(leftUp); });
          });
        });
      });
    });
  }

  bool PlaceSides(int leftUp) {
    const int row2 = sum_ - Cell(2, 2) - Cell(2, 3);  // e + h
    const int row3 = sum_ - Cell(3, 2) - Cell(3, 3);  // i + l
    const int low = std::max(lowest_, lowest_ + leftUp - row3);
    const int high = std::min(leftUp, row2) - lowest_;
    return TryBetween(low, high, [&](int e) {
      return With(2, 1, e, [&] {
        return With(3, 1, leftUp - e, [&] {
          return With(2, 4, row2 - e,
                      [&] { return With(3, 4, row3 - leftUp + e, [] { return true; }); });
        });
      });
    });
  }

  static int FloorHalf(int number) { return number >= 0 ? number / 2 : -((1 - number) / 2); }

  /// Tries low..high from a random start, with wrap-around.
  template <class Try>
  bool TryBetween(int low, int high, Try attempt) {
    if (low > high) return false;
    const int count = high - low + 1;
    const int start = random_.Between(0, count - 1);
    for (int step = 0; step < count; ++step) {
      if (++steps_ % kSteps == 0) yielding_.Yield();
      if (attempt(low + (start + step) % count)) return true;
    }
    return false;
  }

  template <class Next>
  bool With(int row, int column, int value, Next next) {
    if (value < lowest_) return false;
    Cell(row, column) = value;
    if (!different_) return next();
    char& used = used_[static_cast<std::size_t>(value)];
    if (used) return false;
    used = 1;
    if (next()) return true;
    used = 0;
    return false;
  }

  int& Cell(int row, int column) { return cells_[static_cast<std::size_t>(4 * row + column - 5)]; }

  int lowest_;
  bool different_;
  Random& random_;
  Yielding& yielding_;
  int sum_;
  std::vector<char> used_;  ///< by number, up to the sum
  std::array<int, 16> cells_{};
  std::uint32_t steps_ = 0;
};

/// Splits the year of a date, its first or last number, into its halves: 14 3 2014 becomes 14 3 20
/// 14.
void HalveYear(std::vector<int>& date) {
  constexpr int kFirstYear = 1000;
  constexpr int kCentury = 100;
  const auto year = date.back() >= kFirstYear ? date.end() - 1 : date.begin();
  if (*year < kFirstYear) return;
  const int century = *year / kCentury;
  *year %= kCentury;
  date.insert(year, century);
}

}  // namespace

const char* RemarkOn(TopRowQuality quality) {
  switch (quality) {
    case TopRowQuality::AllNew:
      return "";
    case TopRowQuality::Different:
    case TopRowQuality::Repeated:
      return Mark("some numbers are repeated");
    case TopRowQuality::WithZeros:
      return Mark("some numbers are 0");
  }
  return "";
}

std::optional<TopRow> ParseTopRow(const std::string& text) {
  std::vector<int> numbers;
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto skipBlanks = [&] {
    const char* const begin = at;
    while (at != end && (*at == ' ' || *at == '\t'))
      ++at;
    return at != begin;
  };
  skipBlanks();
  for (bool separated = true; at != end && numbers.size() < TopRow().size();) {
    int number = 0;
    const auto result = std::from_chars(at, end, number);
    if (!separated || result.ec != std::errc() || number < 0 || number > kHighest) {
      return std::nullopt;
    }
    numbers.push_back(number);
    at = result.ptr;
    separated = skipBlanks();
    if (at != end && numbers.size() < TopRow().size() &&
        kSeparators.find(*at) != std::string_view::npos) {
      ++at;
      separated = true;
      skipBlanks();
      if (at == end) return std::nullopt;
    }
  }
  if (at != end) return std::nullopt;
  if (numbers.size() == 3) HalveYear(numbers);
  if (numbers.size() != TopRow().size()) return std::nullopt;
  return TopRow{numbers[0], numbers[1], numbers[2], numbers[3]};
}

std::optional<TopRowSquare> FindTopRowSquare(const TopRow& top, Random& random,
                                             Yielding& yielding) {
  const double total = top[0] + top[1] + top[2] + top[3];
  for (const auto quality : {TopRowQuality::AllNew, TopRowQuality::Different,
                             TopRowQuality::Repeated, TopRowQuality::WithZeros}) {
    random.Reseed();
    if (auto square = TopRowSearch(top, quality, random, yielding).Run()) {
      return TopRowSquare{*square, total, quality};
    }
  }
  return std::nullopt;
}

}  // namespace numorra
