#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "support/slow_checker.h"

/// A second opinion on the properties of a square: each term by its definition, for whole numbers
/// up to some thousands; slow, obvious, and sharing no code with the product.
namespace slow {

using Ints = std::vector<std::vector<long long>>;
using Answers = std::map<std::string, std::optional<bool>>;

inline Ints IntsOf(const Rows& rows) {
  Ints square;
  for (const auto& row : rows)
    square.emplace_back(row.begin(), row.end());
  return square;
}

class Classifier {
 public:
  explicit Classifier(Ints square) : a_(std::move(square)), n_(static_cast<int>(a_.size())) {}

  Answers Run() const {
    Answers is;
    const auto all = Numbers(a_);
    const auto sums = LineSums(a_);
    const long long total = Common(sums);
    const long long cells = static_cast<long long>(n_) * n_;
    is["semi-magic"] = std::count(sums.begin(), sums.end() - 2, total) == n_ + n_;
    is["magic"] = IsMagic(a_);
    is["normal"] = all.front() == 1 && all.back() == cells && Distinct(all);
    is["distinct"] = Distinct(all);
    is["consecutive"] = Run(all);
    is["associative"] = Constant([&](int i, int j) { return A(i, j) + A(n_ - 1 - i, n_ - 1 - j); });
    is["pandiagonal"] = *is["semi-magic"] && Pandiagonal(total);
    is["semi-pandiagonal"] = SemiPandiagonal(total);
    is["ultramagic"] = *is["magic"] && *is["associative"] && *is["pandiagonal"];
    if (n_ % 2 == 0) {
      bool compact = true;
      Each([&](int i, int j) {
        const long long block = A(i, j) + A(i + 1, j) + A(i, j + 1) + A(i + 1, j + 1);
        compact = compact && block * n_ == 4 * total;
      });
      is["compact"] = compact;
      is["complete"] = Constant([&](int i, int j) { return A(i, j) + A(i + n_ / 2, j + n_ / 2); });
    }
    if (n_ % 4 == 0) is["most-perfect"] = *is["normal"] && *is["compact"] && *is["complete"];
    is["bimagic"] = *is["magic"] && IsMagic(Power(2));
    is["trimagic"] = *is["bimagic"] && IsMagic(Power(3));
    if (n_ >= 5) {
      bool magic = true, runs = true;
      for (int k = n_ - 2; k >= 3; k -= 2) {
        magic = magic && IsMagic(Middle(k));
        runs = runs && Run(Numbers(Middle(k)));
      }
      is["concentric"] = magic;
      is["bordered"] = magic && runs;
    }
    is["self-complementary"] = SelfComplementary(all.front() + all.back());
    const std::set<long long> different(sums.begin(), sums.end());
    is["heterosquare"] = different.size() == sums.size();
    is["antimagic"] = *is["heterosquare"] && *different.rbegin() - *different.begin() + 1 ==
                                                 static_cast<long long>(sums.size());
    is["latin"] = Latin(a_);
    is["prime"] = std::all_of(all.begin(), all.end(), Prime);
    if (n_ >= 8 && n_ % 4 == 0) is["Franklin"] = *is["semi-magic"] && *is["compact"] && Bent(total);
    is["arithmetic progression"] = Distinct(all);
    for (std::size_t i = 2; i < all.size(); ++i) {
      if (all[i] - all[i - 1] != all[1] - all[0]) is["arithmetic progression"] = false;
    }
    is["knight's tour"] = *is["consecutive"] && Tour(all);
    is["zero-centred"] = true;
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (all[i] != -all[all.size() - 1 - i]) is["zero-centred"] = false;
    }
    is["regular"] = *is["normal"] && Regular();
    is["multiplicative"] = Multiplicative();
    is["addition-multiplication"] = *is["magic"] && *is["multiplicative"];
    for (const char* term : {"semi-pandiagonal", "compact", "complete", "most-perfect",
                             "concentric", "bordered", "Franklin"})
      is[term];
    return is;
  }

