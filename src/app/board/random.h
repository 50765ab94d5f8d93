#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <utility>

namespace numorra {

/// The time of day that seeds random numbers.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::uint64_t NanosecondsSinceMidnight() = 0;
};

/// The machine's local time.
class SystemClock : public Clock {
 public:
  std::uint64_t NanosecondsSinceMidnight() override;
};

/// A clock that advances by one tick at every reading, from a chosen start, so that a run can be
/// repeated.
class TickingClock : public Clock {
 public:
  explicit TickingClock(std::uint64_t start) : now_(start) {}
  std::uint64_t NanosecondsSinceMidnight() override { return now_++; }

 private:
  std::uint64_t now_;
};

/// A clock that repeats a run from the seed; without a seed, the machine's clock.
std::unique_ptr<Clock> ClockFrom(std::optional<std::uint64_t> seed);

/// Random numbers for the whole program. Tests replace them.
class Random {
 public:
  virtual ~Random() = default;

  /// Reseeds from the clock. Commands do so right before they draw.
  virtual void Reseed() = 0;

  /// The next number, uniform in [0, 1), a multiple of 2^-24 (a single-precision number).
  virtual double Next() = 0;

  /// A whole number, uniform in low..high.
  int Between(int low, int high) { return low + static_cast<int>(Next() * (high - low + 1)); }
};

/// Puts the numbers in random order, uniform over all orders (Fisher and Yates 1938, in
/// Durstenfeld's form).
template <class Number>
void Shuffle(std::span<Number> numbers, Random& random) {
  for (std::size_t i = numbers.size(); i > 1; --i) {
    std::swap(numbers[i - 1],
              numbers[static_cast<std::size_t>(random.Between(0, static_cast<int>(i) - 1))]);
  }
}

/// The splitmix64 generator (Steele, Lea and Flood 2014), seeded by the clock. The reading is mixed
/// in the same way before it seeds, because first draws from neighbouring seeds would otherwise be
/// nearly equal. If the clock has not advanced between two reseeds, the second reading is advanced,
/// so that loops which draw until something differs end with any clock.
class ClockSeededRandom final : public Random {
 public:
  explicit ClockSeededRandom(Clock& clock);
  void Reseed() override;
  double Next() override;

 private:
  Clock& clock_;
  std::uint64_t state_ = 0;
  std::uint64_t lastReading_ = 0;
  std::uint64_t repeats_ = 0;
};

}  // namespace numorra
