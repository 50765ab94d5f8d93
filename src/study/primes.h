#pragma once

namespace numorra {

/// Whether a number is a prime; exact for every number that a cell can hold.
///
/// The strong test of Miller and Rabin with the first seven primes as bases, which no composite
/// below 341,550,071,728,321 passes (Jaeschke 1993).
bool IsPrime(double number);

}  // namespace numorra
