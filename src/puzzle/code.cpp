#include "puzzle/code.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "app/board/orders.h"
#include "files/formats.h"

namespace numorra {
namespace {

constexpr std::string_view kPrefix = "NP1";
constexpr std::string_view kAlphabet = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
constexpr unsigned kLetterBits = 5;
constexpr const char* kBroken = "this puzzle code has a mistake in it";

/// A natural number of any size, to which digits of any radix are added and taken away again, the
/// last one first.
class LargeNumber {
 public:
  void Push(std::uint64_t digit, std::uint64_t radix) {
    std::uint64_t carry = digit;
    for (std::uint32_t& limb : limbs_) {
      const std::uint64_t product = limb * radix + carry;
      limb = static_cast<std::uint32_t>(product);
      carry = product >> 32U;
    }
    if (carry > 0) limbs_.push_back(static_cast<std::uint32_t>(carry));
  }

  std::uint64_t Pop(std::uint64_t radix) {
    std::uint64_t rest = 0;
    for (auto limb = limbs_.rbegin(); limb != limbs_.rend(); ++limb) {
      const std::uint64_t part = rest << 32U | *limb;
      *limb = static_cast<std::uint32_t>(part / radix);
      rest = part % radix;
    }
    while (!limbs_.empty() && limbs_.back() == 0)
      limbs_.pop_back();
    return rest;
  }

  bool IsZero() const { return limbs_.empty(); }

 private:
  std::vector<std::uint32_t> limbs_;  ///< the lowest first; the last one is not 0
};

/// Either writes the digits of a puzzle or reads them: the two cannot differ.
class Coder {
 public:
  Coder() = default;
  explicit Coder(LargeNumber number) : number_(std::move(number)), reads_(true) {}

  /// A digit below `radix`, at most 2^32: noted, or read in its place.
  std::uint64_t Digit(std::uint64_t digit, std::uint64_t radix) {
    if (reads_) return number_.Pop(radix);
    digits_.emplace_back(digit, radix);
    return digit;
  }

  /// A number of any size below 10^16.
  std::uint64_t Number(std::uint64_t value) {
    constexpr std::uint64_t kTen = 10;
    constexpr std::uint64_t kMostDigits = 17;
    std::uint64_t digits = 0;
    for (std::uint64_t left = value; left > 0; left /= kTen)
      ++digits;
    digits = Digit(digits, kMostDigits);
    std::uint64_t number = 0;
    std::uint64_t place = 1;
    for (; digits > 0; --digits, place *= kTen, value /= kTen)
      number += place * Digit(value % kTen, kTen);
    return number;
  }

  /// What was written, the first digit on top, so that it is read first.
  LargeNumber Written() const {
    LargeNumber number;
    for (auto digit = digits_.rbegin(); digit != digits_.rend(); ++digit)
      number.Push(digit->first, digit->second);
    return number;
  }

  bool AllRead() const { return number_.IsZero(); }