 private:
  long long A(int i, int j) const {
    return a_[static_cast<std::size_t>((i + 2 * n_) % n_)]
             [static_cast<std::size_t>((j + 2 * n_) % n_)];
  }
  template <class Visit>
  void Each(Visit visit) const {
    for (int i = 0; i < n_; ++i) {
      for (int j = 0; j < n_; ++j)
        visit(i, j);
    }
  }
  template <class ValueAt>
  bool Constant(ValueAt valueAt) const {
    bool constant = true;
    Each([&](int i, int j) { constant = constant && valueAt(i, j) == valueAt(0, 0); });
    return constant;
  }
  static std::vector<long long> Numbers(const Ints& square) {
    std::vector<long long> all;
    for (const auto& row : square)
      all.insert(all.end(), row.begin(), row.end());
    std::sort(all.begin(), all.end());
    return all;
  }
  static bool Distinct(const std::vector<long long>& sorted) {
    return std::set<long long>(sorted.begin(), sorted.end()).size() == sorted.size();
  }
  static bool Run(const std::vector<long long>& sorted) {
    return Distinct(sorted) &&
           sorted.back() - sorted.front() + 1 == static_cast<long long>(sorted.size());
  }
  static std::vector<long long> LineSums(const Ints& square) {
    const std::size_t n = square.size();
    std::vector<long long> sums(2 * n + 2);
    for (std::size_t i = 0; i < n; ++i) {
      for (std::size_t j = 0; j < n; ++j) {
        sums[i] += square[i][j];
        sums[n + j] += square[i][j];
      }
      sums[2 * n] += square[i][i];
      sums[2 * n + 1] += square[i][n - 1 - i];
    }
    return sums;
  }
  static long long Common(const std::vector<long long>& sums) {
    return *std::max_element(sums.begin(), sums.end(), [&](long long a, long long b) {
      return std::count(sums.begin(), sums.end(), a) < std::count(sums.begin(), sums.end(), b);
    });
  }
  static bool IsMagic(const Ints& square) {
    const auto sums = LineSums(square);
    return std::set<long long>(sums.begin(), sums.end()).size() == 1;
  }
  Ints Power(int exponent) const {
    Ints powers = a_;
    for (auto& row : powers) {
      for (auto& number : row)
        number = number * number * (exponent == 3 ? number : 1);
    }
    return powers;
  }
  Ints Middle(int k) const {
    Ints middle;
    for (int i = (n_ - k) / 2; i < (n_ + k) / 2; ++i) {
      middle.emplace_back();
      for (int j = (n_ - k) / 2; j < (n_ + k) / 2; ++j)
        middle.back().push_back(A(i, j));
    }
    return middle;
  }
  bool Pandiagonal(long long total) const {
    for (int k = 0; k < n_; ++k) {
      long long falling = 0, rising = 0;
      for (int i = 0; i < n_; ++i) {
        falling += A(i, k + i);
        rising += A(i, k - i);
      }
      if (falling != total || rising != total) return false;
    }
    return true;
  }
  std::optional<bool> SemiPandiagonal(long long total) const {
    if (n_ != 4) return std::nullopt;
    return A(0, 2) + A(1, 3) + A(2, 0) + A(3, 1) == total &&
           A(0, 1) + A(1, 0) + A(2, 3) + A(3, 2) == total;
  }
  /// Halves of rows and columns, and bent rows: each from line k at one edge towards the middle and
  /// back to line k at the other edge.
  bool Bent(long long total) const {
    for (int k = 0; k < n_; ++k) {
      long long halfRow = 0, halfColumn = 0, down = 0, up = 0, right = 0, left = 0;
      for (int i = 0; i < n_ / 2; ++i) {
        const int opposite = n_ - 1 - i;
        halfRow += A(k, i);
        halfColumn += A(i, k);
        down += A(k + i, i) + A(k + i, opposite);
        up += A(k - i, i) + A(k - i, opposite);
        right += A(i, k + i) + A(opposite, k + i);
        left += A(i, k - i) + A(opposite, k - i);
      }
      if (2 * halfRow != total || 2 * halfColumn != total) return false;
      if (down != total || up != total || right != total || left != total) return false;
    }
    return true;
  }
  bool Tour(const std::vector<long long>& sorted) const {
    std::map<long long, std::pair<int, int>> at;
    Each([&](int i, int j) { at[A(i, j)] = {i, j}; });
    for (std::size_t k = 1; k < sorted.size(); ++k) {
      const auto [i, j] = at[sorted[k - 1]];
      const auto [r, c] = at[sorted[k]];
      if ((i - r) * (i - r) + (j - c) * (j - c) != 5) return false;
    }
    return true;
  }
  bool SelfComplementary(long long pair) const {
    Ints complement = a_;
    Each([&](int i, int j) {
      complement[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)] = pair - A(i, j);
    });
    Ints image = a_;
    for (int turns = 0; turns < 8; ++turns) {
      if (image == complement) return true;
      Ints turned = image;  // a quarter turn; mirrored after four turns
      Each([&](int i, int j) {
        turned[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)] =
            image[static_cast<std::size_t>(n_ - 1 - j)][static_cast<std::size_t>(i)];
      });
      image = turned;
      if (turns == 3) std::reverse(image.begin(), image.end());
    }
    return false;
  }
  static bool Latin(const Ints& square) {
    const auto all = Numbers(square);
    const std::set<long long> symbols(all.begin(), all.end());
    for (std::size_t i = 0; i < square.size(); ++i) {
      std::set<long long> row, column;
      for (std::size_t j = 0; j < square.size(); ++j) {
        row.insert(square[i][j]);
        column.insert(square[j][i]);
      }
      if (row != symbols || column != symbols) return false;
    }
    return symbols.size() == square.size();
  }
  bool Regular() const {
    Ints high = a_, low = a_;
    for (std::size_t i = 0; i < a_.size(); ++i) {
      for (std::size_t j = 0; j < a_.size(); ++j) {
        high[i][j] = (a_[i][j] - 1) / n_;
        low[i][j] = (a_[i][j] - 1) % n_;
      }
    }
    return Latin(high) && Latin(low);
  }
  /// Whether every line has the same prime factors equally often, and the same sign.
  bool Multiplicative() const {
    std::set<long long> primes;
    for (long long number : Numbers(a_)) {
      if (number == 0) return false;
      number = std::abs(number);
      for (long long prime = 2; number > 1; ++prime) {
        if (prime * prime > number) prime = number;
        if (number % prime != 0) continue;
        primes.insert(prime);
        while (number % prime == 0)
          number /= prime;
      }
    }
    for (const long long prime : primes) {
      Ints exponents = a_;  // of the prime
      for (auto& row : exponents) {
        for (auto& number : row) {
          long long power = 0;
          for (; number % prime == 0; ++power)
            number /= prime;
          number = power;
        }
      }
      if (!IsMagic(exponents)) return false;
    }
    Ints negatives = a_;
    for (auto& row : negatives) {
      for (auto& number : row)
        number = number < 0 ? 1 : 0;
    }
    const auto signs = LineSums(negatives);
    return std::all_of(signs.begin(), signs.end(),
                       [&](long long sign) { return sign % 2 == signs.front() % 2; });
  }
  static bool Prime(long long number) {
    long long divisor = 2;
    while (divisor * divisor <= number && number % divisor != 0)
      ++divisor;
    return number > 1 && divisor * divisor > number;
  }

  Ints a_;
  int n_;
};

inline Answers Classify(const Rows& rows) {
  return Classifier(IntsOf(rows)).Run();
}

}  // namespace slow
