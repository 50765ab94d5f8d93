#pragma once

#include <vector>

#include "app/board/random.h"
#include "study/images.h"

/// Squares of two digits: number = n a + b + 1, with digits a and b from 0 to n - 1 (Euler 1776).
/// The digits stand in two auxiliary squares of the same make. Where no pair of digits stands
/// twice, the numbers are 1 to n x n; where every line of the auxiliary squares adds up to the
/// same, so do the lines of the numbers.
///
/// Odd orders: a = A(2i + j), b = B(2i - j), indices modulo n, for permutations A and B of the
/// digits. Different cells have different pairs, and each digit stands once in every row and
/// column.
/// - Every falling wrapped diagonal of a, rising one of b, goes through all digits; the others go
///   through all digits where 3 does not divide n, else through every third one, three times. So
///   the square is pandiagonal when A and B have equal sums over each class of indices modulo 3
///   (nasik squares: Frost 1878; multiples of 3: Margossian 1908).
/// - Opposite cells have indices that add up to the same. Where digits at such indices add up to
///   n - 1, the square is associative, too, and so ultramagic.
///
/// Even orders, multiples of 4: with digits d read as 2 d - (n - 1), from 1 - n to n - 1 in twos,
/// a = S(i) A(j), b = T(j) B(i), for signs S and T of which half are plus. Digits come in pairs
/// that add up to 0 and stand at partner indices; partners have the same sign, so all pairs differ.
/// - Signs that alternate, partners n/2 apart: most-perfect (McClintock 1897; Ollerenshaw and Brée
///   1998 count them all).
/// - Partners opposite each other, and signs + - - + again and again: associative, and a wrapped
///   diagonal adds up to plus or minus the digits at indices 0 and 1 modulo 4 less those at 2 and
///   3; where the former add up to 0, so do all, and the square is ultramagic.
namespace numorra {

Square<double> OddPandiagonal(int order, Random& random);
Square<double> OddUltramagic(int order, Random& random);

Square<double> EvenMostPerfect(int order, Random& random);
Square<double> EvenUltramagic(int order, Random& random);

/// The square of the numbers n a + b + 1, turned at random. digitsAt(i, j) gives the pair {a, b}.
template <class DigitsAt>
Square<double> SquareOfDigits(int order, Random& random, DigitsAt digitsAt) {
  const auto numberAt = [&](int cell) -> double {
    const auto [a, b] = digitsAt(cell / order, cell % order);
    return order * a + b + 1;
  };
  return ImageOf(random.Between(0, kImages - 1), SquareOf(order, numberAt));
}

/// `first`, which adds up to 0, and behind it quadruples of the numbers from `next` on, `step`
/// apart, with the signs + - - +, until there are `count`; all with the other sign half of the
/// time, and in random order.
std::vector<int> AddingUpToZero(std::vector<int> first, int next, int step, std::size_t count,
                                Random& random);

}  // namespace numorra
