#include <numeric>
#include <string>
#include <utility>

#include "app/board/board.h"
#include "generate/construction.h"
#include "words/say.h"

/// Two Latin squares (Euler 1776), for orders n that are odd or multiples of 4: number = n a + b +
/// 1, where a and b run through all digits from 0 to n - 1 in every row and column, and no pair of
/// digits occurs twice. Each Latin square follows from its first row.
///
/// Odd orders: each row of a is the first one moved to the left, by one cell more than the row
/// above; each row of b is moved to the right. The diagonal that rises has the same digit a in all
/// cells, the last one of the first row, and the one that falls the first digit b: the middle
/// digit.
///
/// Powers of 2: row i has the digit of column j xor 2 i in column j, and xor 3 i for b; 2 i and 3 i
/// are products in the field of n elements. Each bit of such a mask exchanges neighbouring groups
/// of columns. All rows, columns and diagonals contain all digits, whatever the first row is.
///
/// Other multiples of 4, w m with m odd: rows and columns fall into w groups of m. Masks exchange
/// groups, and rows move within their groups. The last digits a of the groups of the first row, and
/// the first digits b, must have the middle value as their mean.
namespace numorra {
namespace {

using FirstRow = std::vector<int>;

/// The largest power of 2 that divides n: the number of groups.
int GroupsOf(int n) {
  return n & -n;
}

/// The products of i with 2 and 3 in the field of w = 2, 4, 8, 16 or 32 elements; 0 in that of one.
int TimesTwo(int i, int w) {
  constexpr int kReducing[] = {7, 11, 19, 37};  // irreducible polynomials of degree 2 to 5
  int product = 2 * i;
  for (const int polynomial : kReducing) {
    if (product >= w && (polynomial & -w) == w) product ^= polynomial;
  }
  return product;
}

int MaskOf(bool second, int i, int w) {
  return second ? TimesTwo(i, w) ^ i : TimesTwo(i, w);
}

/// The column, from 0, of the first row whose digit a cell takes.
int ColumnInFirstRow(bool second, int i, int j, int n) {
  const int w = GroupsOf(n);
  const int m = n / w;
  const int group = (j / m) ^ MaskOf(second, i / m, w);
  const int moved = second ? j % m - i % m + m : j % m + i % m;
  return m * group + moved % m;
}

Square<double> SquareOfFirstRows(const FirstRow& a, const FirstRow& b) {
  const int n = static_cast<int>(a.size());
  const auto digit = [n](const FirstRow& first, bool second, int cell) {
    return first[static_cast<std::size_t>(ColumnInFirstRow(second, cell / n, cell % n, n))];
  };
  return SquareOf(
      n, [&](int cell) -> double { return n * digit(a, false, cell) + digit(b, true, cell) + 1; });
}

/// The numbers from 0 to count - 1 in an order of choice.
std::vector<int> InAnyOrder(int count, BuildChoices& choices) {
  std::vector<int> numbers(static_cast<std::size_t>(count));
  std::iota(numbers.begin(), numbers.end(), 0);
  for (int left = count; left > 1; --left) {
    const int pick = choices.PickOf(left);
    std::swap(numbers[static_cast<std::size_t>(pick)], numbers[static_cast<std::size_t>(left - 1)]);
  }
  return numbers;
}

/// Groups of consecutive digits in an order of choice, the digits of each in another one, in which
/// its middle digit is the last, or for the second square the first.
FirstRow FirstRowOf(bool second, int n, BuildChoices& choices) {
  const int w = GroupsOf(n);
  const int m = n / w;
  std::vector<int> within = InAnyOrder(m, choices);
  std::size_t middle = 0;
  while (within[middle] != m / 2)
    ++middle;
  std::swap(within[middle], second ? within.front() : within.back());
  FirstRow row;
  for (const int group : InAnyOrder(w, choices)) {
    for (const int digit : within)
      row.push_back(m * group + digit);
  }
  return row;
}

CellTable BuildOfLatinSquares(int order, BuildChoices& choices) {
  const FirstRow a = FirstRowOf(false, order, choices);
  return TableOf(SquareOfFirstRows(a, FirstRowOf(true, order, choices)));
}

/// "row 1 takes the multiples of 5 from 0 to 20, each once, with the middle one, 10, last".
std::string FirstRowSentence(bool second, int n) {
  const int m = n / GroupsOf(n);
  const int unit = second ? 1 : n;
  const int least = second ? 1 : 0;
  const int most = n * (n - 1);
  if (m == 1) {
    // Translators: row 1 adds the numbers from 1 to %1 to what its cells hold
    return second ? Say("row 1 adds 1 to %1, each once, in any order", n)
                  : Say("row 1 takes the multiples of %1 from 0 to %2, each once, in any order", n,
                        most);
  }
  if (m == n) {
    const int middle = least + unit * (n / 2);
    return second ? Say("row 1 adds 1 to %1, each once, with the middle one, %2, first", n, middle)
                  : Say("row 1 takes the multiples of %1 from 0 to %2, each once, with the middle "
                        "one, %3, last",
                        n, most, middle);
  }
  const int sum = n / m * (2 * least + unit * (n - 1)) / 2;
  return second ? Say("row 1 adds 1 to %1, each once, so that the first ones of its groups of %2 "
                      "add up to %3",
                      n, m, sum)
                : Say("row 1 takes the multiples of %1 from 0 to %2, each once, so that the last "
                      "ones of its groups of %3 add up to %4",
                      n, most, m, sum);
}

/// How a row, from 1, follows from the first one: "neighbouring groups of 2 exchanged".
std::string ChangeOfRow(bool second, int i, int n) {
  const int w = GroupsOf(n);
  const int m = n / w;
  const int mask = MaskOf(second, i / m, w);
  std::string said;
  const auto add = [&said](const std::string& part) {
    // Translators: %1 and %2 are changes of a row: "neighbouring numbers exchanged"
    said = said.empty() ? part : SayIn("changes", "%1 and %2", said, part);
  };
  for (int groups = 1; groups < w; groups *= 2) {
    if ((mask & groups) == 0) continue;
    const int size = m * groups;
    add(size == 1 ? Say("neighbouring numbers exchanged")
                  : Say("neighbouring groups of %1 exchanged", size));
  }
  if (i % m == 0) return said;
  if (w == 1) {
    add(Say(second ? Mark("all numbers moved %1 to the right, in again at the other end")
                   : Mark("all numbers moved %1 to the left, in again at the other end"),
            i % m));
  } else {
    add(Say(second ? Mark("the numbers of each group of %1 moved %2 to the right, in again at the "
                          "other end")
                   : Mark("the numbers of each group of %1 moved %2 to the left, in again at the "
                          "other end"),
            m, i % m));
  }
  return said;
}

/// Writes the multiples, row by row, then adds the second square.
std::vector<WalkStep> StepsOfLatinSquares(const PlacedNumbers& square) {
  const int n = square.Order();
  FirstRow a;
  FirstRow b;
  for (int column = 1; column <= n; ++column) {
    const int digits = square.At({1, column}) - 1;
    a.push_back(digits / n);
    b.push_back(digits % n);
  }
  if (SquareOfFirstRows(a, b) != square.Numbers()) return {};
  std::vector<WalkStep> walk;
  for (const bool second : {false, true}) {
    for (int i = 0; i < n; ++i) {
      WalkStep step;
      for (int column = 1; column <= n; ++column) {
        const Place place{i + 1, column};
        const int number = square.At(place);
        step.Written.emplace_back(place, std::to_string(second ? number : (number - 1) / n * n));
        step.Marked.push_back(place);
      }
      if (i > 0) step.Arrow = {Place{1, 1}, Place{i + 1, 1}};
      // Translators: %2 is one or more changes of row 1: "neighbouring numbers exchanged"
      const char* const adds = Mark("row %1 adds what row 1 adds, with %2");
      const char* const is = Mark("row %1 is row 1 with %2");
      step.Sentence = i == 0 ? FirstRowSentence(second, n)
                             : Say(second ? adds : is, i + 1, ChangeOfRow(second, i, n));
      walk.push_back(std::move(step));
    }
  }
  return walk;
}

}  // namespace

const Construction kLatinConstruction = {
    "latin",
    "BuildLatinx",
    Mark("&Two Latin Squares"),
    Mark("Leonhard Euler, 1776"),
    [](int order) -> std::string {
      if (order >= 3 && order % 4 != 2) return {};
      return Say("the method of two Latin squares makes odd orders and multiples of 4, not %1",
                 order);
    },
    BuildOfLatinSquares,
    StepsOfLatinSquares};

}  // namespace numorra