 private:
  LargeNumber number_;
  std::vector<std::pair<std::uint64_t, std::uint64_t>> digits_;
  bool reads_ = false;
};

constexpr std::uint64_t kCodedOrders = kMostCodedOrder - kMinOrder + 1;

/// A number of a puzzle by the normal rules is its place among those that are still missing.
void PassNormal(Coder& coder, std::int64_t& cell, std::vector<std::int64_t>& missing) {
  const auto at = std::find(missing.begin(), missing.end(), cell);
  const auto place = static_cast<std::ptrdiff_t>(
      coder.Digit(static_cast<std::uint64_t>(at - missing.begin()), missing.size()));
  cell = missing[static_cast<std::size_t>(place)];
  missing.erase(missing.begin() + place);
}

/// Takes the puzzle's digits through the coder, one by one.
void Pass(Coder& coder, Puzzle& puzzle) {
  constexpr std::uint64_t kRules = 3;  // of which one is free
  const int order =
      kMinOrder + static_cast<int>(coder.Digit(
                      static_cast<std::uint64_t>(puzzle.Order() - kMinOrder), kCodedOrders));
  if (puzzle.Order() != order) puzzle.Cells = Square<std::int64_t>(order);
  const std::uint64_t rules = coder.Digit(puzzle.Asked == Rules::Normal ? 0 : 1, kRules);
  puzzle.Asked = rules == 0 ? Rules::Normal : Rules::Positive;
  puzzle.Target =
      rules == 0
          ? NormalTotal(order)
          : static_cast<std::int64_t>(coder.Number(static_cast<std::uint64_t>(puzzle.Target)));
  std::vector<std::int64_t> missing;
  for (std::int64_t number = 1; rules == 0 && number <= puzzle.Most(); ++number)
    missing.push_back(number);
  for (std::int64_t& cell : puzzle.Cells) {
    if (coder.Digit(cell == 0 ? 0 : 1, 2) == 0) {
      cell = 0;
    } else if (rules == 0) {
      PassNormal(coder, cell, missing);
    } else {
      cell = static_cast<std::int64_t>(coder.Number(static_cast<std::uint64_t>(cell)));
    }
  }
}

/// Twice an element of the field of 32 elements, whose numbers are added bit by bit and reduced by
/// x^5 + x^2 + 1.
unsigned Doubled(unsigned element) {
  constexpr unsigned kField = 32;
  constexpr unsigned kReduced = 0b100101;
  element *= 2;
  return element >= kField ? element ^ kReduced : element;
}

/// The polynomial of the characters' values, the first of the highest power, at 2.
unsigned CheckOf(const std::vector<unsigned>& values) {
  unsigned sum = 0;
  for (const unsigned value : values)
    sum = Doubled(sum) ^ value;
  return sum;
}

/// The characters' values behind the prefix; nothing where one is no character of a code.
std::optional<std::vector<unsigned>> ValuesIn(const std::string& code) {
  std::vector<unsigned> values;
  for (const char written : code) {
    if (written == ' ' || written == '-' || written == '\n' || written == '\r' || written == '\t') {
      continue;
    }
    char character =
        written >= 'a' && written <= 'z' ? static_cast<char>(written - 'a' + 'A') : written;
    if (character == 'O') character = '0';
    if (character == 'I' || character == 'L') character = '1';
    const std::size_t value = kAlphabet.find(character);
    if (value == std::string_view::npos) return std::nullopt;
    values.push_back(static_cast<unsigned>(value));
  }
  if (values.size() <= kPrefix.size()) return std::nullopt;
  for (std::size_t i = 0; i < kPrefix.size(); ++i) {
    if (kAlphabet[values[i]] != kPrefix[i]) return std::nullopt;
  }
  values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(kPrefix.size()));
  return values;
}

}  // namespace

std::string CodeOf(const Puzzle& puzzle) {
  Coder coder;
  Puzzle copy = puzzle;
  Pass(coder, copy);
  LargeNumber number = coder.Written();
  std::vector<unsigned> values;
  while (!number.IsZero())
    values.push_back(static_cast<unsigned>(number.Pop(std::uint64_t{1} << kLetterBits)));
  std::reverse(values.begin(), values.end());
  values.push_back(0);
  values.back() = CheckOf(values);
  std::string code(kPrefix);
  for (const unsigned value : values)
    code += kAlphabet[value];
  return code;
}

bool LooksLikeCode(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  if (begin == std::string::npos || text.size() - begin < 2) return false;
  const auto lower = [&](std::size_t at) { return text[begin + at] | 0x20; };
  return lower(0) == 'n' && lower(1) == 'p';
}

std::variant<Puzzle, Unreadable> PuzzleOfCode(const std::string& code) {
  constexpr std::size_t kLongest = 2000;
  auto values = code.size() <= kLongest ? ValuesIn(code) : std::nullopt;
  if (!values || CheckOf(*values) != 0) return Unreadable{kBroken};
  values->pop_back();
  LargeNumber number;
  for (const unsigned value : *values)
    number.Push(value, std::uint64_t{1} << kLetterBits);
  Coder coder(std::move(number));
  Puzzle puzzle{.Cells = Square<std::int64_t>(kMinOrder)};
  Pass(coder, puzzle);
  const auto checked = PuzzleOf(StoredSquareOf(puzzle, true));
  if (!coder.AllRead() || std::holds_alternative<AgainstRules>(checked)) return Unreadable{kBroken};
  return puzzle;
}

std::variant<StoredSquare, Unreadable> ReadSquareOrCode(const std::string& text,
                                                        std::size_t firstLine) {
  if (!LooksLikeCode(text)) return ReadSquare(text, firstLine);
  const auto puzzle = PuzzleOfCode(text);
  if (const auto* unreadable = std::get_if<Unreadable>(&puzzle)) return *unreadable;
  return StoredSquareOf(std::get<Puzzle>(puzzle), true);
}

}  // namespace numorra
