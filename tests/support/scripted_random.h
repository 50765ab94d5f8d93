#pragma once

#include <vector>

#include "app/board/random.h"

namespace numorra {

/// Random numbers from a list, again and again.
class ScriptedRandom : public Random {
 public:
  explicit ScriptedRandom(std::vector<double> numbers) : numbers_(std::move(numbers)) {}
  void Reseed() override { ++Reseeds; }
  double Next() override { return numbers_[next_++ % numbers_.size()]; }

  int Reseeds = 0;

 private:
  std::vector<double> numbers_;
  std::size_t next_ = 0;
};

}  // namespace numorra
