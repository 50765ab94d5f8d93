#pragma once

#include <vector>

#include "app/board/random.h"
#include "study/images.h"

/// Squares of two digits: number = n a + b + 1, with digits a and b from 0 to n - 1 (Euler 1776).
/// The digits form two auxiliary squares of the same construction. If no pair of digits occurs
/// twice, the numbers are 1 to n x n; if every line of the auxiliary squares has the same sum, so
/// do the lines of the numbers.
///
/// Odd orders: a = A(2i + j), b = B(2i - j), indices modulo n, for permutations A and B of the
/// digits. Different cells have different pairs, and each digit occurs once in every row and
/// column.
/// - Every falling wrapped diagonal of a, and every rising one of b, contains all digits. The
///   others contain all digits if 3 does not divide n; if it does, they contain every third one,
///   three times. So the square is pandiagonal if A and B have equal sums over each class of
///   indices modulo 3 (nasik squares: Frost 1878; multiples of 3: Margossian 1908).
/// - The indices of opposite cells have a constant sum. If digits at such indices add up to n - 1,
///   the square is also associative, and so ultramagic.
///
/// Even orders, multiples of 4: with digits d read as 2 d - (n - 1), from 1 - n to n - 1 in steps
/// of 2, a = S(i) A(j), b = T(j) B(i), for signs S and T, half of them plus. Digits come in pairs
/// that add up to 0, at partner indices; partners have the same sign, so all pairs (a, b) differ.
/// - Alternating signs, partners n/2 apart: most-perfect (McClintock 1897; Ollerenshaw and Brée
///   1998 count them all).
/// - Opposite partners, and repeated signs + - - +: associative. A wrapped diagonal adds up to plus
///   or minus the digits at indices 0 and 1 modulo 4 minus those at 2 and 3; if the former add up
///   to 0, so do all, and the square is ultramagic.
namespace numorra {

Square<double> OddPandiagonal(int order, Random& random);
Square<double> OddUltramagic(int order, Random& random);

Square<double> EvenMostPerfect(int order, Random& random);
Square<double> EvenUltramagic(int order, Random& random);

/// The square of the numbers n a + b + 1, turned or mirrored at random. digitsAt(i, j) returns the
/// pair {a, b}.
template <class DigitsAt>
Square<double> SquareOfDigits(int order, Random& random, DigitsAt digitsAt) {
  const auto numberAt = [&](int cell) -> double {
    const auto [a, b] = digitsAt(cell / order, cell % order);
    return order * a + b + 1;
  };
  return ImageOf(random.Between(0, kImages - 1), SquareOf(order, numberAt));
}

/// `first`, which must add up to 0, followed by quadruples of the numbers from `next` on, `step`
/// apart, with the signs + - - +, until there are `count`; with all signs turned half of the time,
/// and in random order.
std::vector<int> AddingUpToZero(std::vector<int> first, int next, int step, std::size_t count,
                                Random& random);

}  // namespace numorra
