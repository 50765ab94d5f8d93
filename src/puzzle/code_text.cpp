#include "puzzle/code_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "words/say.h"

namespace numorra {
namespace {

constexpr std::string_view kAlphabet = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
constexpr unsigned kBase = 32;
constexpr std::array<unsigned, 3> kPrefix = {21, 22, 2};  // "NP2"
constexpr std::size_t kLengthAt = kPrefix.size();
constexpr std::size_t kChecks = 2;

/// An element of the field of 32 elements times 2. Elements are polynomials in 2 whose coefficients
/// are bits, reduced by x^5 + x^2 + 1.
unsigned Doubled(unsigned element) {
  constexpr unsigned kReduced = 0b100101;
  element *= 2;
  return element >= kBase ? element ^ kReduced : element;
}

/// The check of version 1: the value of the digits' polynomial at 2, which is 0.
bool PassesFirstCheck(const std::vector<unsigned>& values) {
  unsigned sum = 0;
  for (const unsigned value : values)
    sum = Doubled(sum) ^ value;
  return sum == 0;
}

/// The remainder of the values' polynomial divided by x^2 + x + 8: the coefficients of x and 1.
std::array<unsigned, kChecks> RemainderOf(const std::vector<unsigned>& values) {
  unsigned high = 0;
  unsigned low = 0;
  for (const unsigned value : values) {
    const unsigned eight = Doubled(Doubled(Doubled(high)));
    high ^= low;
    low = value ^ eight;
  }
  return {high, low};
}

/// The value of a character; nothing for characters that codes do not have.
std::optional<unsigned> ValueOf(char written) {
  char character =
      written >= 'a' && written <= 'z' ? static_cast<char>(written - 'a' + 'A') : written;
  if (character == 'O') character = '0';
  if (character == 'I' || character == 'L') character = '1';
  const std::size_t value = kAlphabet.find(character);
  return value == std::string_view::npos ? std::nullopt
                                         : std::optional(static_cast<unsigned>(value));
}

/// The values of all characters; nothing if one is not a character of a code.
std::optional<std::vector<unsigned>> ValuesIn(const std::string& code) {
  constexpr std::string_view kPassedOver = " -\t\r\n";
  std::vector<unsigned> values;
  for (const char written : code) {
    if (kPassedOver.find(written) != std::string_view::npos) continue;
    const auto value = ValueOf(written);
    if (!value) return std::nullopt;
    values.push_back(*value);
  }
  return values;
}

/// The values without `front` of the first and `back` of the last ones.
std::vector<unsigned> Within(const std::vector<unsigned>& values, std::size_t front,
                             std::size_t back) {
  return {values.begin() + static_cast<std::ptrdiff_t>(front),
          values.end() - static_cast<std::ptrdiff_t>(back)};
}

std::variant<CodeText, Unreadable> ReadFirstVersion(const std::vector<unsigned>& values) {
  const auto checked = Within(values, kPrefix.size(), 0);
  if (checked.empty() || !PassesFirstCheck(checked)) return Unreadable{Say(kBrokenCode)};
  return CodeText{1, Within(checked, 0, 1)};
}

std::variant<CodeText, Unreadable> ReadSecondVersion(const std::vector<unsigned>& values) {
  if (values.size() <= kLengthAt + kChecks || values[kLengthAt] != values.size() % kBase) {
    return Unreadable{
        Say("this puzzle code has a mistake in it: perhaps characters are missing or were added")};
  }
  if (RemainderOf(values) != std::array<unsigned, kChecks>{}) return Unreadable{Say(kBrokenCode)};
  return CodeText{2, Within(values, kLengthAt + 1, kChecks)};
}

}  // namespace

std::string CodeOfDigits(const std::vector<unsigned>& digits) {
  std::vector<unsigned> values(kPrefix.begin(), kPrefix.end());
  values.push_back(static_cast<unsigned>(kLengthAt + 1 + digits.size() + kChecks) % kBase);
  values.insert(values.end(), digits.begin(), digits.end());
  values.resize(values.size() + kChecks);
  const auto checks = RemainderOf(values);
  std::copy(checks.begin(), checks.end(), values.end() - kChecks);
  std::string code;
  for (const unsigned value : values)
    code += kAlphabet[value];
  return code;
}

std::variant<CodeText, Unreadable> ReadCodeText(const std::string& code) {
  constexpr std::size_t kLongest = 6000;  // a board of order 20 whose numbers have 16 digits
  constexpr unsigned kNine = 9;
  const auto values = code.size() <= kLongest ? ValuesIn(code) : std::nullopt;
  if (!values || values->size() < kPrefix.size() ||
      !std::equal(kPrefix.begin(), kPrefix.end() - 1, values->begin())) {
    return Unreadable{Say(kBrokenCode)};
  }
  const unsigned version = (*values)[kPrefix.size() - 1];
  if (version == 1) return ReadFirstVersion(*values);
  if (version == 2) return ReadSecondVersion(*values);
  const bool later = version > 2 && version <= kNine;
  return Unreadable{later ? Say("this puzzle code has a mistake in it, or is of a later version")
                          : Say(kBrokenCode)};
}

}  // namespace numorra
