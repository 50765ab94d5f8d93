#pragma once

#include <optional>

#include "app/board/square.h"

namespace numorra {

/// The two digits to the base n of every number of a normal square of order n, less 1: the number
/// is n High + Low + 1, and both digits are from 0 to n - 1. Euler (1776) built squares from them.
struct BaseDigits {
  Square<int> High;
  Square<int> Low;
};

/// Nothing unless each of the numbers 1 to n x n occurs once.
std::optional<BaseDigits> BaseDigitsOf(const Square<double>& square);

}  // namespace numorra
