#include "puzzle/code.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "app/board/line.h"
#include "app/board/orders.h"
#include "files/formats.h"
#include "puzzle/code_text.h"
#include "puzzle/large_number.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr std::uint64_t kTextBase = 32;

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

  /// A number of any size below 10^16: how many decimal digits it has, then these.
  std::uint64_t Decimal(std::uint64_t value) {
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

  /// A number below `bound`, which may be above 2^32, in parts of 16 bits.
  std::uint64_t Below(std::uint64_t value, std::uint64_t bound) {
    constexpr std::uint64_t kPart = 1U << 16U;
    std::uint64_t number = 0;
    std::uint64_t place = 1;
    for (; bound > 1; bound = (bound + kPart - 1) / kPart, place *= kPart, value /= kPart)
      number += place * Digit(value % kPart, std::min(bound, kPart));
    return number;
  }

  /// What was written, in the base of the text. The first digit is on top, so that it is read
  /// first.
  std::vector<unsigned> Written() const {
    LargeNumber number;
    for (auto digit = digits_.rbegin(); digit != digits_.rend(); ++digit)
      number.Push(digit->first, digit->second);
    std::vector<unsigned> written;
    while (!number.IsZero())
      written.push_back(static_cast<unsigned>(number.Pop(kTextBase)));
    std::reverse(written.begin(), written.end());
    return written;
  }

 private:
  LargeNumber number_;
  std::vector<std::pair<std::uint64_t, std::uint64_t>> digits_;
  bool reads_ = false;
};

/// A number of a puzzle by the normal rules is its place among those that are still missing.
void PassNormal(Coder& coder, std::int64_t& cell, std::vector<std::int64_t>& missing) {
  const auto at = std::find(missing.begin(), missing.end(), cell);
  const auto place = static_cast<std::ptrdiff_t>(
      coder.Digit(static_cast<std::uint64_t>(at - missing.begin()), missing.size()));
  cell = missing[static_cast<std::size_t>(place)];
  missing.erase(missing.begin() + place);
}

/// A number of a puzzle by the positive rules.
void PassPositive(Coder& coder, std::int64_t& cell, int version, const Puzzle& puzzle) {
  const auto number = static_cast<std::uint64_t>(cell);
  const std::uint64_t passed =
      version == 1 ? coder.Decimal(number)
                   : coder.Below(number - 1, static_cast<std::uint64_t>(puzzle.Most())) + 1;
  cell = static_cast<std::int64_t>(passed);
}

/// Takes the puzzle's digits through the coder, one by one. Returns whether the kind is known: that
/// of magic squares, the only one of version 1.
bool Pass(Coder& coder, Puzzle& puzzle, int version) {
  constexpr std::uint64_t kKinds = 8;
  constexpr std::uint64_t kRules = 3;  // of which one is free
  constexpr int kMostOrderOfVersion1 = 10;
  if (version > 1 && coder.Digit(0, kKinds) != 0) return false;
  const int most = version == 1 ? kMostOrderOfVersion1 : kMostCodedOrder;
  const int order = kMinOrder + static_cast<int>(coder.Digit(
                                    static_cast<std::uint64_t>(puzzle.Order() - kMinOrder),
                                    static_cast<std::uint64_t>(most - kMinOrder + 1)));
  if (puzzle.Order() != order) puzzle.Cells = Square<std::int64_t>(order);
  const bool normal = coder.Digit(puzzle.Asked == Rules::Normal ? 0 : 1, kRules) == 0;
  puzzle.Asked = normal ? Rules::Normal : Rules::Positive;
  puzzle.Target =
      normal ? NormalTotal(order)
             : static_cast<std::int64_t>(coder.Decimal(static_cast<std::uint64_t>(puzzle.Target)));
  std::vector<std::int64_t> missing;
  for (std::int64_t number = 1; normal && number <= puzzle.Most(); ++number)
    missing.push_back(number);
  for (std::int64_t& cell : puzzle.Cells) {
    if (coder.Digit(cell == 0 ? 0 : 1, 2) == 0) {
      cell = 0;
    } else if (normal) {
      PassNormal(coder, cell, missing);
    } else {
      PassPositive(coder, cell, version, puzzle);
    }
  }
  return true;
}

std::vector<unsigned> DigitsOfPuzzle(Puzzle puzzle, int version) {
  Coder coder;
  Pass(coder, puzzle, version);
  return coder.Written();
}

/// What keeps a puzzle of an order that codes hold from having one: a sentence about its code.
std::optional<std::string> WhyNotCoded(const Puzzle& puzzle) {
  if (puzzle.Gaps() == puzzle.Cells.Size()) return Say("the board of this puzzle code has no clue");
  for (const Line line : MagicLines(puzzle.Order())) {
    const auto sum = SumOf(line, puzzle.Order(), [&](int cell) { return puzzle.Cells[cell]; });
    const auto least = SumOf(line, puzzle.Order(), [&](int cell) {
      return std::max<std::int64_t>(puzzle.Cells[cell], 1);
    });
    const bool isFull = sum == least;
    if (isFull ? sum == puzzle.Target : least <= puzzle.Target) continue;
    return Say("the clues in %1 of this puzzle code cannot add up to its total, %2",
               NameOf(line, puzzle.Order()), puzzle.Target);
  }
  return std::nullopt;
}

}  // namespace

std::string CodeOf(const Puzzle& puzzle) {
  if (puzzle.Order() > kMostCodedOrder || puzzle.Kind != LineKind::Magic || WhyNotCoded(puzzle)) {
    return {};
  }
  return CodeOfDigits(DigitsOfPuzzle(puzzle, CodeText().Version));
}

bool LooksLikeCode(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  if (begin == std::string::npos || text.size() - begin < 2) return false;
  const auto lower = [&](std::size_t at) { return text[begin + at] | 0x20; };
  return lower(0) == 'n' && lower(1) == 'p';
}

std::variant<Puzzle, Unreadable> PuzzleOfCode(const std::string& code) {
  const auto read = ReadCodeText(code);
  if (const auto* unreadable = std::get_if<Unreadable>(&read)) return *unreadable;
  const auto& text = std::get<CodeText>(read);
  LargeNumber number;
  for (const unsigned digit : text.Digits)
    number.Push(digit, kTextBase);
  Coder coder(std::move(number));
  Puzzle puzzle{.Cells = Square<std::int64_t>(kMinOrder)};
  if (!Pass(coder, puzzle, text.Version)) {
    return Unreadable{Say("this puzzle code is of a kind that only a later version knows")};
  }
  const auto checked = PuzzleOf(StoredSquareOf(puzzle, true));
  if (std::holds_alternative<AgainstRules>(checked) ||
      DigitsOfPuzzle(puzzle, text.Version) != text.Digits) {
    return Unreadable{Say(kBrokenCode)};
  }
  if (const auto why = WhyNotCoded(puzzle)) return Unreadable{*why};
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
