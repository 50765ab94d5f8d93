#include "app/board/random.h"

#include <chrono>
#include <ctime>

namespace numorra {
namespace {

constexpr std::uint64_t kGoldenGamma = 0x9e3779b97f4a7c15;

std::uint64_t Mix(std::uint64_t z) {
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
  z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
  return z ^ (z >> 31);
}

}  // namespace

std::uint64_t SystemClock::NanosecondsSinceMidnight() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const std::time_t seconds = system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&seconds, &local);
  const auto whole =
      hours(local.tm_hour) + minutes(local.tm_min) + std::chrono::seconds(local.tm_sec);
  const auto fraction = now - system_clock::from_time_t(seconds);
  return static_cast<std::uint64_t>(duration_cast<nanoseconds>(whole + fraction).count());
}

std::unique_ptr<Clock> ClockFrom(std::optional<std::uint64_t> seed) {
  if (seed) return std::make_unique<TickingClock>(*seed);
  return std::make_unique<SystemClock>();
}

ClockSeededRandom::ClockSeededRandom(Clock& clock) : clock_(clock) {
  Reseed();
}

void ClockSeededRandom::Reseed() {
  const std::uint64_t reading = clock_.NanosecondsSinceMidnight();
  repeats_ = reading == lastReading_ ? repeats_ + 1 : 0;
  lastReading_ = reading;
  state_ = Mix(reading + kGoldenGamma) + Mix(repeats_);
}

double ClockSeededRandom::Next() {
  state_ += kGoldenGamma;
  return static_cast<double>(Mix(state_) >> 40) * 0x1p-24;
}

}  // namespace numorra
