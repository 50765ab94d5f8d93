#include "puzzle/local_search.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace numorra {
namespace {

/// A cooling takes a share of the run's steps and multiplies the temperature by a constant factor
/// at each step.
struct Cooling {
  double From, To;
  double Share;
};
constexpr Cooling kCoolings[] = {{100, 4, 1}, {4, 0.4, 0.5}};
constexpr Cooling kAgain = {1, 0.35, 0.5};
constexpr int kCoolingsOfRun = 10;
constexpr double kColdBelow = 4;  // below this, pair steps are worth their time

const Cooling& CoolingAt(int index) {
  return index < static_cast<int>(std::size(kCoolings)) ? kCoolings[index] : kAgain;
}

}  // namespace

LocalSearch::LocalSearch(const Candidates& board, Random& random)
    : numbering_(board), random_(random) {
  constexpr std::int64_t kLeastSteps = 20'000;
  constexpr std::int64_t kMostSteps = 500'000;
  constexpr std::int64_t kOfGap = 2000;
  runSteps_ = std::clamp(kOfGap * numbering_.Gaps(), kLeastSteps, kMostSteps);
  if (CanRun()) StartRun();
}

void LocalSearch::GoOn() {
  cooling_ = static_cast<int>(std::size(kCoolings));
  done_ = 0;
  NextTemperature();
  constexpr int kStepsOfGap = 20;
  for (int i = 0; i < kStepsOfGap * numbering_.Gaps(); ++i)
    Step();
}

void LocalSearch::StartRun() {
  numbering_.Mix(random_);
  cooling_ = 0;
  done_ = 0;
  temperature_ = CoolingAt(0).From;
}

bool LocalSearch::Run(std::int64_t steps) {
  constexpr int kRound = 50;
  constexpr int kOfTemperature = 4 * kRound;
  while (numbering_.Cost() > 0 && steps > 0) {
    if (done_ % kOfTemperature == 0) NextTemperature();
    for (int i = 0; i < kRound && numbering_.Cost() > 0; ++i)
      Step();
    done_ += kRound;
    steps -= kRound;
    if (temperature_ < kColdBelow && numbering_.Cost() > 0) steps -= StepPair();
  }
  return numbering_.Cost() == 0;
}

void LocalSearch::NextTemperature() {
  auto length = CoolingAt(cooling_).Share * static_cast<double>(runSteps_);
  if (static_cast<double>(done_) >= length) {
    done_ = 0;
    if (++cooling_ == kCoolingsOfRun) {
      runSteps_ += runSteps_ / 2;
      StartRun();
    }
    length = CoolingAt(cooling_).Share * static_cast<double>(runSteps_);
  }
  const Cooling& now = CoolingAt(cooling_);
  temperature_ = now.From * std::pow(now.To / now.From, static_cast<double>(done_) / length);
  constexpr double kReach = 1.5;
  const double density = static_cast<double>(numbering_.Gaps()) /
                         static_cast<double>(numbering_.Map().Order() * numbering_.Map().Order());
  reach_ = std::clamp(static_cast<int>(kReach * temperature_ * density), 1, numbering_.Gaps() - 1);
}

void LocalSearch::Step() {
  constexpr int kNear = 14;
  constexpr int kInLine = 4;  // of 20; the rest exchange any two
  const int way = random_.Below(20);
  const int rank = random_.Below(numbering_.Gaps());
  const int cell = numbering_.CellOf(rank);
  if (way < kNear) {
    const int other = rank + 1 + random_.Below(reach_);
    if (other < numbering_.Gaps()) Propose(cell, numbering_.CellOf(other));
  } else if (way < kNear + kInLine) {
    const int line = numbering_.Map().LinesOf(cell)[static_cast<std::size_t>(random_.Below(2))];
    const std::vector<int>& gaps = numbering_.GapsOf(line);
    Propose(cell, gaps[static_cast<std::size_t>(random_.Below(static_cast<int>(gaps.size())))]);
  } else {
    Propose(cell, numbering_.CellOf(random_.Below(numbering_.Gaps())));
  }
}

void LocalSearch::Propose(int a, int b) {
  if (a == b) return;
  const std::int64_t before = numbering_.Cost();
  numbering_.Exchange(a, b);
  if (!Accepts(numbering_.Cost() - before)) numbering_.Exchange(a, b);
}

/// The rule of Metropolis and others (1953).
bool LocalSearch::Accepts(std::int64_t increase) {
  constexpr double kHopeless = 30;
  if (increase <= 0) return true;
  const double exponent = static_cast<double>(increase) / temperature_;
  return exponent < kHopeless && random_.Share() < std::exp(-exponent);
}

/// One of the n lines from `first` on whose error has this sign, searched from a random start; any
/// line if there is none.
int LocalSearch::WrongLine(int first, int sign) {
  const int n = numbering_.Map().Order();
  const int start = random_.Below(n);
  for (int i = 0; i < n; ++i) {
    const int line = first + (start + i) % n;
    if (numbering_.Error(line) * sign > 0) return line;
  }
  return first + start;
}

/// Fills `common_` with pairs of gaps of two rows (or columns) that share a column (or row); with
/// eight random ones if there are more.
int LocalSearch::FindCommonGaps(int one, int other) {
  const std::vector<int>& ones = numbering_.Map().CellsOf(one);
  const std::vector<int>& others = numbering_.Map().CellsOf(other);
  int found = 0;
  for (std::size_t i = 0; i < ones.size(); ++i) {
    if (!numbering_.IsGap(ones[i]) || !numbering_.IsGap(others[i])) continue;
    const int slot = found < kMostCommon ? found : random_.Below(found + 1);
    if (slot < kMostCommon) common_[static_cast<std::size_t>(slot)] = {ones[i], others[i]};
    ++found;
  }
  return std::min(found, kMostCommon);
}

/// Returns the number of steps that it counts as. Visits all exchanges in Gray code order, in which
/// each differs from the one before by one pair, and then returns to the start.
std::int64_t LocalSearch::StepPair() {
  const int first = random_.Below(2) * numbering_.Map().Order();
  const int sign = random_.Below(2) * 2 - 1;
  const bool wrong = random_.Below(4) > 0;
  const int one = WrongLine(first, wrong ? sign : 0);
  const int other = WrongLine(first, wrong ? -sign : 0);
  const int common = one == other ? 0 : FindCommonGaps(one, other);
  if (common == 0) return 1;
  const auto exchange = [&](int pair) {
    const auto [a, b] = common_[static_cast<std::size_t>(pair)];
    numbering_.Exchange(a, b);
  };
  constexpr double kMostExponent = 600;  // far from an overflow
  const unsigned ways = 1U << common;
  const std::int64_t start = numbering_.Cost();
  unsigned chosen = 0;
  double weights = 1;
  for (unsigned way = 1; way < ways; ++way) {
    exchange(std::countr_zero(way));
    if (numbering_.Cost() == 0) return way;
    const auto gain = static_cast<double>(start - numbering_.Cost());
    const double weight = std::exp(std::min(gain / temperature_, kMostExponent));
    weights += weight;
    if (random_.Share() * weights < weight) chosen = way;
  }
  exchange(common - 1);
  for (unsigned left = chosen ^ chosen >> 1; left != 0; left &= left - 1)
    exchange(std::countr_zero(left));
  return ways;
}

}  // namespace numorra
