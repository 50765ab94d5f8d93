#pragma once

#include <algorithm>
#include <string>
#include <vector>

/// Decimals added digit by digit, as at school, without binary numbers.
namespace paper {

/// A decimal as a sign and its digits, `kPlaces` of them after the point, the lowest first.
constexpr std::size_t kPlaces = 20;
constexpr std::size_t kDigits = 60;

/// The digits of `number`, all negative for a negative one, so that adding needs no signs.
inline std::vector<int> Digits(std::string number) {
  std::vector<int> digits(kDigits, 0);
  const int sign = !number.empty() && number[0] == '-' ? -1 : 1;
  if (sign < 0) number.erase(0, 1);
  const std::size_t point = std::min(number.find('.'), number.size());
  for (std::size_t i = 0; i < number.size(); ++i) {
    if (i == point) continue;
    digits[i < point ? kPlaces + point - 1 - i : kPlaces - (i - point)] = sign * (number[i] - '0');
  }
  return digits;
}

/// The decimal with these digits, which may be of any size and sign.
inline std::string Written(std::vector<int> digits) {
  bool negative = false;
  const auto carry = [&digits] {
    for (std::size_t i = 0; i + 1 < digits.size(); ++i) {
      const int down = digits[i] >= 0 ? digits[i] / 10 : -((9 - digits[i]) / 10);
      digits[i] -= 10 * down;
      digits[i + 1] += down;
    }
  };
  carry();
  if (digits.back() < 0) {
    negative = true;
    for (int& digit : digits)
      digit = -digit;
    carry();
  }
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i == kPlaces) text += '.';
    text += static_cast<char>('0' + digits[i]);
  }
  std::reverse(text.begin(), text.end());
  text.erase(0, std::min(text.find_first_not_of('0'), text.find('.') - 1));
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return negative ? "-" + text : text;
}

/// The sum of the decimals; empty texts count as 0.
inline std::string Sum(const std::vector<std::string>& numbers) {
  std::vector<int> total(kDigits, 0);
  for (const std::string& number : numbers) {
    const std::vector<int> digits = Digits(number);
    for (std::size_t i = 0; i < kDigits; ++i)
      total[i] += digits[i];
  }
  return Written(total);
}

}  // namespace paper
