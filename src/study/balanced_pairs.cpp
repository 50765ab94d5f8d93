#include "study/balanced_pairs.h"

#include <cmath>
#include <cstdlib>
#include <numeric>
#include <span>

#include "app/board/orders.h"
#include "app/board/quick_random.h"

namespace numorra {
namespace {

/// The rank of a size, from 1, with a sign.
using SignedRank = int;

class Walk {
 public:
  Walk(const std::vector<PairedPlace>& places, const std::vector<int>& sizes, double temperature,
       Random& random)
      : places_(places),
        sizes_(sizes),
        quick_(random),
        rankIn_(sizes.size()),
        placeOf_(sizes.size() + 1) {
    for (std::size_t rise = 0; rise < chances_.size(); ++rise) {
      chances_[rise] = QuickRandom::ChanceOf(std::exp(-static_cast<double>(rise) / temperature));
    }
    // A change of the cost changes two lines by at least the difference of two sizes.
    constexpr double kShare = 0.02;
    const double least = 2.0 * (sizes[1] - sizes[0]);
    halting_ = QuickRandom::ChanceOf(kShare * std::exp(-least / temperature));

    std::vector<SignedRank> start(sizes.size());
    std::iota(start.begin(), start.end(), 1);
    Shuffle(std::span(start), random);
    for (std::size_t place = 0; place < start.size(); ++place)
      Put(place, quick_.Below(2) == 1 ? start[place] : -start[place]);
  }

  std::vector<int> Run() {
    do {
      Step();
    } while (cost_ != 0 || !quick_.Happens(halting_));
    std::vector<int> numbers;
    numbers.reserve(rankIn_.size());
    for (const SignedRank rank : rankIn_)
      numbers.push_back(NumberOf(rank));
    return numbers;
  }

 private:
  int NumberOf(SignedRank rank) const {
    if (rank == 0) return 0;  // of a place that is not yet filled
    const int size = sizes_[static_cast<std::size_t>(std::abs(rank) - 1)];
    return rank < 0 ? -size : size;
  }

  void Step() {
    constexpr int kKinds = 20;  // one step in 20 turns a sign, another exchanges any two
    const int kind = quick_.Below(kKinds);
    if (kind == 0) {
      const std::size_t place = AnyPlace();
      Try(place, -rankIn_[place], place, -rankIn_[place]);
    } else if (kind == 1) {
      const std::size_t a = AnyPlace();
      const std::size_t b = AnyPlace();
      Try(a, rankIn_[b], b, rankIn_[a]);
    } else {
      const std::size_t rank = 1 + static_cast<std::size_t>(quick_.Below(Places() - 1));
      const std::size_t a = placeOf_[rank];
      const std::size_t b = placeOf_[rank + 1];
      Try(a, rankIn_[a] + (rankIn_[a] < 0 ? -1 : 1), b, rankIn_[b] - (rankIn_[b] < 0 ? -1 : 1));
    }
  }

  int Places() const { return static_cast<int>(rankIn_.size()); }
  std::size_t AnyPlace() { return static_cast<std::size_t>(quick_.Below(Places())); }

  void Try(std::size_t a, SignedRank inA, std::size_t b, SignedRank inB) {
    const SignedRank oldA = rankIn_[a];
    const SignedRank oldB = rankIn_[b];
    const int before = cost_;
    Put(a, inA);
    Put(b, inB);
    const int rise = cost_ - before;
    if (rise <= 0) return;
    const auto at = static_cast<std::size_t>(rise);
    if (at < chances_.size() && quick_.Happens(chances_[at])) return;
    Put(a, oldA);
    Put(b, oldB);
  }

  void Put(std::size_t place, SignedRank rank) {
    const PairedPlace& at = places_[place];
    const int by = NumberOf(rank) - NumberOf(rankIn_[place]);
    for (std::size_t way = 0; way < at.Lines.size(); ++way) {
      int& off = off_[static_cast<std::size_t>(at.Lines[way])];
      cost_ -= std::abs(off);
      off += by * at.Weights[way];
      cost_ += std::abs(off);
    }
    rankIn_[place] = rank;
    placeOf_[static_cast<std::size_t>(std::abs(rank))] = place;
  }

  const std::vector<PairedPlace>& places_;
  const std::vector<int>& sizes_;
  QuickRandom quick_;
  std::vector<SignedRank> rankIn_;
  std::vector<std::size_t> placeOf_;  ///< of each size, by its rank
  std::array<int, kMaxOrder> off_{};  ///< sum of each line
  int cost_ = 0;
  std::array<std::uint32_t, 64> chances_{};  ///< chance of each rise; larger rises have none
  std::uint32_t halting_ = 0;
};

}  // namespace

std::vector<int> BalancedPairs(const std::vector<PairedPlace>& places,
                               const std::vector<int>& sizes, double temperature, Random& random) {
  return Walk(places, sizes, temperature, random).Run();
}

}  // namespace numorra
